#!/bin/sh
# Usage: check-version.sh SOURCES VERSION. Fails where a file names another version.
set -e
cd "$1"
grep -q "<release version=\"$2\"" share/org.zanthman.ZanthManager.metainfo.xml
grep -q "^## $2\$" CHANGELOG.md
grep -q "^zanth-manager ($2)" debian/changelog
for page in docs/man/*.1; do head -n 1 "$page" | grep -q "\"Tessel $2\""; done
