#!/usr/bin/env bash
# Runs a program in a locale that this system need not have: it is made in a folder of the tests' own.
#
# Usage: in-locale.sh FOLDER LOCALE COMMAND [ARGUMENT...]     LOCALE "none" sets no variable at all
set -euo pipefail
folder=$1 locale=$2
shift 2

unset LANG LANGUAGE "${!LC_@}"
mkdir -p "$folder"
export LOCPATH=$folder
case $locale in
  none) exec "$@" ;;
  *.*)
    if [ ! -d "$folder/$locale" ]; then
      new=$(mktemp -d "$folder/new-XXXXXX")
      localedef --no-archive -i "${locale%%.*}" -f "${locale#*.}" "$new/$locale" >/dev/null 2>&1 ||
        { rm -rf "$new"; echo "this system cannot make the locale $locale"; exit 77; }
      mv -T "$new/$locale" "$folder/$locale" 2>/dev/null || true  # another test may have been first
      rm -rf "$new"
    fi ;;
esac
export LC_ALL=$locale
[ "${locale#*.}" = "$locale" ] || [ "$(locale charmap)" = "${locale#*.}" ] ||
  { echo "the locale $locale is not in force" >&2; exit 1; }
TESSEL_DECIMAL_POINT=$(locale decimal_point)
export TESSEL_DECIMAL_POINT
exec "$@"
