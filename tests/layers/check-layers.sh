#!/usr/bin/env bash
# Every include of a folder of src/ goes to a folder that the table of the architecture allows:
# check-layers.sh SOURCE-ROOT [TABLE]
# The table's rows are "| `folder` | ... | what it may use, each in backquotes |", from the bottom up: a folder uses
# only such as have a row above its own. A row that begins "| | |" goes on with the row above it.
# Prints FILE:LINE of each include that runs against it.
set -euo pipefail
root=$(cd "$1" && pwd)
table=${2:-$root/docs/architecture.md}
most=40

list=$(mktemp)
trap 'rm -f "$list"' EXIT
cd "$root/src"
find . -name '*.h' -o -name '*.cpp' | sed 's|^\./||' | sort >"$list"

awk -v most="$most" -v list="$list" '
  function folder_of(path) { return sub(/\/[^\/]*$/, "", path) ? path : "." }
  function complain(text) { print text; bad = 1 }

  FILENAME != list && /^\| (`[A-Za-z\/]+`|\| ) ?\|/ {
    cells = split($0, cell, /\|/)
    gsub(/[` ]/, "", cell[2])
    begins = cell[2] != ""
    if (begins) folder = cell[2]
    if (begins && folder in row) complain("the table has two rows for " folder)
    rest = cell[cells - 1]
    while (match(rest, /`[A-Za-z\/]+`/)) {
      used = substr(rest, RSTART + 1, RLENGTH - 2)
      rest = substr(rest, RSTART + RLENGTH)
      if (!(used in row) || used == folder) complain("the table lets " folder " use " used ", which has no row above it")
      allowed[folder, used] = 1
    }
    if (begins) row[folder] = ++rows
  }

  FILENAME == list { file[$0] = 1; if (++count[folder_of($0)] == most + 1) complain(folder_of($0) "/ has more than " most " files") }

  END {
    if (rows == 0) complain("there is no table")
    for (path in file) {
      here = folder_of(path)
      if (!(here in row)) { if (!(here in told)) complain("src/" here "/ has no row in the table"); told[here] = 1; continue }
      line = 0
      while ((getline text < path) > 0) {
        ++line
        if (!match(text, /^#include "[^"]+"/)) continue
        wanted = substr(text, 11, RLENGTH - 11)
        if (!(wanted in file)) continue  # beside it, or generated
        there = folder_of(wanted)
        if (there != here && !((here, there) in allowed)) {
          complain("src/" path ":" line ": " here "/ may not use " there "/ (" wanted ")")
        }
        ++includes
      }
      close(path)
    }
    if (includes == 0) complain("no include was read")
    exit bad
  }' "$table" "$list"
