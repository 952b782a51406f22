# Completion of brimsound-presets for bash.
_brimsound_presets()
{
    local cur prev words cword
    _init_completion || return
    case $prev in
        --root)
            _filedir -d
            return
            ;;
        --format)
            mapfile -t COMPREPLY < <(compgen -W 'eqf apo graphiceq easyeffects xmms numbers json' -- "$cur")
            return
            ;;
        --bands)
            mapfile -t COMPREPLY < <(compgen -W iso -- "$cur")
            return
            ;;
        --channel)
            mapfile -t COMPREPLY < <(compgen -W 'left right' -- "$cur")
            return
            ;;
        --output | -o)
            _filedir
            return
            ;;
        --name | --device)
            return
            ;;
    esac
    if [[ $cur == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W '--root --json --format --name --replace --rename --strict --dry-run --fit
            --bands --channel --device --output --force --help --version' -- "$cur")
        return
    fi
    ((cword > 1)) || words[1]=
    case ${words[1]} in
        import)
            _filedir
            ;;
        show | export | rename | delete)
            local IFS=$'\n' text
            # What was typed may already be quoted.
            printf -v text %b "${cur#[\"\']}"
            mapfile -t COMPREPLY < <(compgen -W "$("$1" list 2>/dev/null)" -- "$text")
            [[ $cur == [\"\']* ]] || COMPREPLY=("${COMPREPLY[@]// /\\ }")
            ;;
        "")
            mapfile -t COMPREPLY < <(compgen -W 'list show import export rename delete' -- "$cur")
            ;;
    esac
}
complete -F _brimsound_presets brimsound-presets
