complete -c brimsound -f
complete -c brimsound -l root -x -a '(__fish_complete_directories)' -d 'Keep the settings in this folder'
complete -c brimsound -l headless -d 'Open no window'
complete -c brimsound -l script -r -F -d 'Run this gesture script'
complete -c brimsound -l live -d 'Execute the effects of a script'
complete -c brimsound -l snapshot -r -F -d 'Write a picture at the end'
complete -c brimsound -l scale -x -a '1 2 3' -d 'Pixels per point'
complete -c brimsound -s h -l help -d 'Show the options'
complete -c brimsound -s v -l version -d 'Show the version'
