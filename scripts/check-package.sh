#!/usr/bin/env bash
# Builds the Debian packages in build/package from the sources as they are now, and looks at what is in them.
# scripts/use-packages.sh installs them.
set -euo pipefail
cd "$(dirname "$0")/.."
here=$PWD

fail() { echo "check-package: $*" >&2; exit 1; }
say() { echo "==> $* ($SECONDS s)"; }

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
built=$here/build/package
version=$(dpkg-parsechangelog --show-field Version)
name=zanth-manager library=libtessel${version%.*} development=libtessel-dev

say "Building the packages"
scripts/build-packages.sh "$built"

say "Asking lintian"
lintian --allow-root --fail-on error,warning "$built"/*.changes || fail "lintian has errors or warnings"

# look_at PACKAGE: the fields of its file, which is left in $package, and the list of its files.
look_at() {
  say "Looking at $1"
  package=$(echo "$built/$1"_*.deb)
  [ -f "$package" ] || fail "there is no package $1"
  local field
  for field in Package Version Architecture Maintainer Description Section Installed-Size; do
    [ -n "$(dpkg-deb --field "$package" "$field")" ] || fail "the field $field of $1 is empty"
  done
  dpkg-deb --field "$package" Description | sed -n 1p >>"$work/descriptions"
  dpkg-deb --contents "$package" >"$work/contents"
  awk '$2 != "root/root" || $1 ~ /^-.......w/ { exit 1 }' "$work/contents" || fail "bad owners or permissions in $1"
  has "share/doc/$1/copyright" "share/doc/$1/changelog\.gz"
  dpkg-deb --extract "$package" "$work/installed"
}
# has PATTERN...: the list of files has each.
has() {
  local file
  for file in "$@"; do
    grep -qE " \./usr/$file( -> .*)?$" "$work/contents" || fail "it lacks /usr/$file"
  done
}

look_at "$library"
has "lib/.*/libTessel\.so\.$version"
grep -qE 'include|plugins|libTessel\.so( |$)' "$work/contents" && fail "it has what is for building"
[[ $(dpkg-deb --info "$package" shlibs) == "libTessel ${version%.*} $library"* ]] || fail "others cannot depend on $library"
[[ $(dpkg-deb --info "$package" symbols) == *" _ZN8ucTessel7ConvertEv@TESSEL_"* ]] || fail "the symbols of $library are not listed"

look_at "$development"
has 'include/Tessel/ucTessel\.h' 'lib/.*/cmake/Tessel/TesselConfig\.cmake' 'lib/.*/pkgconfig/tessel\.pc' \
  'lib/.*/libTessel\.so' "$(qmake6 -query QT_INSTALL_PLUGINS | sed 's|^/usr/||')/designer/libtessel\.so"
[[ $(dpkg-deb --field "$package" Depends) == *"$library (= $version)"* ]] || fail "it does not depend on $library"

look_at "$name"
depends=$(dpkg-deb --field "$package" Depends)
for needed in libc6 libqt6widgets6 libqt6dbus6 libqscintilla2-qt6 libsqlite3-0; do
  [[ $depends == *$needed* ]] || fail "it does not depend on $needed: $depends"
done
has bin/tessel bin/zanth-manager \
  share/man/man1/tessel.1.gz share/man/man1/zanth-manager.1.gz \
  share/bash-completion/completions/tessel share/bash-completion/completions/zanth-manager \
  share/applications/zanth-manager.desktop share/icons/hicolor/scalable/apps/zanth-manager.svg \
  share/metainfo/org.zanthman.ZanthManager.metainfo.xml share/mime/packages/zanth-manager.xml \
  share/zanth-manager/zmuser.dat share/zanth-manager/zmuserp.dat share/zanth-manager/zmdefs.dat \
  share/zanth-manager/zmdefsp.dat share/zanth-manager/zmgame.dat share/zanth-manager/zmgamep.dat \
  share/zanth-manager/words.txt
[ "$(sort -u "$work/descriptions" | wc -l)" -eq 3 ] || fail "the three packages are not told apart by their descriptions"

say "Looking for the folder of the build"
for package in "$built"/*.deb; do dpkg-deb --extract "$package" "$work/with-symbols"; done
find "$work/with-symbols" -name '*.debug' -exec objcopy --decompress-debug-sections {} \;
grep -rlaF "$here" "$work/with-symbols" && fail "these files name the folder of the build"

say "Asking whether the programs are hardened"
mapfile -t binaries < <(find "$work/installed" -type f \( -name '*.so*' -o -path '*/bin/*' \))
[ ${#binaries[@]} -eq 4 ] || fail "there are ${#binaries[@]} binaries in place of 4"
hardening-check --nocfprotection "${binaries[@]}" >"$work/hardening" || { cat "$work/hardening"; fail "they are not"; }
# Debian's start-up code is not marked as protected, so that no program is: the marks at the functions have to do.
for binary in "${binaries[@]}"; do
  [[ $(dpkg --print-architecture) != amd64 ]] || [ "$(objdump --disassemble "$binary" | grep -c endbr64)" -gt 30 ] ||
    fail "the control flow of $(basename "$binary") is not protected"
done

say "Running it where it was unpacked"
"$work/installed/usr/bin/tessel" new 15AU | cmp - "$work/installed/usr/share/zanth-manager/zmuserp.dat"
say "Done"
