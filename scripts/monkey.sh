#!/usr/bin/env bash
# The long monkey run: so many random user actions in all (a million unless told) under the
# sanitizers, one seed per core, each on its own part. Needs build-asan, as scripts/test.sh leaves it.
# The first seed is the second argument (1000 unless told); a failure names its seed and its last
# commands, and `CONTARELLO_MONKEY_SEED=<seed> CONTARELLO_MONKEY_ACTIONS=<n>` replays it.
set -euo pipefail
cd "$(dirname "$0")/../build-asan"
total="${1:-1000000}"
first="${2:-1000}"
jobs="$(nproc)"
# The program's heap stays near 16 MB; the sanitizer's allocator, left to itself, keeps 256 MB of
# freed blocks aside and gives back nothing, so a run grew by about 9 MB every thousand actions.
# A quarter of that quarantine still dwarfs the heap, and freed pages go back every second.
export ASAN_OPTIONS=detect_leaks=1:quarantine_size_mb=64:allocator_release_to_os_interval_ms=1000
export QT_QPA_PLATFORM=offscreen UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
# A run of one seed takes far longer than QtTest lets one test function run by default.
export QTEST_FUNCTION_TIMEOUT=$((24 * 3600 * 1000))
export LSAN_OPTIONS="suppressions=$PWD/../tests/sanitizers/lsan.supp:print_suppressions=0"
pids=()
for ((i = 0; i < jobs; i++)); do
    CONTARELLO_MONKEY_SEED=$((first + i)) CONTARELLO_MONKEY_ACTIONS=$((total / jobs)) \
        ./test_shell_monkey randomUse >"monkey-$((first + i)).log" 2>&1 &
    pids+=($!)
done
status=0
for ((i = 0; i < jobs; i++)); do
    if wait "${pids[$i]}"; then
        grep -h "actions," "monkey-$((first + i)).log" | tail -1 || true
    else
        status=1
        echo "seed $((first + i)) failed:"
        tail -60 "monkey-$((first + i)).log"
    fi
done
exit $status
