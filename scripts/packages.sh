# Installs the Debian packages that are missing. Source it, then call: install_missing PACKAGE...

# What the programs are built with.
build_packages=(
  g++ cmake ninja-build pkg-config
  qt6-base-dev qt6-svg-dev libqt6svg6 qt6-tools-dev qt6-l10n-tools libqscintilla2-qt6-dev
  libgl-dev libxcb1-dev libsqlite3-dev libcli11-dev nlohmann-json3-dev libtomlplusplus-dev
  fonts-dejavu-core
)
# What "./test.sh" takes besides.
test_packages=(
  libgtest-dev libgmock-dev librapidcheck-dev libqt6opengl6-dev
  groff-base util-linux
  dbus-bin dbus-daemon libglib2.0-bin
)
# What "./test.sh --all" takes besides: sanitizers, fuzzing, format, lint, packages, and a display.
all_packages=(
  clang libclang-rt-14-dev clang-format clang-tidy git
  desktop-file-utils appstream libxml2-utils shared-mime-info file
  build-essential dpkg-dev debhelper devscripts lintian
  xvfb xdotool xauth openbox x11-utils at-spi2-core
  zsh fish patch
  neovim emacs-nox elpa-eglot
)
# What the programs of bench/ take besides; no test does.
# shellcheck disable=SC2034
bench_packages=(libbenchmark-dev xvfb)

install_missing() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0

  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || {
      echo "These packages are missing, and there is no sudo to install them: ${missing[*]}" >&2
      return 1
    }
    as_root=(sudo)
  fi
  echo "==> Installing ${missing[*]}"
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}
