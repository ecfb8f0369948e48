# Completion of zentrik-cli for bash. Commands and options are those that its own help lists.

_zentrik_cli() {
    local word=$2 before=$3 program=$1 command=${COMP_WORDS[1]}
    # "--option=value" comes as three words.
    [[ $word == "=" ]] && word=
    [[ $before == "=" ]] && before=${COMP_WORDS[COMP_CWORD - 2]}
    case $before in
        --animator | --walls | --ceiling | --barriers | --reverse | --directional | --slow)
            mapfile -t COMPREPLY < <(compgen -W "on off" -- "$word")
            return
            ;;
        --format)
            mapfile -t COMPREPLY < <(compgen -W "$("$program" export --help 2>/dev/null |
                sed -n 's/^SUFFIX is one of: \(.*\)\./\1/p' | tr -d ,)" -- "$word")
            return
            ;;
        --measure)
            mapfile -t COMPREPLY < <(compgen -W "$("$program" sweep --help 2>/dev/null |
                sed -n '/^WHAT is/,/^$/s/^\([a-z][a-z]*\):.*/\1/p')" -- "$word")
            return
            ;;
        --out | -o | --table)
            mapfile -t COMPREPLY < <(compgen -f -- "$word")
            return
            ;;
    esac
    if [[ $COMP_CWORD -eq 1 && $word != -* ]]; then
        local commands
        commands=$("$program" --help 2>/dev/null | sed -n '/^Commands:/,/^$/s/^  \([a-z][a-z]*\) .*/\1/p')
        mapfile -t COMPREPLY < <(compgen -W "$commands" -- "$word")
    elif [[ $word == -* ]]; then
        local options
        [[ $command == -* ]] && command=
        options=$("$program" ${command:+"$command"} --help 2>/dev/null | grep -o -e '^  \(-.,\|   \) --[a-z-]*=\?')
        options=$(grep -o -e '--.*' <<<"$options")
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
        [[ ${COMPREPLY[*]} == *= ]] && compopt -o nospace
    else
        mapfile -t COMPREPLY < <(compgen -f -X '!*.bot' -- "$word"; compgen -d -- "$word")
    fi
}
complete -o filenames -F _zentrik_cli zentrik-cli
