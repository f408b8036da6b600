#!/bin/sh
# Configures and builds one preset: build.sh release [target...]
set -eu
cd "$(dirname "$0")/.."
preset=$1
shift
if [ ! -f "build/$preset/build.ninja" ]; then
  mkdir -p "build/$preset"
  log=build/$preset/configure.log
  cmake --preset "$preset" >"$log" 2>&1 || {
    cat "$log"
    exit 1
  }
fi
if [ $# -gt 0 ]; then
  cmake --build --preset "$preset" --target "$@"
else
  cmake --build --preset "$preset"
fi
