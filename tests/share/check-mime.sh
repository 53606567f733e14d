#!/bin/sh
# Usage: check-mime.sh SHARE. Builds a MIME database of the project's type and looks a name up in it.
set -e
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/mime/packages"
cp "$1/zanth-manager-mime.xml" "$work/mime/packages/"
update-mime-database "$work/mime"
grep -qx '50:text/x-zanth-con:\*\.con' "$work/mime/globs2"
grep -qx 'text/x-zanth-con text/plain' "$work/mime/subclasses"
