#compdef brimsound-render
_brimsound_render_presets() {
    local -a presets
    presets=("${(@f)$(_call_program presets $words[1] --list-presets 2>/dev/null)}")
    compadd -a presets
}
_arguments \
    '(--gains)--preset[use the gains of a preset]:preset:_brimsound_render_presets' \
    '(--preset)--gains[use these ten gains]:gains in dB: ' \
    '--preamp[set the preamp]:preamp in dB:(auto)' \
    '--no-limiter[let samples exceed full scale]' \
    '--root[read the saved presets from this folder]:folder:_directories' \
    '(- *)--list-presets[show the names of the presets]' \
    '(- *)--help[show the options]' \
    '(- *)--version[show the version]' \
    '1:sound file:_files' \
    '2:new sound file:_files'
