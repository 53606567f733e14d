#!/usr/bin/env bash
# The Debian packages are built with what scripts/packages.sh installs for ./run.sh, and debhelper.
# Usage: check-build-depends.sh SOURCES
set -euo pipefail
cd "$1"
. scripts/packages.sh
# The first comes with every build of a package; the others are for running.
diff <(printf '%s\n' "${build_packages[@]}" | grep -vxE 'g\+\+|libqt6svg6|fonts-dejavu-core' | sort) \
  <(sed -n '/^Build-Depends:/,/^[^ B]/s/^ \([^ ,]*\).*/\1/p' debian/control | grep -vx debhelper-compat | sort)
