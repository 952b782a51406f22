# Completion of brimsound-render for bash.
_brimsound_render()
{
    local cur prev words cword
    _init_completion || return
    case $prev in
        --preset)
            local IFS=$'\n' text
            # What was typed may already be quoted.
            printf -v text %b "${cur#[\"\']}"
            mapfile -t COMPREPLY < <(compgen -W "$("$1" --list-presets 2>/dev/null)" -- "$text")
            [[ $cur == [\"\']* ]] || COMPREPLY=("${COMPREPLY[@]// /\\ }")
            ;;
        --preamp)
            mapfile -t COMPREPLY < <(compgen -W auto -- "$cur")
            ;;
        --gains) ;;
        --root)
            _filedir -d
            ;;
        *)
            if [[ $cur == -* ]]; then
                mapfile -t COMPREPLY < <(compgen -W '--preset --gains --preamp --no-limiter --root
                    --list-presets --help --version' -- "$cur")
            else
                _filedir
            fi
            ;;
    esac
}
complete -F _brimsound_render brimsound-render
