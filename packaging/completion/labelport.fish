# Completion of labelport in fish.

set -l commands import inspect report formats trace

complete -c labelport -f -n "not __fish_seen_subcommand_from $commands" -a import -d 'Import labels, or folders of them'
complete -c labelport -f -n "not __fish_seen_subcommand_from $commands" -a inspect -d 'Tell what a label holds'
complete -c labelport -f -n "not __fish_seen_subcommand_from $commands" -a report -d 'Put reports together'
complete -c labelport -f -n "not __fish_seen_subcommand_from $commands" -a formats -d 'Tell what is read and written'
complete -c labelport -f -n "not __fish_seen_subcommand_from $commands" -a trace -d 'Print the calls of an import'
complete -c labelport -l help -d 'Show help'
complete -c labelport -n "not __fish_seen_subcommand_from import inspect report formats" -l version -d 'Show the version'

complete -c labelport -n '__fish_seen_subcommand_from import' -l to -x -a 'png svg pdf label' -d 'What to write'
complete -c labelport -n '__fish_seen_subcommand_from import' -l output-dir -x -a '(__fish_complete_directories)' -d 'Folder to write to'
complete -c labelport -n '__fish_seen_subcommand_from import' -l dpi -x -d 'Dots per inch of pictures'
complete -c labelport -n '__fish_seen_subcommand_from import' -l records -x -a all -d 'Records of the data sources'
complete -c labelport -n '__fish_seen_subcommand_from import' -l force -d 'Overwrite files that LabelPort did not make'
complete -c labelport -n '__fish_seen_subcommand_from import inspect' -l reader -x -a 'tavrel orvanta opendocument' -d 'Read every file as'
complete -c labelport -n '__fish_seen_subcommand_from import' -l files-from -r -d 'Import what a file lists'
complete -c labelport -n '__fish_seen_subcommand_from import' -l null -d 'Names of the list stand between NULs'
complete -c labelport -n '__fish_seen_subcommand_from import' -l base -x -a '(__fish_complete_directories)' -d 'Keep subfolders below this folder'
complete -c labelport -n '__fish_seen_subcommand_from import' -l jobs -x -d 'Files to import at the same time'
complete -c labelport -n '__fish_seen_subcommand_from import inspect' -l timeout -x -d 'Give a file up that does not get on'
complete -c labelport -n '__fish_seen_subcommand_from import inspect' -l memory-limit -x -d 'Give a file up that needs more memory'
complete -c labelport -n '__fish_seen_subcommand_from import' -l resume -d 'Leave out what is done'
complete -c labelport -n '__fish_seen_subcommand_from import' -l shard -x -d 'Import one part of several'
complete -c labelport -n '__fish_seen_subcommand_from import' -l report -r -d 'Write a report'
complete -c labelport -n '__fish_seen_subcommand_from import' -l fail-on-loss -d 'End with status 3 when something is lost'
complete -c labelport -n '__fish_seen_subcommand_from import' -l quiet -d 'Tell only what failed'

complete -c labelport -n '__fish_seen_subcommand_from inspect formats' -l json -d 'Tell it as JSON'
complete -c labelport -n '__fish_seen_subcommand_from report' -a merge -d 'Put reports together'
complete -c labelport -n '__fish_seen_subcommand_from report' -l to -r -d 'Report to write'
