# bash completion for tessel

_tessel_options() {
  case $1 in
    convert) echo "--output --force --in-place --report" ;;
    randomize) echo "--section --lower --upper --keep-below --keep-above --seed --report --output --force --in-place" ;;
    settings) echo "--section --json" ;;
    set) echo "--output --force --in-place" ;;
    levels) echo "--json" ;;
    level) echo "--map --title --output --force --in-place" ;;
    colour) echo "--format" ;;
    words) echo "--store" ;;
    new) echo "--output --force" ;;
  esac
}

# The define names of a file's settings, for "get" and "set".
_tessel_items() {
  tessel settings --json -- "$1" 2>/dev/null | sed -n 's/.*"define": "\([^"]*\)".*/\1/p'
}

_tessel() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  local command=${COMP_WORDS[1]} choices=
  compopt +o filenames 2>/dev/null
  COMPREPLY=()

  if ((COMP_CWORD == 1)); then
    choices="convert randomize settings get set levels level colour words new --help --version"
  else
    case $previous in
      --section)
        choices="Player Weapon Enemy Misc"
        [[ $command == randomize ]] && choices="All $choices" ;;
      --format) choices="ansi html json" ;;
      --lower | --upper | --seed | --map | --title) return ;;
    esac
  fi
  if [[ -z $choices && $current == -* ]]; then
    choices="$(_tessel_options "$command") --help --version"
    [[ $command == words && ${COMP_WORDS[2]} == export ]] && choices+=" --output --force"
  elif [[ -z $choices && $previous != -o && $previous != --output && $previous != --store ]]; then
    case $command:$COMP_CWORD in
      get:3 | set:3) choices=$(_tessel_items "${COMP_WORDS[2]}") ;;
      words:2) choices="list get set remove import export" ;;
      new:2) choices="13DU 15AU 13DD 15AD 13DG 15AG" ;;
    esac
  fi

  local line source=(-f)
  [[ -n $choices ]] && source=(-W "$choices")
  [[ -z $choices ]] && compopt -o filenames 2>/dev/null
  while IFS= read -r line; do COMPREPLY+=("$line"); done < <(compgen "${source[@]}" -- "$current")
}

complete -F _tessel tessel
