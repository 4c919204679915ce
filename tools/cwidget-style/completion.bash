# Completion of cwidget-style for bash.

_cwidget_style() {
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local command='' position=0 i
    for ((i = 1; i < COMP_CWORD; ++i)); do
        case ${COMP_WORDS[i]} in
            -o | --output | --format) ((++i)) ;;
            -* | =) ;;
            *) if [ -z "$command" ]; then command=${COMP_WORDS[i]}; else ((++position)); fi ;;
        esac
    done

    local IFS=$'\n'
    COMPREPLY=()
    case $previous in
        -o | --output) mapfile -t COMPREPLY < <(compgen -d -- "$word"); return ;;
        --format) mapfile -t COMPREPLY < <(compgen -W $'text\njson' -- "$word"); return ;;
        =)
            [ "${COMP_WORDS[COMP_CWORD - 2]}" = --format ] &&
                mapfile -t COMPREPLY < <(compgen -W $'text\njson' -- "$word")
            return
            ;;
    esac
    case $command:$word in
        :-*) mapfile -t COMPREPLY < <(compgen -W $'--help\n--version' -- "$word") ;;
        :*) mapfile -t COMPREPLY < <(compgen -W $'check\nshow\nfont\npreview' -- "$word") ;;
        check:-*) mapfile -t COMPREPLY < <(compgen -W $'--strict\n--format\n--ignore-fonts' -- "$word") ;;
        preview:-*) mapfile -t COMPREPLY < <(compgen -W $'-o\n--output' -- "$word") ;;
        font:*)
            if [ "$position" -eq 1 ]; then
                mapfile -t COMPREPLY < <(compgen -W "$(fc-list : family 2>/dev/null | cut -d, -f1 | sort -u)" -- "$word")
                return
            fi
            mapfile -t COMPREPLY < <(compgen -f -X '!*.xml' -- "$word"; compgen -d -- "$word")
            ;;
        check:* | show:* | preview:*)
            mapfile -t COMPREPLY < <(compgen -f -X '!*.xml' -- "$word"; compgen -d -- "$word")
            ;;
    esac
}

complete -o filenames -F _cwidget_style cwidget-style
