# Completion for bash: options as the program's own --help tells them, values that are words, otherwise files.

_vigrel_values() {
    case $1 in
        --kind) echo 0 1 2 3 ;;
        --corrupt) echo checksum etx kind ;;
        --as) echo alarm receiver profile schedule calendar ;;
        --status) echo inactive active acked message ;;
        --observed) echo yes no ;;
        --last) echo day week month year ;;
        --language) echo en sv de da nb fi ;;
        *) return 1 ;;
    esac
}

_vigrel() {
    local program=$1 current=$2 previous=$3 words
    if words=$(_vigrel_values "$previous"); then
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
    elif [[ $current == -* ]]; then
        words=$("$program" --help 2>/dev/null | grep -o -E -e '--[a-z0-9][a-z0-9-]*' | sort -u)
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
    elif [[ $program == *vigrel-receiver && $current == /* && $current != /*/* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "/DEBUG /MAXIMIZE /MINIMIZE /SIMULATE /TOPMOST" -- "${current^^}")
    else
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    fi
}

complete -o filenames -F _vigrel vigrel-receiver vigrel-definitions vigrel-send vigrel-inspect vigrel-receiver-check \
    vigrel-report
