#!/bin/sh
# Runs clang-tidy over what a build compiles, tests apart: tidy.sh <build folder> [file...]
# The path-exploring analyzer is left to the preset "tidy", where it may take its time.
set -eu
cd "$(dirname "$0")/.."
build=$1
shift
if [ $# -eq 0 ]; then
  # shellcheck disable=SC2046
  set -- $(sed -n "s,^ *\"file\": \"$PWD/\(.*\)\".*,\1,p" "$build/compile_commands.json" |
    grep -vE '^(build|tests)/' | sort -u)
fi
[ $# -gt 0 ] || { echo "$build/compile_commands.json names no source" >&2; exit 1; }
echo "clang-tidy: $# files"
printf '%s\n' "$@" | xargs -n 4 -P "$(nproc)" \
  clang-tidy-14 -p "$build" --quiet --checks='-clang-analyzer-*' 2>/dev/null
