#!/usr/bin/env bash
# Makes the program's icon for Windows and macOS of its pictures. Wants icotool and png2icns (Debian:
# icoutils, icnsutils).
set -euo pipefail
cd "$(dirname "$0")"
art=../src/forms/art/program
icotool -c -o windows/vy-pixelworks.ico \
    "$art"{16,24,32,48,64}.png --raw="${art}128.png" --raw="${art}256.png"
png2icns macos/vy-pixelworks.icns "$art"{16,32,48,128,256}.png
