# fish completion for quorvel
complete -c quorvel -f
complete -c quorvel -n __fish_is_first_arg -l replace -d 'Take over from a running Quorvel'
complete -c quorvel -n __fish_is_first_arg -l export-settings -r -F -d 'Write the settings to a file'
complete -c quorvel -n __fish_is_first_arg -l import-settings -r -F -d 'Take over the settings of a file'
complete -c quorvel -n __fish_is_first_arg -l doctor -d 'Tell what this desktop offers and what stands in the way'
complete -c quorvel -n '__fish_prev_arg_in --doctor' -a --json -d 'As JSON'
complete -c quorvel -n __fish_is_first_arg -s h -l help -d 'Show help'
complete -c quorvel -n __fish_is_first_arg -l version -d 'Show the version'
