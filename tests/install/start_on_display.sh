#!/usr/bin/env bash
# The program on a real X display, as a user starts it: every file it needs at run time is there
# (the sounds, both modules with their libraries, its face regular and bold, Qt's Italian texts,
# the X platform plugin), and it gets through its first paint and everything it loads after it.
set -euo pipefail
program=$1
fail() { echo "FAIL: $*" >&2; exit 1; }
on_display() {
    xvfb-run -a -s "-screen 0 1280x800x24" env -u WAYLAND_DISPLAY QT_QPA_PLATFORM=xcb "$@"
}

report=$(on_display env CONTARELLO_CHECK_FILES=1 "$program" 2>&1) || fail "files are missing:"$'\n'"$report"
grep -q "^ok      platform xcb$" <<<"$report" || fail "not on the X display:"$'\n'"$report"
echo "$report"
start=$(on_display env CONTARELLO_EXIT_AFTER_FIRST_PAINT=1 "$program" 2>&1) ||
    fail "the program did not get through its start:"$'\n'"$start"
echo "started on an X display to its first paint, then loaded what it loads after it"
