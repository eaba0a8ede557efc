#!/usr/bin/env bash
# Renders the drawings of this folder. Wants rsvg-convert (Debian: librsvg2-bin).
set -euo pipefail
cd "$(dirname "$0")"
rsvg-convert -w 16 -h 16 icon-small.svg -o icon-16.png
for size in 32 48 64 128 256; do
    rsvg-convert -w "$size" -h "$size" icon.svg -o "icon-$size.png"
done
rsvg-convert -w 480 -h 300 splash.svg -o splash.png
rsvg-convert -w 960 -h 600 splash.svg -o splash@2x.png
