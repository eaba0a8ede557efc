#!/usr/bin/env bash
# What bash would offer: completion.sh FILE, where FILE is the completion of pixelworks-cli.
set -uo pipefail
source "$1"
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
mkdir "my sets"
touch set.prc "a set.PDB" list.txt t.vpt sheet.png

failed=0
offers() { # EXPECTED WORDS... : the last word is being typed
    local expected=$1 offered
    shift
    COMP_WORDS=(pixelworks-cli "$@")
    COMP_CWORD=$#
    COMPREPLY=()
    _pixelworks_cli
    offered=$(printf '%s\n' "${COMPREPLY[@]+"${COMPREPLY[@]}"}" | sort | paste -sd'|')
    if [ "$offered" != "$expected" ]; then
        echo "after \"$*\": \"$offered\" and not \"$expected\""
        failed=1
    fi
}

offers "thumbnail" th
offers "dump" d
offers "--help|--version" --
offers "a set.PDB|my sets|set.prc|t.vpt" validate ""
offers "set.prc|sheet.png" thumbnail s
offers "my sets" extract set.prc m
offers "my sets" scan ""
offers "--size" thumbnail --s
offers "high|low" dump --only ""
offers "16-Bit" convert --depth 1
offers "my sets" dump --app-folder ""
offers "list.txt" import --list l
offers "--stretch" import --st
offers "" import --exp
offers "--export-template" convert --exp
offers "" unknown ""
HOME=$folder
offers "~/a set.PDB|~/my sets|~/set.prc|~/t.vpt" validate "~/"
offers "~/my sets" dump --app-folder "~/m"
offers "a set.PDB" validate 'a\ '
offers "a set.PDB" validate '"a s'
offers "a set.PDB" validate "'a s"
offers "my sets" extract set.prc 'my\ s'
mkdir "my sets/in ner"
offers "my sets/in ner" extract set.prc 'my\ sets/in\ '
exit "$failed"
