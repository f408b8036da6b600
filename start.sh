#!/bin/sh
# Installs what is missing, builds, and runs the program. Without a display it runs a scripted
# tour of the main job on a virtual one and leaves screenshots and files in demo-output/.
set -eu
cd "$(dirname "$0")"
scripts/install-packages.sh
if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
  scripts/build.sh release vk480q-controller vk240q_lib
  exec build/release/bin/vk480q-controller
fi
echo "No display: running the tour on a virtual one; look into demo-output/ afterwards."
scripts/build.sh release vk480q-controller vk240q_lib vk480q-tour
scripts/tour.sh build/release
