#!/bin/sh
# Installs what is missing, builds and passes all tests.
set -eu
cd "$(dirname "$0")"
scripts/install-packages.sh
scripts/build.sh release
ctest --preset release -j "$(nproc)"
