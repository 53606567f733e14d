#!/usr/bin/env bash
# Tries README's two commands on a Debian 12 that has nothing but what Debian always installs:
# ./run.sh and ./test.sh have to install the rest. What is committed (HEAD) is tried.
#
# Usage: scripts/bare-machine.sh [--all | --configure-only] [--keep]
#
#   --all             runs ./test.sh --all in place of ./test.sh
#   --configure-only  installs the packages of both commands and runs CMake, but builds nothing:
#                     tells in a few minutes whether scripts/packages.sh lists all that CMake needs
#   --keep            keeps the folder of the bare machine and says where it is
#
# The bare machine is a folder below TMPDIR (some gigabytes) with processes and mounts of its own.
# It takes packages from where this machine takes those of Debian 12, from mirrors that Debian's
# keys have signed. This needs root or sudo.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

usage() { sed -n 's/^# \(Usage: .*\)/\1/p' scripts/bare-machine.sh; }
fail() { echo "Bare machine: $*" >&2; exit 1; }

given=("$@")
test_command=./test.sh
configure_only='' keep=''
for argument in "$@"; do
  case $argument in
    -h|--help) usage; exit 0 ;;
    --all) test_command='./test.sh --all' ;;
    --configure-only) configure_only=1 ;;
    --keep) keep=1 ;;
    *) usage >&2; exit 2 ;;
  esac
done
[[ -n $configure_only && $test_command == *--all ]] && { usage >&2; exit 2; }

proxies=(http_proxy https_proxy ftp_proxy no_proxy HTTP_PROXY HTTPS_PROXY FTP_PROXY NO_PROXY)
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || fail "this needs root or sudo"
  kept=$(IFS=,; echo "TMPDIR,TERM,${proxies[*]}")
  exec sudo --preserve-env="$kept" "$BASH" scripts/bare-machine.sh ${given[@]+"${given[@]}"}
fi
install_missing mmdebstrap git util-linux

umask 022
work=$(mktemp -d -t bare-machine.XXXXXX)
root=$work/root

# Mounts are made in namespaces, which end with the processes in them: nothing is to be unmounted.
child='' results=() failed=''
clean_up() {
  [ ${#results[@]} -gt 0 ] || echo "Bare machine: bootstrap FAILED" >&2
  if [ -n "$child" ]; then
    kill -KILL "$child" 2>/dev/null || true
    wait "$child" 2>/dev/null || true
  fi
  if [ -n "$keep" ]; then
    echo "Bare machine: kept in $root"
  else
    echo "Bare machine: removing $work"
    # What was killed may still be writing.
    rm -rf --one-file-system "$work" 2>/dev/null ||
      { sleep 2; rm -rf --one-file-system "$work"; }
  fi
}
trap clean_up EXIT
trap 'exit 130' INT
trap 'exit 143' TERM HUP

# A command with processes and mounts of its own; all of them end when this script does.
apart() {
  unshare --mount --pid --ipc --uts --fork --kill-child --mount-proc --propagation private "$@" \
    </dev/null &
  child=$!
  local status=0
  wait "$child" || status=$?
  child=''
  return "$status"
}

# What apt knows about Debian 12, whatever files it knows it from.
describe_sources() {
  apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' |
    grep -E ' bookworm(-updates|-security)? main$' | sort -u
}

# The files of apt, and of what it uses, that this machine may need to reach its mirrors. Runs with
# the folder of the bare machine before apt is used there.
cat >"$work/copy-settings" <<'END'
set -eu
for path in auth.conf auth.conf.d mirrors; do
  [ ! -e "/etc/apt/$path" ] || cp -R --preserve=mode,ownership "/etc/apt/$path" "$1/etc/apt/"
done
mkdir -p "$1/usr/local/share/ca-certificates"
for file in /usr/local/share/ca-certificates/*.crt; do
  [ ! -f "$file" ] || cp "$file" "$1/usr/local/share/ca-certificates/"
done
END

bootstrap() {
  describe_sources >"$work/sources.list" || fail "apt knows no source of Debian 12 (bookworm main)"
  local unwanted='IndexTargets|CompressionTypes|Changelogs|cdrom|[a-z]+::Proxy-Auto-?Detect'
  apt-config dump | grep '^Acquire::' | grep -vE "^Acquire::($unwanted)" >"$work/apt.conf"
  # Who clones has git, the certificates that it needs, and, not being root, sudo.
  apart env TMPDIR="$work" mmdebstrap --quiet --mode=root --variant=minbase \
    --include=git,ca-certificates,sudo --aptopt="$work/apt.conf" \
    --setup-hook=". '$work/copy-settings'" \
    --customize-hook='chroot "$1" update-ca-certificates >/dev/null 2>&1' \
    bookworm "$root" "$work/sources.list"

  echo bare >"$root/etc/hostname"
  { cat /etc/hosts; echo "127.0.1.1 bare"; } >"$root/etc/hosts"
  rm -f "$root/etc/resolv.conf"
  cat /etc/resolv.conf >"$root/etc/resolv.conf"
  chroot "$root" useradd --create-home --shell /bin/bash user
  {
    echo 'user ALL=(ALL) NOPASSWD: ALL'
    echo "Defaults env_keep += \"${proxies[*]}\""
  } >"$root/etc/sudoers.d/user"
  chmod 440 "$root/etc/sudoers.d/user"

  git -c safe.directory='*' bundle create --quiet "$root/home/user/tessel.bundle" HEAD
  in_bare_machine 'git -c advice.detachedHead=false clone --quiet tessel.bundle tessel'
}

# Runs in namespaces of its own: mounts what a machine has, and performs a command as the user.
cat >"$work/enter" <<'END'
set -euo pipefail
root=$1 command=$2
shift 2
hostname bare
# The folder may lie where programs of other users, such as sudo, are not allowed to be run.
mount --bind "$root" "$root"
mount -o remount,bind,suid,dev,exec "$root"
cd "$root"
mount -t proc proc proc
mount --rbind /sys sys
mount -t tmpfs -o mode=755 tmpfs dev
for device in null zero full random urandom tty; do
  [ -e "/dev/$device" ] || continue
  touch "dev/$device"
  mount --bind "/dev/$device" "dev/$device"
done
mkdir dev/pts dev/shm
mount -t devpts -o newinstance,ptmxmode=666,mode=620,gid=5 devpts dev/pts
mount -t tmpfs -o mode=1777,nosuid,nodev tmpfs dev/shm
ln -s pts/ptmx dev/ptmx
ln -s /proc/self/fd dev/fd
ln -s /proc/self/fd/0 dev/stdin
ln -s /proc/self/fd/1 dev/stdout
ln -s /proc/self/fd/2 dev/stderr
# Not chroot: who is in a chroot may not make user namespaces, and users of a machine may.
mkdir dev/machine
pivot_root . dev/machine
umount --lazy /dev/machine
rmdir /dev/machine
setpriv --reuid=user --regid=user --init-groups /usr/bin/env -i "$@" \
  /bin/bash -c "cd && [ ! -d tessel ] || cd tessel; $command"
END

in_bare_machine() {
  local name environment=(
    HOME=/home/user LANG=C.UTF-8 "TERM=${TERM-dumb}"
    PATH=/usr/local/bin:/usr/bin:/bin:/usr/local/games:/usr/games
  )
  for name in "${proxies[@]}"; do
    [ -z "${!name-}" ] || environment+=("$name=${!name}")
  done
  apart bash "$work/enter" "$root" "$1" "${environment[@]}"
}

# perform NAME COMMAND: says how long it took in the bare machine, and goes on if it fails.
perform() {
  local started=$SECONDS outcome=passed
  echo "Bare machine: $1"
  in_bare_machine "$2" || { outcome="FAILED (exit status $?)"; failed=1; }
  results+=("$(printf '%-36s %5d s  %s' "$1" $((SECONDS - started)) "$outcome")")
}

[ -z "$(git -c safe.directory='*' status --porcelain --untracked-files=no)" ] ||
  echo "Bare machine: changes that are not committed are left out"
echo "Bare machine: bootstrap"
bootstrap
results+=("$(printf '%-36s %5d s' bootstrap "$SECONDS")")

if [ -n "$configure_only" ]; then
  lists='. scripts/packages.sh; install_missing "${build_packages[@]}"'
  perform 'packages of ./run.sh, configure' "set -e; $lists
    cmake --preset release -DTESSEL_TESTS=OFF >/dev/null"
  lists+=' "${test_packages[@]}" "${all_packages[@]}"'
  perform 'packages of ./test.sh, configure' "set -e; $lists
    cmake --preset release -DTESSEL_TESTS=ON >/dev/null
    cmake --preset asan-ubsan -DTESSEL_TESTS=ON >/dev/null"
else
  perform ./run.sh ./run.sh
  perform "$test_command" "$test_command"
fi

echo
printf 'Bare machine: %s\n' "${results[@]}"
[ -z "$failed" ] || fail "FAILED"
echo "Bare machine: all passed"
