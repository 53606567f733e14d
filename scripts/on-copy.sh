#!/usr/bin/env bash
# Runs a command as root on a copy of this machine: scripts/on-copy.sh COMMAND...
#
# The copy shares this machine's files until one is written, and is gone when the command has ended. The folder of the
# repository cannot be written there. Exits with 77 where no copy can be made: without root, or in a container that
# may not mount.
set -euo pipefail
cd "$(dirname "$0")/.."

skip() { echo "SKIPPED, no copy of this machine can be made: $*" >&2; exit 77; }

# In a namespace of its own: make_copy FOLDER.
make_copy() {
  local root=$1/root folder
  mount -t tmpfs tmpfs "$1" || return 1
  mkdir "$1/written" "$1/work" "$root"
  mount -t overlay -o "lowerdir=/,upperdir=$1/written,workdir=$1/work" overlay "$root" || return 1
  for folder in proc sys dev; do mount --rbind "/$folder" "$root/$folder" || return 1; done
  mount -t tmpfs -o mode=1777 tmpfs "$root/tmp" || return 1
  mkdir -p "$root$PWD"
  mount --bind "$PWD" "$root$PWD" && mount -o remount,bind,ro "$root$PWD"
}

if [ "${1-}" = --in-namespace ]; then
  make_copy "$2" || skip "it may not mount what that takes"
  # shellcheck disable=SC2016
  exec chroot "$2/root" bash -c 'cd "$1" && shift && exec "$@"' bash "$PWD" "${@:3}"
fi

[ $# -gt 0 ] || { echo "Usage: scripts/on-copy.sh COMMAND..." >&2; exit 2; }
if [ "$(id -u)" -ne 0 ]; then
  sudo -n true 2>/dev/null || skip "that takes root"
  exec sudo -n "$BASH" scripts/on-copy.sh "$@"
fi
unshare --mount true 2>/dev/null || skip "it may not have mounts of its own"
work=$(mktemp -d)
trap 'rmdir "$work"' EXIT
unshare --mount --propagation private "$BASH" scripts/on-copy.sh --in-namespace "$work" "$@"
