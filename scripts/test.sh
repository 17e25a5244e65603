#!/usr/bin/env bash
# Builds everything and runs every test (release preset).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
export QT_QPA_PLATFORM=offscreen
ctest --preset release
