#!/usr/bin/env bash
# Runs chosen test functions under valgrind's memcheck, for a minute or two in all, and fails if it
# finds something. Unlike the sanitizers it watches the toolkit too, which reads what the program
# hands it, and it knows bytes that were never written. Leaks are the sanitizers' business.
# With MEMCHECK_PRESET set, that preset's tests are run as they are built.
set -euo pipefail
cd "$(dirname "$0")/.."

export preset=${MEMCHECK_PRESET:-}
if [ -z "$preset" ]; then
    preset=dev
    scripts/install-dependencies.sh memcheck
    scripts/build.sh dev
fi

functions=(
    MGraphX/tst_mgraphx:detailEqualsPlainLoops
    MGraphX/tst_mgraphx:stripsOfAllSizes
    MGraphX/tst_mgraphx:geometryEqualsPlainLoops
    MGraphX/tst_mgraphx:dataUrlRoundTrip
    MGraphX/tst_mgraphx:otherTextsGiveNoImage
    MGraphX/tst_mgraphx:smallerDepths
    MGraphX/tst_mgraphx:channelsEqualPlainLoops
    intake/tst_intake:newPhotosMayComeInTheRunOfTheStrip
    flow/tst_flow:aNodeMayGoInTheRunThatItsOwnControlStarted
    flow/tst_flow:aFlowOfAllOperationsComesBack
    flow/tst_flow:numbersOutOfAllRangeDoNoHarm
    flow/tst_flow:aPartOfAScaledMarkIsAsInTheWhole
    batch/tst_batch:whatFailsIsPassedOverWithOneLineInTheLog
)

# The code that regular expressions compile to reads texts in strides beyond their end, and takes no
# notice of what it finds there.
export QT_ENABLE_REGEXP_JIT=0
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 TZ=UTC
# Prints one line, and what was found if there is something.
run_function() {
    local program=build/$preset/tests/${1%:*} name=${1##*:} start=$SECONDS outcome=clean log
    # A name that no test has would run nothing, and so find nothing.
    log=$(nice valgrind -q --error-exitcode=99 --leak-check=no --num-callers=25 \
        "$program" "$name" 2>&1) && grep -q "^PASS *: .*::$name(" <<<"$log" || outcome=FAILED
    echo "memcheck $name: $outcome, $((SECONDS - start)) s"
    [ $outcome = clean ] || { grep -vE '^(PASS|QWARN|Config)' <<<"$log" | head -n 80 && false; }
}
export -f run_function
printf '%s\n' "${functions[@]}" |
    xargs -P "$(getconf _NPROCESSORS_ONLN)" -I '{}' bash -uc 'run_function {}'
