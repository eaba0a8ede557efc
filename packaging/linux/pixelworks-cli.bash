# bash completion of pixelworks-cli                                        -*- shell-script -*-
# It needs no other completion; where the package bash-completion is, its own helpers are not used.

# Sets typed to the path that a word means: without its opening quote and its backslashes.
_pixelworks_cli_unquoted() { # WORD
    local rest=$1
    typed=
    case $rest in
    \'* | \"*)
        typed=${rest:1}
        return
        ;;
    esac
    while [[ $rest =~ ^([^\\]*)\\(.)(.*)$ ]]; do
        typed+=${BASH_REMATCH[1]}${BASH_REMATCH[2]}
        rest=${BASH_REMATCH[3]}
    done
    typed+=$rest
}

# Paths that begin with the current word: folders, and with a pattern files whose names end so. Bash
# puts quotes and backslashes back itself.
_pixelworks_cli_paths() { # CURRENT [PATTERN]
    local path typed real
    compopt -o filenames 2>/dev/null || true
    _pixelworks_cli_unquoted "$1"
    while IFS= read -r path; do
        real=$path
        [[ $1 == "~/"* ]] && real=$HOME/${path#"~/"}
        [[ -d $real || (-n ${2-} && ${real,,} =~ $2) ]] && COMPREPLY+=("$path")
    done < <(compgen -f -- "$typed")
}

_pixelworks_cli_words() { # CURRENT WORDS
    local word
    while IFS= read -r word; do
        COMPREPLY+=("$word")
    done < <(compgen -W "$2" -- "$1")
}

_pixelworks_cli() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local command=${COMP_WORDS[1]-}
    local open="--help --app-folder --work --depth --only --template"
    local save="--packbits --drop-unknown --version-string --name --export-template"
    local iconsets='\.(prc|pdb|vpt)$'
    COMPREPLY=()

    if ((COMP_CWORD == 1)); then
        _pixelworks_cli_words "$current" \
            "dump convert import scan thumbnail extract validate --help --version"
        return
    fi
    case $previous in
    --app-folder | --work)
        _pixelworks_cli_paths "$current"
        return
        ;;
    --depth)
        _pixelworks_cli_words "$current" "4-Bit 8-Bit 16-Bit"
        return
        ;;
    --only)
        _pixelworks_cli_words "$current" "high low"
        return
        ;;
    --size)
        _pixelworks_cli_words "$current" "128 256 512 1024"
        return
        ;;
    --list)
        _pixelworks_cli_paths "$current" '.'
        return
        ;;
    --version-string | --name)
        return
        ;;
    esac
    if [[ $current == -* ]]; then
        case $command in
        dump) _pixelworks_cli_words "$current" "$open" ;;
        convert) _pixelworks_cli_words "$current" "$open $save" ;;
        import) _pixelworks_cli_words "$current" "$open ${save% *} --list --stretch --low-res" ;;
        scan) _pixelworks_cli_words "$current" "--help --app-folder" ;;
        thumbnail) _pixelworks_cli_words "$current" "--help --app-folder --size" ;;
        extract | validate) _pixelworks_cli_words "$current" "--help --app-folder" ;;
        esac
        return
    fi
    case $command in
    scan) _pixelworks_cli_paths "$current" ;;
    thumbnail) _pixelworks_cli_paths "$current" '\.(prc|pdb|vpt|png)$' ;;
    dump | convert | import | extract | validate) _pixelworks_cli_paths "$current" "$iconsets" ;;
    esac
}

complete -F _pixelworks_cli pixelworks-cli
