#!/usr/bin/env bash
# pack.sh BUILD_FOLDER TARGET_FOLDER: packs what has been built in the one, into the other, and prints the
# package's path, and nothing else, to standard output. All files of the package get the time of the last
# commit, or that of the release where there is no git: two packages of one state are the same.
set -euo pipefail
build=$(realpath "$1")
target=$(realpath "$2")
cd "$(dirname "$0")/.."

SOURCE_DATE_EPOCH=$(git log -1 --format=%ct 2>/dev/null ||
    sed -nE 's/^set\(VYPX_RELEASED ([0-9]+)\)$/\1/p' cmake/Product.cmake)
export SOURCE_DATE_EPOCH

staging=$(mktemp -d)
trap 'rm -rf "$staging"' EXIT
cpack --config "$build/CPackConfig.cmake" -B "$staging" >"$staging/log" 2>&1 || {
    cat "$staging/log" >&2
    exit 1
}
for package in "$staging"/*.deb; do
    mv "$package" "$target/"
    echo "$target/${package##*/}"
done
