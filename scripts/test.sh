#!/usr/bin/env bash
# Installs what is missing, builds everything and runs every test, without a display.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j"$(nproc)"
cd build
QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j"$(nproc)"
