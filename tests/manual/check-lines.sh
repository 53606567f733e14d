#!/usr/bin/env bash
# Usage: check-lines.sh SOURCES
# Fails when a line of the texts for people has more than 100 columns.
set -uo pipefail
cd "$1" || exit 1
export LC_ALL=C.UTF-8
texts=(README.md CONTRIBUTING.md CHANGELOG.md docs/*.md docs/man/*.1)
long=$(grep -nE '^.{101,}' "${texts[@]}" | sed -E 's/^([^:]*:[0-9]+):.*/\1 has more than 100 columns/')
[ -z "$long" ] || { echo "$long"; exit 1; }
