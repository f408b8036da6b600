#!/bin/sh
# Rules about the sources that no compiler checks. Prints each offence and fails when there is one.
set -u
cd "$(dirname "$0")/../.."
order=tests/hygiene/module_order.txt
failed=0
complain() {
  printf '%s\n' "$1"
  failed=1
}

files=$(git ls-files 2>/dev/null)
[ -n "$files" ] || files=$(find . -path ./build -prune -o -path ./demo-output -prune -o \
  -path ./.git -prune -o -type f -print | sed 's,^\./,,')
sources=$(printf '%s\n' "$files" | grep -E '\.(cpp|h)$')
# The floors of the house, bottom first; a folder includes itself and folders of lower floors.
floors='
base
desktop recorder
link
conditions storage monitors
viewer maintenance
shell
app
tour
'
folders='base|recorder|link|conditions|storage|monitors|viewer|maintenance|shell'
logic=$(printf '%s\n' "$sources" | grep -E "^($folders)/(mdl|cls|vk240q)")

# Every logic module has its place, and includes only modules before it.
for file in $logic; do
  module=${file%.*}
  place=$(grep -nxF "$module" "$order" | cut -d: -f1)
  [ -n "$place" ] || { complain "$file: not listed in $order"; continue; }
  for include in $(sed -n 's/^#include "\([^"]*\)\.h".*/\1/p' "$file"); do
    [ "$include" = "$module" ] && continue
    other=$(grep -nxF "$include" "$order" | cut -d: -f1)
    if [ -z "$other" ]; then
      complain "$file: logic includes $include, which is no logic module"
    elif [ "$other" -ge "$place" ]; then
      complain "$file: includes $include, which stands after it in $order"
    fi
  done
done

# Folders stand on floors, forms included.
floor_of() { printf '%s\n' "$floors" | grep -nw -- "$1" | cut -d: -f1; }
for file in $(printf '%s\n' "$sources" | grep -E "^($folders|desktop|app|tour)/"); do
  own=${file%%/*}
  for other in $(sed -n 's,^#include "\([a-z]*\)/.*,\1,p' "$file" | sort -u); do
    [ "$other" = "$own" ] && continue
    below=$(floor_of "$other")
    if [ -z "$below" ] || [ "$below" -ge "$(floor_of "$own")" ]; then
      complain "$file: includes $other/, which is not on a lower floor"
    fi
  done
done

# A file's prefix tells the build its layer, and a test its subject; a test file holds a test.
for file in $(printf '%s\n' "$sources" | grep -E "^(tests/)?($folders)/[^/]*\.cpp$"); do
  case ${file##*/} in
  mdl* | cls* | frm* | mdi*) ;;
  *) complain "$file: unknown prefix" ;;
  esac
done
for file in $(printf '%s\n' "$sources" | grep -E '_test\.cpp$'); do
  grep -qE '^(TEST|TEST_F|TEST_P|TYPED_TEST)\(' "$file" || complain "$file: holds no test"
done
for file in $(printf '%s\n' "$sources" | grep -E '^tests/.*\.cpp$' | grep -vE '^tests/support/'); do
  case $file in
  *_test.cpp) ;;
  *) complain "$file: a test file ends in _test.cpp" ;;
  esac
done

# Logic knows no Qt, also not by an include in angle brackets.
for file in $logic; do
  grep -nE '#include <(Q[A-Z]|Qt)' "$file" /dev/null && complain "$file: logic includes Qt"
done

# Qt headers one by one, never a whole module's.
for file in $sources; do
  grep -nE '#include <Qt(Core|Gui|Widgets|Test|PrintSupport)(/Qt[A-Z][a-z]+)?>' "$file" /dev/null &&
    complain "$file: umbrella include"
done

# What stands behind the C interface shares it with the program, and nothing else; nor does one
# instrument library know another. That the program knows none is a matter of floors.
for file in $(printf '%s\n' "$sources" | grep -E '^instrument/'); do
  own=$(printf '%s\n' "$file" | cut -d/ -f1-2)
  grep -n '#include "' "$file" | grep -vE "\"(link/vk240q_lib\.h|$own/)" &&
    complain "$file: includes a file from outside $own"
done

# Every source names its licence; no tabs, no blanks at line ends, a line end at the end.
for file in $sources; do
  head -n 2 "$file" | grep -q 'SPDX-License-Identifier: MIT' || complain "$file: no licence line"
done
tab=$(printf '\t')
for file in $(printf '%s\n' "$files" | grep -vE '\.(png|svg|ico|cfg|bin)$|^fuzz/corpus/|^tests/data/'); do
  [ -f "$file" ] || continue
  grep -nE "[ $tab]+\$" "$file" /dev/null && complain "$file: blanks at a line end"
  grep -n "$tab" "$file" /dev/null && complain "$file: tab"
  [ -z "$(tail -c 1 "$file")" ] || complain "$file: no line end at the end"
done

# The project speaks of the program alone. The words are put together so that this file passes.
words="\\bspec""ification\\b|\\bspec\\.md\\b|\\bthe sp""ec\\b|\\bPa""rt [1-7]\\.[1-8]\\b|\\biss""ue [0-9]+\\b"
for file in $(printf '%s\n' "$files" | grep -v '^DEVELOPERS.md$'); do
  [ -f "$file" ] || continue
  grep -nIiE "$words" "$file" /dev/null && complain "$file: speaks of the document it was built from"
done

[ "$failed" -eq 0 ] && echo "hygiene: clean"
exit "$failed"
