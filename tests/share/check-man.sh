#!/bin/sh
# Usage: check-man.sh DIRECTORY. Fails on any warning about a manual page in it.
status=0
for page in "$1"/*.1; do
  warnings=$(groff -man -ww -z -Tutf8 "$page" 2>&1)
  [ -z "$warnings" ] || { echo "$warnings"; status=1; }
done
exit $status
