# fish completion for zanth-manager
complete -c zanth-manager -l store -r -d 'The settings file'
complete -c zanth-manager -l host-dir -x -a '(__fish_complete_directories)' -d 'Directory of the templates'
complete -c zanth-manager -l dark -d 'Dark colours'
complete -c zanth-manager -l light -d 'Light colours'
complete -c zanth-manager -l screenshot -r -d 'Leave a picture in this file and end'
complete -c zanth-manager -l size -x -d 'Size of the window in pixels, WIDTHxHEIGHT'
complete -c zanth-manager -l help -s h -d 'Print help'
complete -c zanth-manager -l version -d 'Print the version'
