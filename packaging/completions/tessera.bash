# SPDX-License-Identifier: MIT
# Completes the command line of tessera in bash.

_tessera() {
    local current="$2" previous="$3" index
    # For bash the "=" of "--size=1600x1000" is a word of its own.
    if [[ "$current" == = ]]; then
        current=
    elif [[ "$previous" == = ]]; then
        previous="${COMP_WORDS[COMP_CWORD - 2]}"
    fi
    # Behind "--" there are folders alone.
    for ((index = 1; index < COMP_CWORD; index++)); do
        if [[ "${COMP_WORDS[index]}" == -- ]]; then
            previous=--
        fi
    done

    local words=
    case "$previous" in
    --) ;;
    --picture)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -X '!*.[pP][nN][gG]' -- "$current"
            compgen -d -- "$current")
        return
        ;;
    --size) words="1600x1000 1920x1080 3840x2160" ;;
    --scale) words="1 1.5 2" ;;
    *)
        if [[ "$current" == -* ]]; then
            words="--home --disk --picture --size --scale -- -h --help --version"
        fi
        ;;
    esac
    if [[ "$words" ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
        return
    fi
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -d -- "$current")
}

complete -F _tessera tessera
