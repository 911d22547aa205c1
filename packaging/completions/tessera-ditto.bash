# SPDX-License-Identifier: MIT
# Completes the command line of tessera-ditto in bash.

_tessera_ditto() {
    local current="$2"
    local words="-c -k --sequesterRsrc --folder --file -h --help --version"
    if [[ "$current" == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
        return
    fi
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -f -- "$current")
}

complete -F _tessera_ditto tessera-ditto
