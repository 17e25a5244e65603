#!/usr/bin/env bash
# Builds everything and runs every test: the release build, then the same tests
# built with the address and undefined-behaviour sanitizers.
# ZOLT_SANITIZERS=0 skips the second run.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
export QT_QPA_PLATFORM=offscreen
ctest --preset release
if [ "${ZOLT_SANITIZERS:-1}" != 0 ]; then
    cmake --preset debug >/dev/null
    cmake --build --preset debug
    ctest --preset debug
fi
