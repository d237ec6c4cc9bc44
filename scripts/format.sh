#!/usr/bin/env bash
# Formats all sources; with --check it only tells what isn't formatted, and fails.
set -euo pipefail
cd "$(dirname "$0")/.."

mode=(-i)
[ "${1:-}" = --check ] && mode=(--dry-run -Werror)
git ls-files -z --cached --others --exclude-standard '*.cpp' '*.h' | xargs -0 clang-format-14 "${mode[@]}"
