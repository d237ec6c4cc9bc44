#!/usr/bin/env bash
# Builds Tessarin and runs its tests. Argument: the preset to test, "release" if there is none.
set -euo pipefail
cd "$(dirname "$0")/.."

preset=${1:-release}
scripts/build.sh "$preset"
ctest --preset "$preset"
