#!/usr/bin/env bash
# Builds Zanth Manager, installing what is missing, and opens it on the given files.
# Without a display it performs a typical session headless instead and leaves a screenshot.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/scripts/packages.sh"

case "${1-}" in
  -h|--help)
    echo "Usage: ./run.sh [FILE...]   opens the CON files in Zanth Manager"
    exit 0 ;;
esac
for file in "$@"; do
  [ -f "$file" ] || { echo "./run.sh: $file: no such file" >&2; exit 2; }
done

install_missing "${build_packages[@]}"

# build TARGET...: what these take, and nothing else.
build() {
  local quiet=(); [ -t 1 ] || quiet=(-- --quiet)
  echo "==> Building (build/release)"
  (cd "$here" && cmake --preset release -DTESSEL_TESTS=OFF >/dev/null && cmake --build --preset release --target "$@" "${quiet[@]}")
}

if [ -n "${DISPLAY-}${WAYLAND_DISPLAY-}" ]; then
  build zanth-manager
  exec "$here/build/release/src/host/zanth-manager" "$@"
fi
build zanth-manager tessel-drive
echo "==> There is no display: performing a typical session without one"
exec "$here/scripts/typical-session.sh" "$here/build/release" "$@"
