#compdef brimsound-presets
_brimsound_presets_names() {
    local -a presets
    presets=("${(@f)$(_call_program presets $words[1] list 2>/dev/null)}")
    compadd -a presets
}
_brimsound_presets_arguments() {
    case $words[(r)(list|show|import|export|rename|delete)] in
        import) _files ;;
        show|export|rename|delete) _brimsound_presets_names ;;
    esac
}
_arguments \
    '--root[keep the settings in this folder]:folder:_directories' \
    '--json[print JSON]' \
    '--format[read or write this format]:format:(eqf apo graphiceq easyeffects xmms numbers json)' \
    '--name[the name for the one preset of the one file]:name: ' \
    '(--rename)--replace[replace a preset of the same name]' \
    '(--replace)--rename[give a preset whose name is taken another one]' \
    '--strict[do not import a preset that causes a warning]' \
    '--dry-run[print the gains and change nothing]' \
    '--fit[fit positions of the same ten bands too]' \
    '--bands[the bands of XMMS and Audacious files]:bands:(iso)' \
    '--channel[which channel to take when they differ]:channel:(left right)' \
    '--device[which device to take from text for several]:device: ' \
    '(-o --output)'{-o,--output}'[write this file instead of standard output]:file:_files' \
    '--force[replace an existing file]' \
    '(- *)--help[show the options]' \
    '(- *)--version[show the version]' \
    '1:command:(list show import export rename delete)' \
    '*:argument:_brimsound_presets_arguments'
