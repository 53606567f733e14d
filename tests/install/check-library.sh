#!/usr/bin/env bash
# Installs into an empty prefix and works with what is there, as the author of another program does.
#
# Usage: check-library.sh SOURCES BUILD VERSION
set -euo pipefail
sources=$1 build=$2 version=$3
soname=libTessel.so.${version%.*}
export QT_QPA_PLATFORM=offscreen

fail() { echo "check-library: $*" >&2; exit 1; }
say() { echo "==> $*"; }

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix
export ZANTHMAN_STORE=$work/settings.db

say "Installing"
cmake --install "$build" --prefix "$prefix" >"$work/install.log" || fail "it cannot be installed"
library=$(find "$prefix" -name libTessel.so)
[ -n "$library" ] || fail "there is no libTessel.so"
libraries=$(dirname "$library")
export PKG_CONFIG_PATH=$libraries/pkgconfig

say "Looking at the library"
[ "$(readlink "$library")" = "$soname" ] || fail "libTessel.so does not lead to $soname"
[ "$(readlink "$libraries/$soname")" = "libTessel.so.$version" ] || fail "$soname does not lead to $version"
readelf -d "$library" >"$work/dynamic"
grep -q "SONAME.*\[$soname\]" "$work/dynamic" || fail "its SONAME is not $soname"
grep -Eq 'RPATH|RUNPATH' "$work/dynamic" && fail "it names a directory of the build"
# Every name that can be linked to is one of the public classes.
nm -DC --defined-only "$library" | awk '$2 ~ /^[A-Z]$/ && $2 != "A" { $1 = $2 = ""; print }' >"$work/names"
nm -D "$library" | grep -w "A TESSEL_${version%.*}" >"$work/node" || fail "its symbols are not those of version ${version%.*}"
grep -q ' ucTessel::Convert()' "$work/names" || fail "ucTessel::Convert() is not public"
if grep -vE '^ +((typeinfo|typeinfo name|vtable|non-virtual thunk) (for|to) )?(ucTessel|TesselAutomation)(::|@@|$)' "$work/names"; then
  fail "these names are public too"
fi

say "Compiling each header alone"
for header in "$prefix"/include/Tessel/*.h; do
  echo "#include <Tessel/$(basename "$header")>" >"$work/alone.cpp"
  # shellcheck disable=SC2046
  g++ -std=c++17 -fPIC -DQT_NO_KEYWORDS -Wall -Wextra -Wpedantic -Werror -fsyntax-only $(pkg-config --cflags tessel | sed 's|-I/usr|-isystem /usr|g') "$work/alone.cpp" ||
    fail "$(basename "$header") does not compile alone"
  grep -qE '#include "' "$header" && fail "$(basename "$header") includes what is not installed"
done

# It runs until somebody closes it: only the clock ends it here.
runs() {
  local status=0
  timeout 3 "$@" >"$work/output" 2>&1 || status=$?
  [ "$status" -eq 124 ] || { cat "$work/output"; fail "$1 ended by itself: $status"; }
}

# build_plainly SOURCE PROGRAM [PACKAGE...]
build_plainly() {
  # shellcheck disable=SC2046
  g++ -std=c++17 -fPIC "$1" -o "$2" $(pkg-config --cflags --libs tessel "${@:3}") || fail "$(basename "$1") does not build with pkg-config"
}

say "Building and running the example of the guide (CMake)"
cmake -S "$sources/examples/embed" -B "$work/embed" -DCMAKE_PREFIX_PATH="$prefix" >"$work/cmake.log" ||
  { cat "$work/cmake.log"; fail "find_package(Tessel) does not find it"; }
cmake --build "$work/embed" >"$work/cmake.log" 2>&1 || { cat "$work/cmake.log"; fail "the example does not build"; }
ldd "$work/embed/embed-example" >"$work/needed"
grep -q "$libraries/$soname" "$work/needed" || fail "the example runs with another library"
runs "$work/embed/embed-example" "$sources/data/zmuser.dat"

say "Building and running it (pkg-config)"
[ "$(pkg-config --modversion tessel)" = "$version" ] || fail "pkg-config has another version"
build_plainly "$sources/examples/embed/main.cpp" "$work/plain-example"
LD_LIBRARY_PATH=$libraries runs "$work/plain-example" "$sources/data/zmuser.dat"

say "Making a document from an installed template"
printf 'changed here' >"$prefix/share/zanth-manager/zmuserp.dat"
build_plainly "$sources/tests/install/template.cpp" "$work/template"
[ "$(LD_LIBRARY_PATH=$libraries "$work/template" 2>/dev/null)" = "changed here" ] || fail "it is not the installed template"

say "Loading a form by the installed plugin"
plugin=$(find "$prefix" -path '*/designer/libtessel.so')
[ -n "$plugin" ] || fail "there is no plugin for Qt Designer"
ldd "$plugin" >"$work/needed"
grep -q "libTessel.so.* => $prefix/" "$work/needed" || fail "the plugin does not find the library beside it"
cmake -S "$sources/examples/form" -B "$work/form" >"$work/cmake.log" || { cat "$work/cmake.log"; fail "cmake failed"; }
cmake --build "$work/form" >"$work/cmake.log" 2>&1 || { cat "$work/cmake.log"; fail "the form's example does not build"; }
QT_PLUGIN_PATH=$(dirname "$(dirname "$plugin")") runs "$work/form/form-example" "$sources/examples/form/form.ui"

say "Using two controls from another process"
build_plainly "$sources/tests/install/automation.cpp" "$work/automation" Qt6DBus
cat >"$work/use-both.sh" <<'SESSION'
set -euo pipefail
LD_LIBRARY_PATH=$1 "$2" >"$3" 2>/dev/null &
trap 'kill $!' EXIT
for ((i = 0; i < 600; ++i)); do [ "$(wc -l <"$3")" -eq 2 ] && break; sleep 0.05; done
while read -r path; do
  gdbus call --session --dest org.example.Program --object-path "$path" --method Tessel.ucTessel.SetTesselVersion Zanth15 "of $path"
done <"$3"
SESSION
answers=$(dbus-run-session -- bash "$work/use-both.sh" "$libraries" "$work/automation" "$work/paths" 2>"$work/errors") || fail "$(cat "$work/errors")"
[ "$answers" = "('Zanth15', 'of /Tessel/ucTessel/1')
('Zanth15', 'of /Tessel/ucTessel/2')" ] || fail "the controls do not answer: $answers $(cat "$work/paths")"

say "Done"
