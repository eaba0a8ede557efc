#!/usr/bin/env bash
# Fails where a room of src/ includes another that it may not know, where Qt has come downstairs, or
# where headers include each other in a circle.
set -euo pipefail
cd "$(dirname "$0")/../src"

declare -A may=(
    [platform]="platform"
    [companion]="companion platform"
    [settings]="settings platform"
    [pictures]="pictures companion platform"
    [document]="document settings companion platform"
    [catalogs]="catalogs document settings companion platform"
    [imaging]="imaging document settings companion platform"
    [reader]="reader imaging catalogs document settings companion platform"
    [writer]="writer imaging catalogs document settings companion platform"
    [install]="install document settings companion platform"
    [instaide]="instaide install platform"
    [cli]="cli pictures writer reader imaging catalogs document settings companion platform"
    [forms]="forms install pictures writer reader imaging catalogs document settings companion platform"
)
bad=0
for room in */; do
    room=${room%/}
    allowed=${may[$room]:-}
    [ -n "$allowed" ] || { echo "src/$room is no room that scripts/check-rooms.sh knows"; bad=1; continue; }
    while IFS=: read -r file line text; do
        [[ $text =~ \"([^\"/]+)/ ]] && other=${BASH_REMATCH[1]}
        [[ " $allowed " == *" $other "* ]] || { echo "src/$file:$line: $room must not include $other"; bad=1; }
    done < <(grep -rnE '^#include "[a-z]+/' "$room" --include='*.h' --include='*.cpp' || true)
    [[ "$room" == forms || "$room" == pictures ]] && continue
    if grep -rnE '^#include *[<"]Q[A-Za-z]' "$room"; then
        echo "Qt has come into src/$room"
        bad=1
    fi
done

# Upstairs: a room of src/forms/ knows what all windows share, and itself; the main form knows all.
declare -A upstairs=(
    [common]="common"
    [imaging]="imaging common"
    [settings]="settings common"
    [catalogs]="catalogs common"
    [sides]="sides common"
    [help]="help common"
    [greeting]="greeting common"
    [desktop]="desktop common"
    [main]="main greeting catalogs help imaging settings sides common"
)
while IFS=: read -r file line text; do
    room=${file#forms/}
    room=${room%%/*}
    [[ $text =~ \"forms/([^\"/]+)/ ]] && other=${BASH_REMATCH[1]}
    [[ " ${upstairs[$room]:-} " == *" $other "* ]] ||
        { echo "src/$file:$line: forms/$room must not include $other"; bad=1; }
done < <(grep -rnE '^#include "forms/' forms --include='*.h' --include='*.cpp' || true)

# tsort names the circles among headers.
edges=$(grep -rnoE '^#include "[a-z]+/[A-Za-z0-9_]+\.h"' --include='*.h' . |
    sed -E 's/^\.\/([^:]+):[0-9]+:#include "([^"]+)"/\1 \2/')
if ! circles=$(tsort <<<"$edges" 2>&1 >/dev/null); then
    printf 'Headers include each other in a circle:\n%s\n' "$circles"
    bad=1
fi
exit "$bad"
