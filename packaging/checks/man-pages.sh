#!/usr/bin/env bash
# man-pages.sh ROOT: fails where mandoc has anything to say about the man pages in ROOT. It looks for
# the pages that a page refers to beside that page, and only for unpacked ones.
set -euo pipefail
root=$1
quiet=$(realpath "$(dirname "$0")/quiet.sh")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
for page in "$root"/usr/share/man/man1/*.gz; do
    gunzip -c "$page" >"$folder/$(basename "$page" .gz)"
done
cd "$folder"
"$quiet" mandoc -Tlint ./*.1
