#!/bin/sh
# Installs the Debian 12 packages that are missing. Every package is listed here and nowhere else.
#   install-packages.sh        what building, running and testing need
#   install-packages.sh ci     also what the fuzz run and clang-tidy need
set -eu

packages="
  g++ cmake ninja-build ccache
  qt6-base-dev libfmt-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  xvfb xauth openbox xdotool
  fonts-liberation fonts-ipafont-gothic
"
[ "${1:-}" = ci ] && packages="$packages clang-14 libclang-rt-14-dev clang-tidy-14"

missing=
for package in $packages; do
  state=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)
  [ "$state" = installed ] || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

sudo=
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || {
    echo "These packages are missing and need root to install:$missing" >&2
    exit 1
  }
  sudo=sudo
fi
echo "Installing:$missing"
export DEBIAN_FRONTEND=noninteractive
# The package lists may be absent (a fresh system) or old; refresh them only when they are needed.
# shellcheck disable=SC2086
if ! $sudo apt-get install -y -q --no-install-recommends $missing >/dev/null 2>&1; then
  $sudo apt-get update -q
  $sudo apt-get install -y -q --no-install-recommends $missing
fi
