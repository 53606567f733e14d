#!/usr/bin/env bash
# Performs a typical session without a window, on a copy of a CON file, and says what it did:
# opens the file, looks up the player's health, changes it, saves. Leaves a screenshot.
#
# Usage: typical-session.sh BUILD-DIRECTORY [FILE]
set -euo pipefail
build=$1
source_file=${2-}
here=$(cd "$(dirname "$0")/.." && pwd)
: "${source_file:=$here/data/zmuserp.dat}"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
copy=$work/User.con
cp -- "$source_file" "$copy"
screenshot=$here/build/screenshot.png

coproc DRIVE { "$build/src/drive/tessel-drive" --platform headless --host-dir "$here/data"; }

# Sends a command, prints what it plays, and keeps the reply.
play() {
  printf '%s\n' "$2" >&"${DRIVE[1]}"
  IFS= read -r reply <&"${DRIVE[0]}"
  [[ $reply == *'"ok":true'* ]] || { echo "  $1: failed: $reply" >&2; exit 1; }
  echo "  $1"
}
value() { sed -n 's/.*"Text":"\([^"]*\)".*/\1/p' <<<"$reply"; }
image() { sed -n 's/.*"image":"\([^"]*\)".*/\1/p' <<<"$reply"; }

echo "Zanth Manager, a typical session:"
play "Choose $(basename "$source_file") (a copy of it) in the open dialog" "{\"do\":\"answer\",\"open\":[\"$copy\"]}"
play "Open it with the toolbar" '{"do":"click","control":"tbToolBar","key":"FileOpen"}'
play "Pick \"Player Items\"" '{"do":"click","control":"tbsCon","tab":1}'
play "Pick \"Max Regular Health\"" '{"do":"select","control":"lstPlayers","entry":0}'
play "Look at the value box" '{"do":"get","control":"cmbweap","index":0}'
old=$(value)
echo "    its value is ${old:-not in this file}"
play "Type 150" '{"do":"type","control":"cmbweap","index":0,"text":"150"}'
play "Look at the tab" '{"do":"state"}'
echo "    its dot is $(image)"
play "Save from the editor's menu" '{"do":"popup","item":"mnuRtbPopupFileSave"}'
play "Look at the tab" '{"do":"state"}'
echo "    its dot is $(image)"
printf '%s\n' '{"do":"quit"}' >&"${DRIVE[1]}"
echo "What changed in the file:"
diff --text "$source_file" "$copy" | sed 's/^/  /' | tr -d '\r' || true

mkdir -p "$here/build"
QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES='*.warning=false' XDG_RUNTIME_DIR=$work XDG_STATE_HOME=$work/state ZANTHMAN_STORE=$work/settings.db \
  "$build/src/host/zanth-manager" --host-dir "$here/data" --screenshot "$screenshot" "$copy"
echo "A screenshot of the window: build/screenshot.png"
