# Completion of kevtool for fish.
set -l commands check dump rewrite eval pack unpack sample new barcode diff render
set -l none "not __fish_seen_subcommand_from $commands"

complete -c kevtool -f
complete -c kevtool -s h -l help -d 'Print a summary and end'
complete -c kevtool -n $none -l version -d 'Print the version and end'
complete -c kevtool -n $none -a check -d 'Check templates'
complete -c kevtool -n $none -a dump -d 'Print a template as JSON'
complete -c kevtool -n $none -a rewrite -d 'Read a template and write it as on saving'
complete -c kevtool -n $none -a eval -d 'Print the value of a position'
complete -c kevtool -n $none -a pack -d 'Write a template in its packed form'
complete -c kevtool -n $none -a unpack -d 'Write the plain form of a packed template'
complete -c kevtool -n $none -a sample -d 'Check a file of sample data'
complete -c kevtool -n $none -a new -d 'Make a first template of a file of sample data'
complete -c kevtool -n $none -a barcode -d 'Print the modules of a bar code'
complete -c kevtool -n $none -a diff -d 'Compare two templates'
complete -c kevtool -n $none -a render -d 'Paint the page, to PNG, PDF or SVG'

complete -c kevtool -n '__fish_seen_subcommand_from check dump rewrite eval pack unpack new diff render' \
    -k -a '(__fish_complete_suffix .kev)'
complete -c kevtool -n '__fish_seen_subcommand_from sample' -k -a '(__fish_complete_suffix .kex)'
complete -c kevtool -n '__fish_seen_subcommand_from sample' -k -a '(__fish_complete_suffix .ked)'
complete -c kevtool -n '__fish_seen_subcommand_from dump' -l geometry -d 'After the geometry was derived'
complete -c kevtool -n '__fish_seen_subcommand_from rewrite' -l comments -d 'Write the comment behind each vertical step'
complete -c kevtool -n '__fish_seen_subcommand_from sample diff' -l json -d 'As JSON'
complete -c kevtool -n '__fish_seen_subcommand_from check' -l json -d 'A JSON object for each template'
complete -c kevtool -n '__fish_seen_subcommand_from check' -l strict -d 'Fail too where a rewrite would change a byte'
complete -c kevtool -n '__fish_seen_subcommand_from diff' -l image -r -k -a '(__fish_complete_suffix .png)' \
    -d 'Paint both pages with the differences framed'
complete -c kevtool -n '__fish_seen_subcommand_from new' -l kex -r -k -a '(__fish_complete_suffix .kex)' \
    -d 'Records: one subsection for each type'
complete -c kevtool -n '__fish_seen_subcommand_from new' -l ked -r -k -a '(__fish_complete_suffix .ked)' \
    -d 'Variables: one label for each'
complete -c kevtool -n '__fish_seen_subcommand_from barcode' -l lines -d 'Encode each line of standard input'
complete -c kevtool -n '__fish_seen_subcommand_from render' -l out-dir -x -a '(__fish_complete_directories)' \
    -d 'Folder for a picture of each template'
complete -c kevtool -n '__fish_seen_subcommand_from render' -l format -x -a 'png pdf svg' -d 'Pictures in that folder'
complete -c kevtool -n '__fish_seen_subcommand_from render' -l zoom -x -d 'Zoom in percent'
complete -c kevtool -n '__fish_seen_subcommand_from render' -l scale -x -d 'Device pixels for each logical pixel'
complete -c kevtool -n '__fish_seen_subcommand_from render' -l filter -x -a 'all ebeu print' -d 'Which objects'
complete -c kevtool -n '__fish_seen_subcommand_from render' -l grid -d 'Draw the grid'
