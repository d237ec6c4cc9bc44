#!/usr/bin/env bash
# check-hardening.sh [PROGRAM]: looks whether a program (the release build's, if none is named) guards
# its stack and its memory, and lies at addresses that nobody knows beforehand.
set -euo pipefail
cd "$(dirname "$0")/.."

program=${1:-build/release/app/Tessarin}
fail() {
    echo "check-hardening: $program $*" >&2
    exit 1
}
if [ "$(uname)" != Linux ] || ! command -v readelf >/dev/null 2>&1; then
    echo "check-hardening: skipped, since there is no readelf"
    exit 0
fi

header=$(readelf -hW "$program")
segments=$(readelf -lW "$program")
dynamic=$(readelf -dW "$program")
symbols=$(readelf --dyn-syms -W "$program")
grep -q 'Type: *DYN' <<<"$header" || fail "has a fixed address"
grep -q 'GNU_RELRO' <<<"$segments" || fail "leaves its relocations writable"
grep -Eq 'BIND_NOW|Flags:.* NOW' <<<"$dynamic" || fail "binds functions while it runs"
grep -q '__stack_chk_fail' <<<"$symbols" || fail "has no guard of the stack"
grep -q '__glibcxx_assert_fail' <<<"$symbols" || fail "does not check what containers are asked for"
! grep 'GNU_STACK' <<<"$segments" | grep -q E || fail "can execute its stack"
echo "check-hardening: $program guards itself"
