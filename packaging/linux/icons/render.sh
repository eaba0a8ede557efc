#!/usr/bin/env bash
# Renders the icons of the file types from 16 to 256 pixels. Wants rsvg-convert (Debian:
# librsvg2-bin).
set -euo pipefail
cd "$(dirname "$0")"
for drawing in iconset iconset-template; do
    rsvg-convert -w 16 -h 16 "$drawing-small.svg" -o "${drawing}16.png"
    for size in 32 48 64 128 256; do
        rsvg-convert -w "$size" -h "$size" "$drawing.svg" -o "$drawing$size.png"
    done
done
