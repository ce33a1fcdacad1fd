# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
_pellory() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    local states='UNKNOWN IN_OFFICE OUT_OF_OFFICE VACATION_DAY WILL_BE_IN_OFFICE'
    COMPREPLY=()
    # Where the shell breaks words at it, "=" is a word, after an option or after the date.
    if [[ $word == '=' ]]; then
        word=''
    elif [[ $before == '=' ]] && ((COMP_CWORD > 1)); then
        before=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    case $before in
    --mark)
        if [[ $word == *=* ]]; then
            mapfile -t COMPREPLY < <(compgen -P "${word%%=*}=" -W "$states" -- "${word#*=}")
        else
            mapfile -t COMPREPLY < <(compgen -S = -W "$(date +%F) $(date -d yesterday +%F 2>/dev/null)" -- "$word")
            compopt -o nospace
        fi
        ;;
    [0-9]*-[0-9]*) mapfile -t COMPREPLY < <(compgen -W "$states" -- "$word") ;;
    --export)
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        ;;
    --status) mapfile -t COMPREPLY < <(compgen -W '--json' -- "$word") ;;
    *)
        mapfile -t COMPREPLY < <(compgen -W \
            '--at-login --check-now --status --mark --undo --export --backup --help --version' -- "$word")
        ;;
    esac
}
complete -F _pellory pellory
