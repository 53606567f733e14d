#!/usr/bin/env bash
# Usage: check-links.sh SOURCES
# Fails when a link, a picture or a file that the texts name is not there.
set -uo pipefail
cd "$1" || exit 1
status=0
checked=0

# expect TEXT DIRECTORY NAME
expect() {
  checked=$((checked + 1))
  [ -e "$2/$3" ] || { echo "$1 names $3, which is not there"; status=1; }
}

for text in README.md docs/*.md; do
  # Links and pictures count from where the text is, names in backticks from the top; KEY in a name
  # stands for any key.
  while read -r target; do
    [[ $target == *://* || $target == mailto:* || -z $target ]] || expect "$text" "$(dirname "$text")" "$target"
  done < <(grep -oE '\]\([^)]*\)' "$text" | sed -E 's/^\]\(([^)# ]*).*/\1/')
  while read -r name; do
    expect "$text" . "$name"
  done < <(grep -oE '`(\./)?(docs|src|tests|scripts|share|packaging|data|examples|bench|cmake)/[A-Za-z0-9_./-]*`' "$text" |
    tr -d '`' | grep -v KEY)
  while read -r picture; do
    expect "$text" docs "$picture"
  done < <(grep -oE 'images/[A-Za-z0-9_-]+\.png' "$text")
done
[ "$checked" -gt 0 ] || { echo "No links found"; status=1; }
exit $status
