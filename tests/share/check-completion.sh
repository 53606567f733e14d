#!/usr/bin/env bash
# Usage: check-completion.sh SHARE DIRECTORY-OF-TESSEL FILE. Asks the completions as bash does.
set -uo pipefail
PATH=$2:$PATH
file=$3
source "$1/completions/tessel.bash"
source "$1/completions/zanth-manager.bash"
compopt() { :; }  # there is no line that is being typed
status=0

# expect FUNCTION "words so far, the last one incomplete" "what is offered"
expect() {
  read -ra COMP_WORDS <<<"$2"
  [[ $2 == *' ' ]] && COMP_WORDS+=("")
  COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
  "$1"
  [[ ${COMPREPLY[*]} == "$3" ]] || { echo "\"$2\" offers \"${COMPREPLY[*]}\" instead of \"$3\""; status=1; }
}

expect _tessel "tessel co" "convert colour"
expect _tessel "tessel randomize x --section " "All Player Weapon Enemy Misc"
expect _tessel "tessel settings x --section P" "Player"
expect _tessel "tessel colour x --format h" "html"
expect _tessel "tessel check x --explain open-b" "open-brace"
expect _tessel "tessel new 15" "15AU 15AD 15AG"
expect _tessel "tessel words " "list get set remove import export"
expect _tessel "tessel words export --o" "--output"
expect _tessel "tessel set x --f" "--force"
expect _tessel "tessel level x --ti" "--title"
expect _tessel "tessel level $file 0/1" "0/1 0/10"
expect _tessel "tessel help w" "words"
expect _tessel "tessel convert x --line-ends " "control keep"
expect _tessel "tessel get $file MAXPL" "MAXPLAYERHEALTH MAXPLAYERATOMICHEALTH"
expect _tessel "tessel convert ${file%.dat}" "$file"
expect _zanth_manager "zanth-manager --d" "--dark"
expect _zanth_manager "zanth-manager ${file%.dat}" "$file"
exit $status
