#!/usr/bin/env bash
# unpack.sh BUILD_FOLDER FOLDER: packs what has been built, twice, and unpacks it to FOLDER/root; the
# package stays beside that. Fails where the two packages differ.
set -euo pipefail
packaging=$(realpath "$(dirname "$0")/..")
build=$1
folder=$2
rm -rf "$folder"
mkdir -p "$folder/again"
package=$("$packaging/pack.sh" "$build" "$folder")
again=$("$packaging/pack.sh" "$build" "$folder/again")
cmp "$package" "$again"
dpkg-deb -x "$package" "$folder/root"
