#!/usr/bin/env bash
# Takes a picture of every window into this folder: builds, starts a virtual screen with a window
# manager, has tests/forms/Screenshots.cpp drive the program.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
cd "$here/../.."
source scripts/packages.sh
install_packages "${build_packages[@]}" "${screen_packages[@]}"
cmake --preset release >/dev/null
cmake --build --preset release --target screenshots

folder=$(mktemp -d)
Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp 3>"$folder/display" 2>/dev/null &
server=$!
trap 'kill $server $(jobs -p) 2>/dev/null || true; rm -rf "$folder"' EXIT
until [ -s "$folder/display" ]; do sleep 0.1; done
DISPLAY=":$(cat "$folder/display")"
export DISPLAY
openbox >/dev/null 2>&1 &
until xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; do sleep 0.1; done

build/release/tests/forms/screenshots "$folder"
for picture in "$folder"/*.png; do
    convert "$picture" -trim +repage -strip "$here/$(basename "$picture")"
    echo "docs/screenshots/$(basename "$picture")"
done
