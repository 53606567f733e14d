# fish completion for tessel
set -l commands convert randomize settings get set levels level colour words new
set -l words_commands list get set remove import export

complete -c tessel -l help -s h -d 'Print help'
complete -c tessel -l version -d 'Print the version'
complete -c tessel -f -n "not __fish_seen_subcommand_from $commands" -a convert -d 'Convert 1.3D user files to 1.4/1.5'
complete -c tessel -f -n "not __fish_seen_subcommand_from $commands" -a randomize -d 'Randomize the values of a user file'
complete -c tessel -f -n "not __fish_seen_subcommand_from $commands" -a settings -d 'List the tunable values'
complete -c tessel -f -n "not __fish_seen_subcommand_from $commands" -a get -d 'Print one value'
complete -c tessel -f -n "not __fish_seen_subcommand_from $commands" -a set -d 'Change one value'
complete -c tessel -f -n "not __fish_seen_subcommand_from $commands" -a levels -d 'List the levels'
complete -c tessel -f -n "not __fish_seen_subcommand_from $commands" -a level -d 'Show or change a level'
complete -c tessel -f -n "not __fish_seen_subcommand_from $commands" -a colour -d 'Print a file in colours'
complete -c tessel -f -n "not __fish_seen_subcommand_from $commands" -a words -d 'Keep the list of script words'
complete -c tessel -f -n "not __fish_seen_subcommand_from $commands" -a new -d 'Start a file from a template'

complete -c tessel -n '__fish_seen_subcommand_from convert randomize set level new export' -s o -l output -r -d 'Write the result to this file'
complete -c tessel -n '__fish_seen_subcommand_from convert randomize set level' -l in-place -d 'Write the result over the file'
complete -c tessel -n '__fish_seen_subcommand_from convert randomize' -l report -d 'List what was done'
complete -c tessel -n '__fish_seen_subcommand_from randomize' -l section -x -a 'All Player Weapon Enemy Misc'
complete -c tessel -n '__fish_seen_subcommand_from settings' -l section -x -a 'Player Weapon Enemy Misc'
complete -c tessel -n '__fish_seen_subcommand_from randomize' -l lower -x -d 'The smallest value drawn'
complete -c tessel -n '__fish_seen_subcommand_from randomize' -l upper -x -d 'The largest value drawn'
complete -c tessel -n '__fish_seen_subcommand_from randomize' -l keep-below -d 'Leave smaller values'
complete -c tessel -n '__fish_seen_subcommand_from randomize' -l keep-above -d 'Leave larger values'
complete -c tessel -n '__fish_seen_subcommand_from randomize' -l seed -x -d 'Start of the random numbers'
complete -c tessel -n '__fish_seen_subcommand_from settings levels' -l json -d 'Print JSON'
complete -c tessel -n '__fish_seen_subcommand_from level' -l map -x -d 'The new map'
complete -c tessel -n '__fish_seen_subcommand_from level' -l title -x -d 'The new title'
complete -c tessel -n '__fish_seen_subcommand_from colour' -l format -x -a 'ansi html json'
complete -c tessel -n '__fish_seen_subcommand_from words' -l store -r -d 'The settings file'
complete -c tessel -f -n "__fish_seen_subcommand_from words; and not __fish_seen_subcommand_from $words_commands" -a "$words_commands"
complete -c tessel -f -n '__fish_seen_subcommand_from new' -a '13DU 15AU 13DD 15AD 13DG 15AG'
