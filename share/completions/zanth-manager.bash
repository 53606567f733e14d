# bash completion for zanth-manager

_zanth_manager() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  local line source=(-f)
  COMPREPLY=()
  case $previous in
    --host-dir) source=(-d) ;;
    --size) source=(-W "1000x760 1280x960 1600x1200") ;;
    *)
      [[ $current == -* ]] &&
        source=(-W "--store --host-dir --dark --light --automation --no-automation --screenshot --size --help --version") ;;
  esac
  [[ ${source[0]} == -W ]] || compopt -o filenames 2>/dev/null
  while IFS= read -r line; do COMPREPLY+=("$line"); done < <(compgen "${source[@]}" -- "$current")
}

complete -F _zanth_manager zanth-manager
