set -l commands list show import export rename delete
complete -c brimsound-presets -f
complete -c brimsound-presets -n "not __fish_seen_subcommand_from $commands" -a "$commands"
complete -c brimsound-presets -n '__fish_seen_subcommand_from import' -F
complete -c brimsound-presets -n '__fish_seen_subcommand_from show export rename delete' -a '(brimsound-presets list)'
complete -c brimsound-presets -l root -x -a '(__fish_complete_directories)' -d 'Keep the settings in this folder'
complete -c brimsound-presets -l json -d 'Print JSON'
complete -c brimsound-presets -l format -x -a 'eqf apo graphiceq easyeffects xmms numbers json' -d 'Read or write this format'
complete -c brimsound-presets -l name -x -d 'The name for the one preset of the one file'
complete -c brimsound-presets -l replace -d 'Replace a preset of the same name'
complete -c brimsound-presets -l rename -d 'Give a preset whose name is taken another one'
complete -c brimsound-presets -l strict -d 'Do not import a preset that causes a warning'
complete -c brimsound-presets -l dry-run -d 'Print the gains and change nothing'
complete -c brimsound-presets -l fit -d 'Fit positions of the same ten bands too'
complete -c brimsound-presets -l bands -x -a iso -d 'The bands of XMMS and Audacious files'
complete -c brimsound-presets -l channel -x -a 'left right' -d 'Which channel to take when they differ'
complete -c brimsound-presets -l device -x -d 'Which device to take from text for several'
complete -c brimsound-presets -s o -l output -r -F -d 'Write this file instead of standard output'
complete -c brimsound-presets -l force -d 'Replace an existing file'
complete -c brimsound-presets -l help -d 'Show the options'
complete -c brimsound-presets -l version -d 'Show the version'
