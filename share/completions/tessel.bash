# bash completion for tessel

_tessel_options() {
  local edit="--output --force --in-place --backup --dry-run --report --json --tsv --quiet"
  case $1 in
    convert) echo "--line-ends $edit" ;;
    randomize) echo "--section --lower --upper --bounds --percent --keep-below --keep-above --seed $edit" ;;
    settings) echo "--section --json --tsv" ;;
    get) echo "--line --json --tsv" ;;
    set) echo "--line $edit" ;;
    levels) echo "--json --tsv" ;;
    level) echo "--map --title --line $edit" ;;
    colour) echo "--format" ;;
    diff) echo "--markdown --toml --json --tsv" ;;
    apply) echo "--skip-missing $edit" ;;
    lsp) echo "--stdio --store" ;;
    check) echo "--only --no --warnings-as-errors --store --json --tsv --sarif --list-rules --explain" ;;
    words) echo "--store" ;;
    new) echo "--output --force" ;;
  esac
  case $1:$2 in
    words:list | words:get) echo "--json --tsv" ;;
    words:export) echo "--output --force" ;;
  esac
}

# The define names of a file's settings, for "get" and "set".
_tessel_items() {
  tessel settings --tsv -- "$1" 2>/dev/null | sed 1d | cut -f 4
}

# The levels of a file, for "level".
_tessel_levels() {
  tessel levels --tsv -- "$1" 2>/dev/null | sed 1d | cut -f 2 | tr ' ' /
}

# The rules of "check".
_tessel_rules() {
  tessel check --list-rules 2>/dev/null | cut -d ' ' -f 1
}

_tessel() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  local command=${COMP_WORDS[1]} choices=
  local commands="convert randomize settings get set levels level colour check diff apply lsp words new help"
  compopt +o filenames 2>/dev/null
  COMPREPLY=()

  if ((COMP_CWORD == 1)); then
    choices="$commands --help --version"
  else
    case $previous in
      --section)
        choices="Player Weapon Enemy Misc"
        [[ $command == randomize ]] && choices="All $choices" ;;
      --format) choices="ansi html json" ;;
      --line-ends) choices="control keep" ;;
      --only | --no | --explain) choices=$(_tessel_rules) ;;
      --lower | --upper | --bounds | --percent | --seed | --map | --title | --line) return ;;
    esac
  fi
  if [[ -z $choices && $current == -?* ]]; then
    choices="$(_tessel_options "$command" "${COMP_WORDS[2]}") --help --version"
  elif [[ -z $choices && $previous != -o && $previous != --output && $previous != --store ]]; then
    case $command:$COMP_CWORD in
      get:3 | set:3) choices=$(_tessel_items "${COMP_WORDS[2]}") ;;
      level:3) choices=$(_tessel_levels "${COMP_WORDS[2]}") ;;
      words:2) choices="list get set remove import export" ;;
      new:2) choices="13DU 15AU 13DD 15AD 13DG 15AG" ;;
      help:2) choices=$commands ;;
    esac
  fi

  local line source=(-f)
  [[ -n $choices ]] && source=(-W "$choices")
  [[ -z $choices ]] && compopt -o filenames 2>/dev/null
  while IFS= read -r line; do COMPREPLY+=("$line"); done < <(compgen "${source[@]}" -- "$current")
}

complete -F _tessel tessel
