#!/usr/bin/env bash
# Renders the drawings of this folder: 16 pixels and 32 ("@2x") for tree and buttons, 24 for the
# pointer, the program's icon from 16 to 256 pixels, and the picture of the first window. Wants
# rsvg-convert (Debian: librsvg2-bin).
set -euo pipefail
cd "$(dirname "$0")"
for drawing in tree1 tree2 tree3 tree4 tree5 tree6 remove restore; do
    rsvg-convert -w 16 -h 16 "$drawing.svg" -o "$drawing.png"
    rsvg-convert -w 32 -h 32 "$drawing.svg" -o "$drawing@2x.png"
done
rsvg-convert -w 24 -h 24 eyedropper.svg -o eyedropper.png
rsvg-convert -w 16 -h 16 program-small.svg -o program16.png
for size in 24 32 48 64 128 256; do
    rsvg-convert -w "$size" -h "$size" program.svg -o "program$size.png"
done
rsvg-convert -w 480 -h 300 splash.svg -o splash.png
rsvg-convert -w 960 -h 600 splash.svg -o splash@2x.png
