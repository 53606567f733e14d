#!/usr/bin/env bash
# Installs the Debian packages of a directory on this machine, runs the programs, builds with the library as
# debian/tests says, and removes them: scripts/use-packages.sh DIRECTORY
#
# It takes root, and a machine that has none of the packages; scripts/on-copy.sh makes one.
set -euo pipefail
[ $# -eq 1 ] || { echo "Usage: scripts/use-packages.sh DIRECTORY" >&2; exit 2; }
built=$(realpath "$1")
cd "$(dirname "$0")/.."

fail() { echo "use-packages: $*" >&2; exit 1; }
say() { echo "==> $* ($SECONDS s)"; }

mapfile -t packages < <(sed -n 's/^Package: //p' debian/control)
files=()
for package in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' && fail "$package is installed already; remove it first"
  files+=("$built/$package"_[0-9]*.deb)
done
work=$(mktemp -d)
trap 'dpkg --purge "${packages[@]}" >/dev/null 2>&1; rm -rf "$work"' EXIT

say "Installing"
dpkg --install "${files[@]}" >/dev/null
dpkg --listfiles "${packages[@]}" | sort -u >"$work/paths"

say "Running what was installed"
export ZANTHMAN_STORE=$work/settings.db QT_QPA_PLATFORM=offscreen
(cd "$work" && /usr/bin/tessel new 15AU -o User.con && cmp User.con /usr/share/zanth-manager/zmuserp.dat)
/usr/bin/tessel --version
/usr/bin/zanth-manager --version
/usr/bin/zanth-manager --screenshot "$work/window.png" "$work/User.con"
[ -s "$work/window.png" ] || fail "the window left no picture"

for test in $(sed -n 's/^Tests: //p' debian/tests/control); do
  say "Running debian/tests/$test"
  mkdir "$work/$test"
  AUTOPKGTEST_TMP=$work/$test "debian/tests/$test" >"$work/log" 2>&1 || { cat "$work/log"; fail "debian/tests/$test failed"; }
done

say "Removing"
dpkg --remove "${packages[@]}" >/dev/null
while read -r path; do
  [ -d "$path" ] || { [ ! -e "$path" ] && [ ! -L "$path" ]; } || fail "$path is still there"
done <"$work/paths"
[ -d /usr/share/zanth-manager ] && fail "/usr/share/zanth-manager is still there"
say "Done"
