#!/usr/bin/env bash
# Runs the first command of the README as a machine without a display does, and looks for what it
# promises: an exit code of 0, results, and pictures of the windows.
set -euo pipefail
cd "$(dirname "$0")/.."

fail() {
    echo "check-run: $*" >&2
    exit 1
}

room=$(mktemp -d)
trap 'rm -rf "$room"' EXIT
env -u DISPLAY -u WAYLAND_DISPLAY -u QT_SCALE_FACTOR scripts/run.sh --out "$room" ||
    fail "scripts/run.sh ended with exit code $?"
results=$(find "$room/home" -name '*.jpeg' -path '*/Pictures/*' -size +0 | wc -l)
pictures=$(find "$room/pictures" -name '*.png' -size +0 | wc -l)
[ "$results" -gt 0 ] || fail "there are no results"
[ "$pictures" -gt 0 ] || fail "there are no pictures of the windows"
echo "check-run: $results results and $pictures pictures"
