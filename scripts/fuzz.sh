#!/usr/bin/env bash
# fuzz.sh [SECONDS [TARGET...]]: builds the fuzz targets and runs each for so long, 60 seconds if
# nothing is told, one after the other. Fails if one finds something; what it has found then lies in
# build/fuzz/findings, and its target reproduces it when it gets that file as its only argument.
# With FUZZ_BUILT=1 set the targets are run as they are built: several calls may run at the same time
# then, each with targets of its own.
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${1:-60}
shift || true
[ $# -gt 0 ] || set -- parameters data-url flow image update

[ "${FUZZ_BUILT:-0}" = 1 ] || scripts/build.sh fuzz

export ASAN_OPTIONS=detect_stack_use_after_return=1
export UBSAN_OPTIONS=print_stacktrace=1
export LSAN_OPTIONS=suppressions=$PWD/tests/lsan.supp:print_suppressions=0
findings=build/fuzz/findings
mkdir -p "$findings"

failed=0
for target in "$@"; do
    # What is new goes into a folder of the build's own; the committed corpus is only read.
    corpus=build/fuzz/corpus/$target
    log=build/fuzz/$target.log
    rm -rf "$corpus"
    mkdir -p "$corpus"
    sources=("$corpus")
    if [ "$target" = image ]; then
        sources+=("$corpus-seeds")
        rm -rf "$corpus-seeds"
        mkdir -p "$corpus-seeds"
        build/fuzz/fuzz/fuzz-image-seeds "$corpus-seeds"
    else
        sources+=(fuzz/corpus/"$target")
    fi
    # An image may take 2 GiB, so a single allocation may, and filling it takes a busy machine
    # minutes under the sanitizers: only what takes much longer is a hang.
    outcome=well
    nice -n 19 build/fuzz/fuzz/fuzz-"$target" "${sources[@]}" \
        -max_total_time="$seconds" -timeout=300 -report_slow_units=300 \
        -rss_limit_mb=6144 -malloc_limit_mb=2304 -max_len=16384 -print_final_stats=1 \
        -dict=fuzz/"$target".dict -artifact_prefix="$findings/$target-" \
        >"$log" 2>&1 || outcome=FAILED
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
    [ "${runs:-0}" -gt 0 ] || outcome=FAILED
    took=$(sed -n 's/^Done .* runs in \([0-9]*\) second.*/\1/p' "$log")
    echo "fuzz $target: $outcome, ${runs:-0} executions in ${took:-?} s"
    if [ $outcome = FAILED ]; then
        tail -n 60 "$log"
        failed=1
    fi
done
exit $failed
