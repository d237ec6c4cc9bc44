#!/usr/bin/env bash
# stress.sh [COUNT [LARGEST_WIDTH [KILLS]]]: a batch of so many photos (1000), among them unreadable,
# deleted and unwritable ones and one as large as told (30000 by 20000), and a shorter one whose
# operations need no second image; a batch whose disk fills up; and so many sudden ends (20) in the
# middle of saving a flow, and as many in the middle of a run. Takes minutes and, with the default
# width, 6 GB of memory. With STRESS_PROGRAM set, that program is run and none built.
set -euo pipefail
cd "$(dirname "$0")/.."

count=${1:-1000}
width=${2:-30000}
kills=${3:-20}
if [ -z "${STRESS_PROGRAM:-}" ]; then
    scripts/build.sh release
    STRESS_PROGRAM=build/release/tools/stress/tessarin_stress
fi

# Everything happens in a home of its own.
work=$(mktemp -d)
pictures=$work/home/Pictures
cleanup() {
    ! mountpoint -q "$pictures" || umount "$pictures"
    rm -rf "$work"
}
trap cleanup EXIT
mkdir -p "$pictures" "$work/runtime"
chmod 700 "$work/runtime"
# Takes the place of the shell that calls it, so that a signal to that one reaches the program.
stress() {
    exec env HOME="$work/home" XDG_CONFIG_HOME="$work/config" XDG_DATA_HOME="$work/data" \
        XDG_CACHE_HOME="$work/cache" XDG_RUNTIME_DIR="$work/runtime" QT_QPA_PLATFORM=offscreen \
        QT_LOGGING_RULES="*.warning=false" nice -n 19 "$STRESS_PROGRAM" "$@"
}
# Starts a part and ends it without a word so many milliseconds after its first line. A machine so
# fast that the part is well done by then tries again with half the time.
killed_after() {
    local milliseconds=$1 out=$work/out code=0
    shift
    : >"$out"
    stress "$@" >"$out" 2>&1 &
    local job=$!
    while kill -0 $job 2>/dev/null && ! grep -q ready "$out"; do sleep 0.05; done
    sleep "$((milliseconds / 1000)).$(printf %03d $((milliseconds % 1000)))"
    kill -KILL $job 2>/dev/null || true
    wait $job 2>/dev/null || code=$?
    if [ $code -eq 0 ] && [ "$milliseconds" -gt 0 ]; then
        killed_after $((milliseconds / 2)) "$@"
    elif [ $code -ne $((128 + 9)) ]; then
        echo "ended by itself with exit code $code:"
        cat "$out"
        return 1
    fi
}

echo "A long batch:"
(stress batch "$count" "$width")
(stress same-shape 60 "$width")

echo "A full disk:"
if mount -t tmpfs -o size=1m tmpfs "$pictures" 2>/dev/null; then
    (stress full-disk 60 800)
    mount -o remount,size=64m "$pictures"
    (stress batch 60 800)
    umount "$pictures"
else
    echo "skipped: only root can mount a small disk"
fi

echo "Sudden ends:"
for ((i = 1; i <= kills; ++i)); do
    killed_after $((RANDOM % 400)) save
    (stress check)
done
for ((i = 1; i <= kills; ++i)); do
    killed_after $((100 + RANDOM % 500)) batch 200 3000
    (stress check-results)
done
(stress batch 60 800)
