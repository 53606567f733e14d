#!/usr/bin/env bash
# Brings the files in translations/ up to date with the strings of the sources: new ones come without a
# translation, and those that are gone go. With a FILE it writes what a new translation begins from.
#
# Usage: scripts/update-translations.sh [FILE]
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/translated.sh

if [ $# -gt 0 ]; then
  update_strings "$1"
else
  update_strings translations/zanth-manager_de.ts
  update_strings translations/zanth-manager_en.ts -pluralonly
fi
