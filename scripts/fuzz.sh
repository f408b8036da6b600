#!/bin/sh
# Runs every fuzz target for some seconds from its corpus: fuzz.sh [seconds [target...]]
# Fails when a target fails; the inputs that did it are kept in build/fuzz/crashes.
set -eu
cd "$(dirname "$0")/.."
root=$PWD
seconds=${1:-20}
case $seconds in
'' | 0* | *[!0-9]*)
  echo "fuzz.sh [seconds [target...]]" >&2
  exit 2
  ;;
esac
[ $# -eq 0 ] || shift
if [ $# -eq 0 ]; then
  for target in build/fuzz/bin/*_fuzz; do
    [ -x "$target" ] && set -- "$@" "$(basename "$target" _fuzz)"
  done
fi
if [ $# -eq 0 ]; then
  echo "no fuzz targets: cmake --preset fuzz && cmake --build --preset fuzz" >&2
  exit 2
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
trap 'exit 130' INT TERM
crashes=$root/build/fuzz/crashes
mkdir -p "$crashes"
failed=
for name in "$@"; do
  echo "$name"
  # What a run finds goes to the first corpus folder, never into the project's own.
  mkdir -p "$work/$name"
  if (cd "$work" && "$root/build/fuzz/bin/${name}_fuzz" -max_total_time="$seconds" -timeout=10 \
    -rss_limit_mb=1024 -artifact_prefix="$crashes/$name-" "$work/$name" \
    "$root/fuzz/corpus/$name") >"$work/$name.log" 2>&1; then
    tail -n1 "$work/$name.log"
  else
    tail -n60 "$work/$name.log"
    failed="$failed $name"
  fi
done
[ -z "$failed" ] || { echo "failed:$failed, inputs in build/fuzz/crashes" >&2; exit 1; }
