#!/usr/bin/env bash
# Renders packaging/icons/zolt.svg into the PNG sizes of the freedesktop icon
# theme, packaging/icons/hicolor/NxN/apps/zolt.png. The PNGs are committed, so
# only a change of the drawing needs this (rsvg-convert: apt-get install librsvg2-bin).
set -euo pipefail
cd "$(dirname "$0")/../packaging/icons"
command -v rsvg-convert >/dev/null || {
    echo "render-icons: rsvg-convert is missing (apt-get install librsvg2-bin)" >&2
    exit 1
}
for size in 16 22 24 32 48 64 128 256; do
    mkdir -p "hicolor/${size}x${size}/apps"
    rsvg-convert -w "$size" -h "$size" zolt.svg -o "hicolor/${size}x${size}/apps/zolt.png"
done
