#!/usr/bin/env bash
# Takes the pictures of the manual again, from the window as it is now.
# Usage: docs/screenshots.sh [FOLDER [--dark]]    (QT_SCALE_FACTOR=2 takes them at 200 %)
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
(cd "$here" && cmake --preset release >/dev/null && cmake --build --preset release --target tessel-pictures) | tail -n 1
QT_QPA_PLATFORM=offscreen "$here/build/release/docs/pictures/tessel-pictures" "${1-$here/docs/images}" "${@:2}"
