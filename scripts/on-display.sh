#!/bin/sh
# Starts a window manager on the display, runs the command and ends both with its result.
set -eu
openbox >/dev/null 2>&1 &
manager=$!
# A window shown before the manager is ready may stay unpainted.
tries=0
until xdotool get_num_desktops >/dev/null 2>&1 || [ "$tries" -ge 50 ]; do
  tries=$((tries + 1))
  sleep 0.1
done
result=0
"$@" || result=$?
kill "$manager" 2>/dev/null || true
exit "$result"
