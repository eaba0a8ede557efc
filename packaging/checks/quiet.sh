#!/usr/bin/env bash
# quiet.sh COMMAND...: fails where COMMAND does, and where it has anything to say.
set -euo pipefail
status=0
said=$("$@" 2>&1) || status=$?
[ -z "$said" ] || printf '%s\n' "$said"
[ "$status" -eq 0 ] && [ -z "$said" ]
