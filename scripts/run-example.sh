#!/usr/bin/env bash
# Builds the program and runs it on the bundled example harness.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh >/dev/null
exec build/release/bin/zolt-cli batch examples/harness.zcmd
