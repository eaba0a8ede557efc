#!/usr/bin/env bash
# lintian.sh FOLDER: lintian over the package in FOLDER. An override that is not needed, or not by
# that text any more, counts as well, though it is no warning to lintian.
set -euo pipefail
status=0
said=$(lintian --allow-root --fail-on error,warning --display-info --tag-display-limit 0 "$1"/*.deb 2>&1) ||
    status=$?
printf '%s\n' "$said"
! grep -E '(unused|mismatched|malformed)-override' <<<"$said" && [ "$status" -eq 0 ]
