# fish completion for tessel
set -l commands convert randomize settings get set levels level colour check diff apply lsp words new help
set -l words_commands list get set remove import export
set -l no_command "not __fish_seen_subcommand_from $commands"

# The define names and the levels of the file that was named first.
function __tessel_items
    set -l words (commandline -opc)
    tessel settings --tsv -- $words[3] 2>/dev/null | sed 1d | cut -f 4
end
function __tessel_levels
    set -l words (commandline -opc)
    tessel levels --tsv -- $words[3] 2>/dev/null | sed 1d | cut -f 2 | tr ' ' /
end
function __tessel_rules
    tessel check --list-rules 2>/dev/null | cut -d ' ' -f 1
end
function __tessel_has_file
    test (count (commandline -opc)) -ge 3
end

complete -c tessel -l help -s h -d 'Print help'
complete -c tessel -l version -d 'Print the version'
complete -c tessel -f -n $no_command -a convert -d 'Convert 1.3D user files to 1.4/1.5'
complete -c tessel -f -n $no_command -a randomize -d 'Randomize the values of user files'
complete -c tessel -f -n $no_command -a settings -d 'List the tunable values'
complete -c tessel -f -n $no_command -a get -d 'Print one value'
complete -c tessel -f -n $no_command -a set -d 'Change values'
complete -c tessel -f -n $no_command -a levels -d 'List the levels'
complete -c tessel -f -n $no_command -a level -d 'Show or change a level'
complete -c tessel -f -n $no_command -a colour -d 'Print a file in colours'
complete -c tessel -f -n $no_command -a check -d 'Find faults in the files of a mod'
complete -c tessel -f -n $no_command -a diff -d 'Compare the values of two files'
complete -c tessel -f -n $no_command -a apply -d 'Write a page of values into files'
complete -c tessel -f -n $no_command -a lsp -d 'Serve other editors as a language server'
complete -c tessel -f -n $no_command -a words -d 'Manage the list of script words'
complete -c tessel -f -n $no_command -a new -d 'Start a file from a template'
complete -c tessel -f -n $no_command -a help -d 'Print help on a subcommand'

set -l edits '__fish_seen_subcommand_from convert randomize set level apply; and not __fish_seen_subcommand_from words'
set -l results '__fish_seen_subcommand_from convert randomize set level apply new export'
set -l reports '__fish_seen_subcommand_from convert randomize settings get set levels level check diff apply list'
complete -c tessel -n $results -s o -l output -r -d 'Write the result to this file'
complete -c tessel -n $results -l force -d 'Replace a file that is there'
complete -c tessel -n $edits -l in-place -d 'Write the result over the file'
complete -c tessel -n $edits -l backup -d 'Keep the old file as FILE~'
complete -c tessel -n $edits -l dry-run -d 'Write nothing, print the difference'
complete -c tessel -n $edits -l report -d 'List what was done'
complete -c tessel -n $edits -l quiet -d 'Say nothing but errors'
complete -c tessel -n $reports -l json -d 'Print the report as JSON'
complete -c tessel -n $reports -l tsv -d 'Print the report as a table'
complete -c tessel -n '__fish_seen_subcommand_from get set level' -l line -x -d 'The line of the define or level'
complete -c tessel -n '__fish_seen_subcommand_from convert' -l line-ends -x -a 'control keep'
complete -c tessel -n '__fish_seen_subcommand_from randomize' -l section -x -a 'All Player Weapon Enemy Misc'
complete -c tessel -n '__fish_seen_subcommand_from settings' -l section -x -a 'Player Weapon Enemy Misc'
complete -c tessel -n '__fish_seen_subcommand_from randomize' -l lower -x -d 'The smallest value drawn'
complete -c tessel -n '__fish_seen_subcommand_from randomize' -l upper -x -d 'The largest value drawn'
complete -c tessel -n '__fish_seen_subcommand_from randomize' -l bounds -x -d 'SECTION=LOWER..UPPER'
complete -c tessel -n '__fish_seen_subcommand_from randomize' -l percent -x -d 'Around the present value'
complete -c tessel -n '__fish_seen_subcommand_from randomize' -l keep-below -d 'Leave smaller values'
complete -c tessel -n '__fish_seen_subcommand_from randomize' -l keep-above -d 'Leave larger values'
complete -c tessel -n '__fish_seen_subcommand_from randomize' -l seed -x -d 'Start of the random numbers'
complete -c tessel -n '__fish_seen_subcommand_from level' -l map -x -d 'The new map'
complete -c tessel -n '__fish_seen_subcommand_from level' -l title -x -d 'The new title'
complete -c tessel -n '__fish_seen_subcommand_from colour' -l format -x -a 'ansi html json'
complete -c tessel -n '__fish_seen_subcommand_from words check lsp' -l store -r -d 'The settings file'
complete -c tessel -n '__fish_seen_subcommand_from lsp' -l stdio -d 'Over standard input and output'
complete -c tessel -n '__fish_seen_subcommand_from diff' -l markdown -d 'Print a Markdown table'
complete -c tessel -n '__fish_seen_subcommand_from diff' -l toml -d 'Print what apply reads'
complete -c tessel -n '__fish_seen_subcommand_from apply' -l skip-missing -d 'Skip values that a file does not have'
complete -c tessel -n '__fish_seen_subcommand_from check' -l only -x -a '(__tessel_rules)' -d 'Apply this rule alone'
complete -c tessel -n '__fish_seen_subcommand_from check' -l no -x -a '(__tessel_rules)' -d 'Do not apply this rule'
complete -c tessel -n '__fish_seen_subcommand_from check' -l explain -x -a '(__tessel_rules)' -d 'Explain a rule'
complete -c tessel -n '__fish_seen_subcommand_from check' -l list-rules -d 'List the rules'
complete -c tessel -n '__fish_seen_subcommand_from check' -l warnings-as-errors -d 'Exit with status 1 if there are warnings, too'
complete -c tessel -n '__fish_seen_subcommand_from check' -l sarif -d 'Print a SARIF log'
complete -c tessel -f -n "__fish_seen_subcommand_from words; and not __fish_seen_subcommand_from $words_commands" -a "$words_commands"
complete -c tessel -f -n '__fish_seen_subcommand_from new' -a '13DU 15AU 13DD 15AD 13DG 15AG'
complete -c tessel -f -n '__fish_seen_subcommand_from help' -a "$commands"
complete -c tessel -f -n '__fish_seen_subcommand_from get set; and not __fish_seen_subcommand_from words; and __tessel_has_file' -a '(__tessel_items)'
complete -c tessel -f -n '__fish_seen_subcommand_from level; and __tessel_has_file' -a '(__tessel_levels)'
