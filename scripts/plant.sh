#!/bin/sh
# Plants faults into a copy of the sources, one after the other, and counts those that the tests
# catch: plant.sh [--only pattern-of-names]
# A fault is a small patch in tests/plants/, named by its subject. Its first lines say what a user
# would see and "visible: yes" or "visible: no". The copy and its build stand in build/plants/ and
# are kept for the next time, with a log of each fault. Fails when fewer than nine in ten of the
# visible faults are caught; one that no longer applies or builds counts as not caught.
set -u
cd "$(dirname "$0")/.." || exit 2
root=$PWD
copy=$root/build/plants
build=$copy/build/plants
logs=$copy/logs
home=$copy/home
limit=${PLANT_SECONDS:-60} # of one test program; one that hangs twice has noticed something
command -v patch >/dev/null || { echo "needs the package patch" >&2; exit 2; }
programs='vk_logic_tests vk_sim_tests vk_window_tests'
only=
case ${1:-} in
'') ;;
--only) only=${2:?plant.sh --only pattern} ;;
*)
  echo "plant.sh [--only pattern]" >&2
  exit 2
  ;;
esac

# --- the copy -------------------------------------------------------------------------------------

# By contents: what is the same keeps its time and is not built again, and what a broken run left
# planted gets a new time.
bring() {
  cmp -s "$root/$1" "$copy/$1" && return
  mkdir -p "$(dirname "$copy/$1")"
  cp "$root/$1" "$copy/$1"
}
sources() {
  git ls-files -co --exclude-standard | grep -v '^tests/plants/' |
    while read -r file; do [ -f "$file" ] && printf '%s\n' "$file"; done | sort
}
bring_all() {
  mkdir -p "$copy" "$logs"
  sources >"$logs/sources"
  (cd "$copy" && find . -type f) | sed 's,^\./,,' | grep -vE '^(build|logs|home)/' | sort |
    comm -13 "$logs/sources" - | while read -r gone; do rm "$copy/$gone"; done
  while read -r file; do bring "$file"; done <"$logs/sources"
}

# --- one fault ------------------------------------------------------------------------------------

planted_files() { sed -n 's,^+++ b/\([^[:blank:]]*\).*,\1,p' "$1"; }
restore() {
  for file in $(planted_files "$1"); do
    rm -f "$copy/$file.orig" "$copy/$file.rej"
    [ -f "$root/$file" ] && bring "$file"
  done
}
# Few lines around the change are enough to find its place again.
apply() { patch -d "$copy" -p1 -F3 -N -s --no-backup-if-mismatch -r - <"$1"; }
make_program() { cmake --build "$build" --target "$1"; }
# In a home of its own: a planted fault may write and delete where it should not.
run_once() {
  rm -rf "$home"
  mkdir -p "$home/tmp"
  (cd "$build" && HOME=$home TMPDIR=$home/tmp QT_QPA_PLATFORM=offscreen \
    timeout "$limit" "bin/$1" --gtest_brief=1 --gtest_fail_fast)
}
# A busy machine can be late once.
run_program() {
  run_once "$1"
  code=$?
  [ "$code" -ne 124 ] || { run_once "$1"; code=$?; }
  return "$code"
}
sum_of() { cksum <"$build/bin/$1"; }

# The outcome of the fault in $1, and what noticed it.
try() {
  if ! apply "$1"; then
    outcome="does not apply"
    return
  fi
  outcome=missed
  for program in $programs; do
    if ! make_program "$program"; then
      outcome="does not build"
      return
    fi
    # A program that the fault does not reach says what it said before.
    [ "$(sum_of "$program")" = "$(cat "$logs/$program.sum")" ] && continue
    run_program "$program" >"$logs/run" 2>&1 && continue
    cat "$logs/run"
    outcome=caught
    witness=$(sed -n 's/^\[  FAILED  \] \([^ ,]*\.[^ ,]*\).*/\1/p' "$logs/run" | head -n 1)
    [ -n "$witness" ] || witness="$program ends or hangs"
    return
  done
}

# --- all of them ----------------------------------------------------------------------------------

bring_all
if ! cmake -G Ninja -S "$copy" -B "$build" -DCMAKE_BUILD_TYPE=None -DCMAKE_CXX_FLAGS=-O0 \
  -DVK_BENCH=OFF >"$logs/configure.log" 2>&1; then
  tail -n 40 "$logs/configure.log" >&2
  exit 2
fi
for program in $programs; do
  { make_program "$program" && run_program "$program"; } >"$logs/$program.log" 2>&1 || {
    tail -n 40 "$logs/$program.log" >&2
    echo "without any fault $program does not pass" >&2
    exit 2
  }
  sum_of "$program" >"$logs/$program.sum"
done

plant=
trap '[ -z "$plant" ] || restore "$plant"' EXIT
trap 'exit 130' INT TERM
count=0 caught=0 visible=0 visible_caught=0
for plant in "$root"/tests/plants/*.patch; do
  name=$(basename "$plant" .patch)
  printf '%s\n' "$name" | grep -qE -- "$only" || continue
  outcome=missed
  witness=
  try "$plant" >"$logs/$name.log" 2>&1
  restore "$plant"
  seen=$(sed -n 's/^visible: //p' "$plant" | head -n 1)
  count=$((count + 1))
  [ "$seen" = yes ] && visible=$((visible + 1))
  if [ "$outcome" = caught ]; then
    caught=$((caught + 1))
    [ "$seen" = yes ] && visible_caught=$((visible_caught + 1))
  fi
  printf '%-15s %-44s %s\n' "$outcome" "$name" "$witness"
done
if [ "$count" -eq 0 ]; then
  echo "no such plant: $only" >&2
  exit 2
fi
echo "$count plants, $caught caught; of those a user could see: $visible_caught of $visible"
[ $((visible_caught * 10)) -ge $((visible * 9)) ]
