#!/usr/bin/env bash
# fuzz.sh [SECONDS [TARGET...]]: builds the fuzz targets and runs each for so long, 60 seconds if
# nothing is told, two at a time, since one may take gigabytes. Fails if one finds something; what it
# has found then lies in build/fuzz/findings, and its target reproduces it when it gets that file as
# its only argument. With FUZZ_BUILT=1 set the targets are run as they are built: several calls may
# run at the same time then, each with targets of its own.
set -euo pipefail
cd "$(dirname "$0")/.."

export seconds=${1:-60}
shift || true
[ $# -gt 0 ] || set -- parameters data-url flow image update

[ "${FUZZ_BUILT:-0}" = 1 ] || scripts/build.sh fuzz

export ASAN_OPTIONS=detect_stack_use_after_return=1
export UBSAN_OPTIONS=print_stacktrace=1
export LSAN_OPTIONS=suppressions=$PWD/tests/lsan.supp:print_suppressions=0
export findings=build/fuzz/findings
mkdir -p "$findings"

# What is new goes into a folder of the build's own; the committed corpus is only read.
run_target() {
    local target=$1
    local corpus=build/fuzz/corpus/$target log=build/fuzz/$target.log
    rm -rf "$corpus"
    mkdir -p "$corpus"
    local seeds=fuzz/corpus/$target
    if [ "$target" = image ]; then
        seeds=$corpus-seeds
        rm -rf "$seeds"
        mkdir -p "$seeds"
        build/fuzz/fuzz/fuzz-image-seeds "$seeds"
    fi
    # An image may take 2 GiB, so a single allocation may, and filling it takes a busy machine
    # minutes under the sanitizers: only what takes much longer is a hang.
    local outcome=well
    nice -n 19 build/fuzz/fuzz/fuzz-"$target" "$corpus" "$seeds" \
        -max_total_time="$seconds" -timeout=300 -report_slow_units=300 \
        -rss_limit_mb=6144 -malloc_limit_mb=2304 -max_len=16384 -print_final_stats=1 \
        -dict=fuzz/"$target".dict -artifact_prefix="$findings/$target-" \
        >"$log" 2>&1 || outcome=FAILED
    local runs took
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
    [ "${runs:-0}" -gt 0 ] || outcome=FAILED
    took=$(sed -n 's/^Done .* runs in \([0-9]*\) second.*/\1/p' "$log")
    echo "fuzz $target: $outcome, ${runs:-0} executions in ${took:-?} s"
    [ $outcome = well ] || { tail -n 60 "$log" && false; }
}
export -f run_target
printf '%s\n' "$@" | xargs -P 2 -I '{}' bash -euc 'run_target {}'
