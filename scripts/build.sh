#!/usr/bin/env bash
# build.sh PRESET [TARGET...]: installs what is missing, then configures and builds that preset, or the
# targets of it that are named.
# With TESSARIN_NO_INSTALL=1 nothing is installed.
set -euo pipefail
cd "$(dirname "$0")/.."

preset=$1
shift
if [ "${TESSARIN_NO_INSTALL:-0}" != 1 ]; then
    case "$preset" in
    bench) scripts/install-dependencies.sh bench ;;
    fuzz | pixels-*) scripts/install-dependencies.sh clang ;;
    *) scripts/install-dependencies.sh ;;
    esac
fi
if command -v brew >/dev/null 2>&1 && [ -d "$(brew --prefix qt@5 2>/dev/null)" ]; then
    CMAKE_PREFIX_PATH="$(brew --prefix qt@5)${CMAKE_PREFIX_PATH:+:$CMAKE_PREFIX_PATH}"
    export CMAKE_PREFIX_PATH
fi
cmake --preset "$preset"
cmake --build --preset "$preset" ${1:+--target "$@"}
