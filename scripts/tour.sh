#!/bin/sh
# Runs the tour on a virtual display: tour.sh <build folder> [output folder]
# The recorders are copies of the simulated ones whose time runs faster, the settings go to the
# output folder, and nothing of the user's own is touched.
set -eu
cd "$(dirname "$0")/.."
build=$(cd "$1" && pwd)
output=${2:-demo-output}
rm -rf "$output"
mkdir -p "$output"
output=$(cd "$output" && pwd)

recorders=$(mktemp -d)
trap 'rm -rf "$recorders"' EXIT
cp "$build/lib/libvk240q_lib.so" "$recorders/"
printf 'speed = 8\n' > "$recorders/vk240q-sim.conf"

# The second run finds the monitors that the first one left open.
for run in "" again; do
  LD_LIBRARY_PATH=$recorders XDG_DATA_HOME=$output/settings \
    xvfb-run -a -s "-screen 0 1366x900x24" \
    scripts/on-display.sh "$build/bin/vk480q-tour" "$output" $run
done
