#!/usr/bin/env bash
# Draws the slides of the help anew, from the program's own windows, into Resources/. Takes a build
# of the preset "dev", or of the one that is named.
set -euo pipefail
cd "$(dirname "$0")/.."

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
QT_QPA_PLATFORM=offscreen "build/${1:-dev}/tools/tour/tessarin_tour" --slides Resources --out "$work"
