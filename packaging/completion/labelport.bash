# Completion of labelport in bash.

_labelport_commands='import inspect report formats trace --help --version'

_labelport_options() {
    case $1 in
    import) echo '--to --output-dir --dpi --records --force --reader --files-from --null --base
        --jobs --timeout --memory-limit --resume --shard --report --fail-on-loss --quiet --help' ;;
    inspect) echo '--json --reader --timeout --memory-limit --help' ;;
    report) echo '--to --help' ;;
    formats) echo '--json --help' ;;
    trace) echo '--help --version' ;;
    esac
}

# What may stand behind an option; nothing where that is free.
_labelport_values() {
    case $1:$2 in
    import:--to) echo 'png svg pdf label' ;;
    import:--reader | inspect:--reader) echo 'tavrel orvanta opendocument' ;;
    import:--records) echo 'all' ;;
    esac
}

_labelport_is_label() {
    case ${1,,} in
    *.cnv | *.roc | *.qmtx | *.odt | *.odg | *.label) return 0 ;;
    esac
    return 1
}

_labelport() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]}
    local name values
    COMPREPLY=()
    if [ "$COMP_CWORD" -eq 1 ]; then
        mapfile -t COMPREPLY < <(compgen -W "$_labelport_commands" -- "$word")
        return
    fi
    values=$(_labelport_values "$command" "$before")
    if [ -n "$values" ]; then
        mapfile -t COMPREPLY < <(compgen -W "$values" -- "$word")
        return
    fi
    case $before in
    --dpi | --jobs | --timeout | --memory-limit | --shard) return ;;
    --output-dir | --base)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -d -- "$word")
        return
        ;;
    --report | --files-from)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        return
        ;;
    esac
    if [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(_labelport_options "$command")" -- "$word")
        return
    fi
    [ "$command" = formats ] && return
    compopt -o filenames 2>/dev/null
    if [ "$command" = report ]; then
        [ "$COMP_CWORD" -eq 2 ] && COMPREPLY=(merge) && return
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        return
    fi
    # Folders, and files that are labels by their names.
    mapfile -t COMPREPLY < <(compgen -d -- "$word")
    while IFS= read -r name; do
        [ -d "$name" ] || ! _labelport_is_label "$name" || COMPREPLY+=("$name")
    done < <(compgen -f -- "$word")
}

complete -F _labelport labelport
