#!/usr/bin/env bash
# Builds ZOLT and opens the bundled example harness, examples/harness.zlf, in
# the desktop app; without a display it prints the example as JSON instead.
# examples/harness.zlf is what examples/harness.zcmd writes (zolt-cli batch);
# the end-to-end tests hold the two together.
set -euo pipefail
cd "$(dirname "$0")/.."

example=examples/harness.zlf
if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
    targets=(zolt-cli zolt)
else
    targets=(zolt-cli)
fi

# The build talks a lot: keep it in a log and show its end only when it fails.
mkdir -p build
log=build/run-example.log
if ! bash scripts/setup.sh "${targets[@]}" >"$log" 2>&1; then
    echo "run-example: the build failed; the end of $log:" >&2
    tail -n 40 "$log" >&2
    exit 1
fi

if [ ${#targets[@]} -eq 2 ]; then
    exec build/release/bin/zolt "$example"
fi
echo "run-example: no display (DISPLAY and WAYLAND_DISPLAY are unset): showing $example as JSON with zolt-cli dump." >&2
exec build/release/bin/zolt-cli dump "$example"
