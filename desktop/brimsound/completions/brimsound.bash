# Completion of brimsound for bash.
_brimsound()
{
    local cur prev words cword
    _init_completion || return
    case $prev in
        --root)
            _filedir -d
            ;;
        --script)
            _filedir
            ;;
        --snapshot)
            _filedir png
            ;;
        --scale)
            mapfile -t COMPREPLY < <(compgen -W '1 2 3' -- "$cur")
            ;;
        *)
            if [[ $cur != -* ]]; then
                _filedir
                return
            fi
            mapfile -t COMPREPLY < <(compgen -W '--root --headless --script --live --snapshot --scale
                --help --version' -- "$cur")
            ;;
    esac
}
complete -F _brimsound brimsound
