#!/usr/bin/env bash
# Builds Tessarin and opens it. Where there is no display, a tour drives its windows through the main
# job instead, and leaves the processed photos and pictures of all windows in a folder.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh release Tessarin tessarin_tour
# The program looks for "Resources/" in the folder it is started from: here.
if [ "$(uname)" = Darwin ] || [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
    program=build/release/app/Tessarin
    [ ! -d $program.app ] || program=$program.app/Contents/MacOS/Tessarin
    exec $program "$@"
fi
echo "There is no display: the tour takes a few sample photos through the program instead."
QT_QPA_PLATFORM=offscreen exec build/release/tools/tour/tessarin_tour "$@"
