#!/usr/bin/env bash
# Fails and names the scripts of the project that bash can't parse.
set -euo pipefail
cd "$(dirname "$0")/../.."
bad=0
count=0
while IFS= read -r file; do
    bash -n "$file" || bad=1
    count=$((count + 1))
done < <(find . \( -path ./build -o -name .git \) -prune -o -type f -print0 |
    xargs -0 awk 'FNR == 1 && (/^#!.*bash/ || FILENAME ~ /\.(sh|bash)$/) { print FILENAME } { nextfile }')
echo "$count scripts"
[ "$count" -ge 10 ] && [ "$bad" -eq 0 ]
