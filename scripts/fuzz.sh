#!/usr/bin/env bash
# Runs each fuzz target of build-fuzz for so many seconds (30 unless told), two at a time, from the
# seeds in fuzz/corpus. A broken property or a sanitizer report stops the target; the input that
# did it is kept in build-fuzz/artifacts/ and the script fails.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds="${1:-30}"
jobs="$(nproc)"
mkdir -p build-fuzz/artifacts
rm -f build-fuzz/*.log
status=0
pids=()
names=()
for target in build-fuzz/fuzz_*; do
    [ -f "$target" ] && [ -x "$target" ] || continue
    name="${target#build-fuzz/fuzz_}"
    work="build-fuzz/corpus/$name"
    mkdir -p "$work"
    # New inputs go to the work folder; the seeds in the repository are only read.
    "$target" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 \
        -artifact_prefix="build-fuzz/artifacts/$name-" "$work" "fuzz/corpus/$name" \
        >"build-fuzz/$name.log" 2>&1 &
    pids+=($!)
    names+=("$name")
    if [ ${#pids[@]} -ge "$jobs" ]; then
        wait "${pids[0]}" || { status=1; echo "fuzz: ${names[0]} failed, see build-fuzz/${names[0]}.log"; tail -20 "build-fuzz/${names[0]}.log"; }
        pids=("${pids[@]:1}")
        names=("${names[@]:1}")
    fi
done
for i in "${!pids[@]}"; do
    wait "${pids[$i]}" || { status=1; echo "fuzz: ${names[$i]} failed, see build-fuzz/${names[$i]}.log"; tail -20 "build-fuzz/${names[$i]}.log"; }
done
for log in build-fuzz/*.log; do
    echo "fuzz: $(basename "$log" .log): $(grep -m1 -o 'stat::number_of_executed_units: *[0-9]*' "$log" || echo 'no stats')"
done
exit $status
