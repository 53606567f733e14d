#!/usr/bin/env bash
# Usage: check-names.sh SOURCES
# Fails when a name with the prefix of an old kind, in a header, is missing in docs/glossary.md.
set -uo pipefail
cd "$1" || exit 1
prefixes='mod|frm|rtb|tbs|pic|fra|lst|cmb|cbo|lbl|opt|txt|cmd|dlg|tmr|mnu|tb|chk|uc'
names=$(grep -rhoE --include='*.h' "\b($prefixes)[A-Z][A-Za-z]*" src | grep -v Popup. | sort -u)
[ -n "$names" ] || { echo "No names found"; exit 1; }
status=0
for name in $names; do
  grep -qE "\`$name[\`(]" docs/glossary.md || { echo "docs/glossary.md lacks $name"; status=1; }
done
exit $status
