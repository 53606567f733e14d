#!/usr/bin/env bash
# Builds the Debian packages from a finished build and checks them.
#
# Usage: check-package.sh [--contents-only] [BUILD-DIRECTORY]
#
# Their fields and files are always checked. As root the one of the programs is also installed, they
# are run, and it is removed again; --contents-only leaves that out.
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
contents_only=
[ "${1-}" = --contents-only ] && { contents_only=1; shift; }
build=${1-$here/build/release}

fail() { echo "check-package: $*" >&2; exit 1; }
say() { echo "==> $*"; }

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

say "Building the packages"
(cd "$build" && cpack -G DEB -B "$work/package") >"$work/cpack.log" 2>&1 || { cat "$work/cpack.log" >&2; fail "cpack failed"; }

# look_at PACKAGE: the fields of its file, which is left in $package, and the list of its files.
look_at() {
  say "Looking at $1"
  package=$(echo "$work/package/$1"_*.deb)
  [ -f "$package" ] || fail "there is no package $1"
  local field
  for field in Package Version Architecture Maintainer Description Section Installed-Size; do
    [ -n "$(dpkg-deb --field "$package" "$field")" ] || fail "the field $field of $1 is empty"
  done
  dpkg-deb --contents "$package" >"$work/contents"
  awk '$2 != "root/root" || $1 ~ /^-.......w/ { exit 1 }' "$work/contents" || fail "bad owners or permissions in $1"
}
# has PATTERN...: the list of files has each.
has() {
  local file
  for file in "$@"; do
    grep -qE " \./usr/$file( -> .*)?$" "$work/contents" || fail "it lacks /usr/$file"
  done
}

if [ -f "$build/src/embed/libTessel.so" ]; then
  library=$(sed -n 's/^set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME "\(.*\)")$/\1/p' "$build/CPackConfig.cmake")
  look_at "$library"
  has 'lib/.*/libTessel\.so\.[0-9.]+'
  grep -qE 'include|plugins|libTessel\.so( |$)' "$work/contents" && fail "it has what is for building"
  look_at libtessel-dev
  has 'include/Tessel/ucTessel\.h' 'lib/.*/cmake/Tessel/TesselConfig\.cmake' 'lib/.*/pkgconfig/tessel\.pc' \
    'lib/.*/libTessel\.so' "$(qmake6 -query QT_INSTALL_PLUGINS | sed 's|^/usr/||')/designer/libtessel\.so"
  [[ $(dpkg-deb --field "$package" Depends) == *"$library (= "* ]] || fail "it does not depend on $library"
fi

name=zanth-manager
look_at "$name"
depends=$(dpkg-deb --field "$package" Depends)
for library in libc6 libqt6widgets6 libqt6dbus6 libqscintilla2-qt6 libsqlite3-0; do
  [[ $depends == *$library* ]] || fail "it does not depend on $library: $depends"
done

has bin/tessel bin/zanth-manager \
  share/man/man1/tessel.1 share/man/man1/zanth-manager.1 \
  share/bash-completion/completions/tessel share/bash-completion/completions/zanth-manager \
  share/applications/zanth-manager.desktop share/icons/hicolor/scalable/apps/zanth-manager.svg \
  share/metainfo/org.zanthman.ZanthManager.metainfo.xml share/mime/packages/zanth-manager.xml \
  share/zanth-manager/zmuser.dat share/zanth-manager/zmuserp.dat share/zanth-manager/zmdefs.dat \
  share/zanth-manager/zmdefsp.dat share/zanth-manager/zmgame.dat share/zanth-manager/zmgamep.dat \
  share/zanth-manager/words.txt share/doc/zanth-manager/copyright

say "Running it where it was unpacked"
dpkg-deb --extract "$package" "$work/installed"
"$work/installed/usr/bin/tessel" new 15AU | cmp - "$work/installed/usr/share/zanth-manager/zmuserp.dat"

if [ -n "$contents_only" ] || [ "$(id -u)" -ne 0 ]; then
  say "Done (not installed)"
  exit 0
fi
dpkg-query -W -f='${Status}' "$name" 2>/dev/null | grep -q 'ok installed' && fail "$name is installed already; remove it first"

say "Installing"
dpkg -i "$package" >/dev/null
trap 'dpkg -P "$name" >/dev/null 2>&1; rm -rf "$work"' EXIT
say "Running what was installed"
export ZANTHMAN_STORE=$work/settings.db QT_QPA_PLATFORM=offscreen
(cd "$work" && /usr/bin/tessel new 15AU -o User.con && cmp User.con /usr/share/zanth-manager/zmuserp.dat)
/usr/bin/tessel --version
/usr/bin/zanth-manager --version
/usr/bin/zanth-manager --screenshot "$work/window.png" "$work/User.con"
[ -s "$work/window.png" ] || fail "the window left no picture"
say "Removing"
dpkg -r "$name" >/dev/null
trap 'rm -rf "$work"' EXIT
while read -r path; do
  [ -e "$path" ] && [ ! -d "$path" ] && fail "$path is still there"
done < <(sed -n 's|.* \./|/|p' "$work/contents")
[ -d /usr/share/zanth-manager ] && fail "/usr/share/zanth-manager is still there"
say "Done"
