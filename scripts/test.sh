#!/usr/bin/env bash
# Installs what is missing, builds everything and runs every test, without a display: first the
# normal build, then the same tests built with AddressSanitizer and UndefinedBehaviorSanitizer
# (build-asan, leaks detected), then each fuzz target of the language functions for 30 seconds.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
jobs="$(nproc)"

cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j"$jobs"
(cd build && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j"$jobs")

cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCONTARELLO_SANITIZE=ON -DCONTARELLO_BENCH=OFF >/dev/null
cmake --build build-asan -j"$jobs"
(cd build-asan && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j"$jobs")

cmake -S . -B build-fuzz -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCONTARELLO_FUZZ=ON \
    -DCONTARELLO_TESTS=OFF -DCONTARELLO_BENCH=OFF >/dev/null
cmake --build build-fuzz --target fuzzers -j"$jobs"
bash scripts/fuzz.sh 30
