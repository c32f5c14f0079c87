# Completes the options of the programs, as each tells them by --help, and the names of files.

_xmlhelper()
{
    local current=${COMP_WORDS[COMP_CWORD]}
    COMPREPLY=()
    if [[ $current == -* ]]; then
        local options
        options=$("$1" --help 2>/dev/null | grep -o -E '^ +(-[a-z], +)?--[a-z-]+' | grep -o -E -- '--[a-z-]+')
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
    elif [[ ${COMP_WORDS[COMP_CWORD - 1]} == --language ]]; then
        mapfile -t COMPREPLY < <(compgen -W "de en fr" -- "$current")
    else
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    fi
}
complete -F _xmlhelper measurementpanel xmlhelper-fill xmlhelper-journal xmlhelper-report xmlhelper-schema
