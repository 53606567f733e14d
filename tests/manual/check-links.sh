#!/usr/bin/env bash
# Usage: check-links.sh SOURCES
# Fails when a link, a picture, a file or a heading that the texts name is not there.
set -uo pipefail
cd "$1" || exit 1
status=0
checked=0

complain() { echo "$*"; status=1; }

# expect TEXT DIRECTORY NAME
expect() {
  checked=$((checked + 1))
  [ -e "$2/$3" ] || complain "$1 names $3, which is not there"
}

# prose TEXT: without its blocks of code.
prose() { awk '/^ *```/ { code = !code; next } !code' "$1"; }

# anchors TEXT: its headings as links name them.
anchors() { prose "$1" | grep -E '^#+ ' | sed -E 's/^#+ //' | tr 'A-Z ' 'a-z-' | tr -cd 'a-z0-9_\n-'; }

for text in README.md CONTRIBUTING.md CHANGELOG.md docs/*.md; do
  # Links and pictures count from where the text is, names in backticks from the top; KEY, FOLDER and Your
  # in a name stand for any name.
  while read -r target; do
    [[ $target == *://* || $target == mailto:* ]] && continue
    file=${target%%#*}
    [ -z "$file" ] || expect "$text" "$(dirname "$text")" "$file"
    [[ $target == *'#'* ]] || continue
    file=${file:+$(dirname "$text")/$file}
    anchors "${file:-$text}" | grep -qxF -- "${target#*#}" || complain "$text names $target, a heading that is not there"
  done < <(prose "$text" | grep -oE '\]\([^)]*\)|^\[[a-z]+\]: .*' | sed -E 's/^\]\(([^) ]*).*/\1/; s/^\[[a-z]+\]: //')
  while read -r name; do
    expect "$text" . "$name"
  done < <(grep -oE '`(\./)?(docs|src|tests|scripts|share|packaging|data|examples|bench|cmake)/[A-Za-z0-9_./-]*`' "$text" |
    tr -d '`' | grep -vE 'KEY|Your|FOLDER')
  while read -r picture; do
    expect "$text" docs "$picture"
  done < <(grep -oE 'images/[A-Za-z0-9_-]+\.png' "$text")
done
[ "$checked" -gt 0 ] || complain "No links found"
exit $status
