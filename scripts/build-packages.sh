#!/usr/bin/env bash
# Builds the Debian packages: scripts/build-packages.sh DIRECTORY
#
# The sources are copied into the folder "sources" of the directory, as they are now, and built there; the packages
# are left beside it. What the directory held is removed.
set -euo pipefail
[ $# -eq 1 ] || { echo "Usage: scripts/build-packages.sh DIRECTORY" >&2; exit 2; }
directory=$(realpath -m "$1")
cd "$(dirname "$0")/.."

rm -rf "$directory"
mkdir -p "$directory/sources"
git ls-files -z --cached --others --exclude-standard --deduplicate |
  tar --create --null --files-from=- | tar --extract --directory="$directory/sources"
cd "$directory/sources"
# debhelper gives what it builds with a home of its own.
if command -v ccache >/dev/null; then
  CCACHE_DIR=$(ccache --get-config cache_dir)
  export CCACHE_DIR CMAKE_CXX_COMPILER_LAUNCHER=ccache
fi
dpkg-buildpackage -us -uc -j"$(nproc)" >../log 2>&1 || { tail -n 50 ../log >&2; exit 1; }
