#!/bin/sh
# Starts a window manager on the display, runs the command and ends both with its result.
set -eu
openbox >/dev/null 2>&1 &
manager=$!
result=0
"$@" || result=$?
kill "$manager" 2>/dev/null || true
exit "$result"
