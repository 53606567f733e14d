#!/usr/bin/env bash
# Fails where one of the files names the folder, or is missing. Usage: check-folders.sh FOLDER FILE...
status=0
grep -laF -- "$@" || status=$?
[ "$status" -eq 1 ]
