#compdef brimsound
_arguments \
    '--root[keep the settings in this folder]:folder:_directories' \
    '--headless[open no window]' \
    '--script[run this gesture script]:script:_files' \
    '--live[execute the effects of a script]' \
    '--snapshot[write a picture at the end]:picture:_files -g "*.png"' \
    '--scale[pixels per point]:scale:(1 2 3)' \
    '(- *)'{-h,--help}'[show the options]' \
    '(- *)'{-v,--version}'[show the version]' \
    '*:preset file:_files'
