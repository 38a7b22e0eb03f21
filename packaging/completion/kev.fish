# Completion of kev for fish.
complete -c kev -f
complete -c kev -k -a '(__fish_complete_suffix .kev)'
complete -c kev -l help -d 'Print a summary and end'
complete -c kev -l version -d 'Print the version and end'
complete -c kev -n 'test (count (commandline -opc)) -gt 1' -a '/!!#/' -d 'Write templates with comments'
complete -c kev -n 'test (count (commandline -opc)) -gt 1' -a '/%%!/' -d 'Open the template without checks'
