# bash completion for quorvel
_quorvel() {
    local word=${COMP_WORDS[COMP_CWORD]}
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W '--replace --export-settings --import-settings --doctor --help --version' -- "$word")
    elif ((COMP_CWORD == 2)) && [[ ${COMP_WORDS[1]} == --doctor ]]; then
        mapfile -t COMPREPLY < <(compgen -W --json -- "$word")
    elif ((COMP_CWORD == 2)) && [[ ${COMP_WORDS[1]} == --export-settings || ${COMP_WORDS[1]} == --import-settings ]]; then
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
    fi
}
complete -F _quorvel quorvel
