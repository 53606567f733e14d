#!/usr/bin/env bash
# Uses the control of a running Zanth Manager from other processes, with the clients that come with D-Bus and
# GLib. To be run with a session bus of its own.
#
# Usage: dbus-run-session -- from-another-process.sh ZANTH-MANAGER TESSEL DATA-DIRECTORY MANUAL
set -euo pipefail
program=$1 tessel=$2 data=$3 manual=$4
name=org.zanthman.ZanthManager object=/Tessel/ucTessel/1

work=$(mktemp -d)
chmod 700 "$work"
export QT_QPA_PLATFORM=offscreen HOME=$work XDG_RUNTIME_DIR=$work XDG_CONFIG_HOME=$work/config
export XDG_STATE_HOME=$work/state ZANTHMAN_STORE=$work/settings.db
trap 'kill $(jobs -p) 2>/dev/null || true; wait 2>/dev/null || true; rm -rf "$work"' EXIT

fail() {
  echo "FAILED: $*" >&2
  tail -n 30 "$work"/*.errors "$work/signals" >&2 || true
  exit 1
}
say() { echo "==> $*"; }
# await WHAT COMMAND...: until the command succeeds.
await() {
  local what=$1 end=$((SECONDS + 30))
  shift
  until "$@" >/dev/null 2>&1; do
    [ $SECONDS -lt $end ] || fail "$what does not come"
    sleep 0.05
  done
}
# expect WANTED COMMAND...: what the command writes, also as errors; "*" in WANTED is anything.
expect() {
  local wanted=$1 got
  shift
  got=$("$@" 2>&1) || true
  # shellcheck disable=SC2053
  [[ $got == $wanted ]] || fail "$* gives \"$got\" instead of \"$wanted\""
}
call() { gdbus call --session --timeout 60 --dest "${to-$name}" --object-path "${at-$object}" --method "$@"; }
bus() { gdbus call --session --dest org.freedesktop.DBus --object-path /org/freedesktop/DBus --method "org.freedesktop.DBus.$@"; }
owner() { bus GetConnectionUnixProcessID "$1" | tr -dc '0-9 ' | sed 's/^32//; s/ //g'; }
owned_by() { [ "$(owner "$1")" = "$2" ]; }
in_signals() { grep -qF -- "$1" "$work/signals"; }
# The number that the bus gave to its latest client.
clients() { dbus-send --session --print-reply --dest=org.freedesktop.DBus /org/freedesktop/DBus org.freedesktop.DBus.GetId | sed -n 's/.*destination=:1\.\([0-9]*\).*/\1/p'; }
# offers_nothing PROCESS BEFORE: the process has no name on the bus, and no client that came after that number has the
# control. The program itself is one of them: it asks the desktop for its colours.
offers_nothing() {
  local client
  owned_by $name "$1" || owned_by "$name.instance$1" "$1" && return 1
  for client in $(seq $(($2 + 1)) "$(clients)"); do
    gdbus introspect --session --dest ":1.$client" --object-path $object 2>/dev/null | grep -q Tessel.ucTessel && return 1
  done
  return 0
}
# start OPTION...: runs the program, its process is $!.
start() {
  runs=$((runs + 1))
  "$program" --host-dir "$data" "$@" 2>"$work/$runs.errors" &
}
runs=0
# A program that runs has a folder for texts that are not saved.
runs_now() { compgen -G "$XDG_STATE_HOME/ZanthMan/recovery/run-$1-*/.lock"; }
told() { grep '^zanth-manager:' "$work/$runs.errors" || true; }

say "Opening a user file"
dbus-monitor --session "type='signal',interface='Tessel.ucTessel'" >"$work/signals" 2>"$work/monitor.errors" &
await "the monitor" in_signals NameAcquired
cp "$data/zmuser.dat" "$work/x.con"
start --automation "$work/x.con"
first=$!
await "the program's name" owned_by $name $first
await "its name as an instance" owned_by $name.instance$first $first

say "Looking at it"
gdbus introspect --session --xml --dest $name --object-path $object >"$work/interface"
sed -n '/<interface name="Tessel.ucTessel">/,/<\/interface>/p' "$work/interface" | sed 's/^ *//' >"$work/offered"
cat >"$work/wanted" <<'XML'
<interface name="Tessel.ucTessel">
<method name="SetTesselVersion">
<arg name="strVersion" type="s" direction="in"/>
<arg name="strDefault" type="s" direction="in"/>
<arg name="strVersion" type="s" direction="out"/>
<arg name="strDefault" type="s" direction="out"/>
</method>
<method name="SetTesselVersion">
<arg name="strVersion" type="s" direction="in"/>
<arg name="strVersion" type="s" direction="out"/>
</method>
<method name="Convert"/>
<signal name="SettingTextColor">
<arg name="StatusText" type="s"/>
</signal>
</interface>
XML
diff "$work/wanted" "$work/offered" || fail "another interface is offered"
expect '*node /Tessel {*node /Tessel/ucTessel {*node /Tessel/ucTessel/1 {*' \
  gdbus introspect --session --recurse --dest $name --object-path /
if command -v busctl >/dev/null; then
  expect '*.Convert *method *.SetTesselVersion *method *ss *ss *.SettingTextColor *signal *s *' \
    busctl --user introspect $name $object
  expect 'ss "Zanth13" "Zanth15"' busctl --user call $name $object Tessel.ucTessel SetTesselVersion ss Zanth13 Zanth15
fi

say "Setting the version"
expect "('Zanth13', 'Zanth15')" call Tessel.ucTessel.SetTesselVersion Zanth13 Zanth15
expect "('Zanth13',)" call Tessel.ucTessel.SetTesselVersion Zanth13
expect "('', '')" call Tessel.ucTessel.SetTesselVersion "''" "''"
expect '*string "1.4/1.5 déjà"' dbus-send --session --print-reply --dest=$name $object Tessel.ucTessel.SetTesselVersion 'string:1.4/1.5 déjà'

say "Calling what is not there"
unknown='*GDBus.Error:org.freedesktop.DBus.Error.UnknownMethod: No such method*'
expect "$unknown" call Tessel.ucTessel.SetTesselVersion a b c
expect "$unknown" call Tessel.ucTessel.SetTesselVersion
expect "$unknown" call Tessel.ucTessel.Convert a
expect "$unknown" call Tessel.ucTessel.Revert
expect "$unknown" call Tessel.ucTessel.deleteLater
expect '*Error.UnknownMethod*' dbus-send --session --print-reply --dest=$name $object Tessel.ucTessel.SetTesselVersion int32:15
expect '*Error.UnknownInterface*' call Tessel.ucTesel.Convert
at=/Tessel/ucTessel/2 expect '*Error.UnknownObject*' call Tessel.ucTessel.Convert

say "Hearing its signal"
await "the signal" in_signals "path=$object; interface=Tessel.ucTessel; member=SettingTextColor"
await "the signal" in_signals 'string "Colorizing, please wait..."'
await "the signal" in_signals 'string "Zanth Manager Version 4.0"'

say "Converting"
"$tessel" convert "$work/x.con" -o "$work/wanted.con"
shown=$(sed -n '/^gdbus call/ { :a; /\\$/ { N; ba }; p }' "$manual")
eval "expect '()' $shown"
kept_text() { local kept=("$XDG_STATE_HOME"/ZanthMan/recovery/run-$first-*/text-*); tail -c "$(wc -c <"$work/wanted.con")" "${kept[0]}" | cmp - "$work/wanted.con"; }
await "the converted text, as what is not saved yet," kept_text
cmp "$data/zmuser.dat" "$work/x.con" || fail "the file on disk was touched"

say "Starting it again"
start --automation
second=$!
await "the second one's name" owned_by $name.instance$second $second
owned_by $name $first || fail "the second one took the first one's name"
expect "('a',)" call Tessel.ucTessel.SetTesselVersion a
to=$name.instance$second expect "('a',)" call Tessel.ucTessel.SetTesselVersion a
kill $first
await "the name" owned_by $name $second

say "Calling while a message box is open"
call Tessel.ucTessel.Convert >"$work/answer" 2>&1 &  # an empty document is no user file
waiting=$!
busy() { [[ $(call Tessel.ucTessel.SetTesselVersion a 2>&1) == *GDBus.Error:Tessel.Error.Busy:* ]]; }
await "the message box" busy
expect '*Tessel.Error.Busy: A dialog is open. Call again when the user has closed it.' call Tessel.ucTessel.Convert
kill -0 $waiting || fail "the first call was answered while the box is open"
kill $second
wait $waiting && fail "a call was answered that did not end"
grep -q NoReply "$work/answer" || fail "the call did not end with its program: $(<"$work/answer")"

say "Offering nothing"
for option in "" --no-automation; do
  before=$(clients)
  start $option "$work/x.con"
  await "the program" runs_now $!
  offers_nothing $! "$before" || fail "the program offers the control, with \"$option\""
  kill $!
done
say "Offering what the user wants without an option"
mkdir -p "$XDG_CONFIG_HOME/ZanthMan"
wish=$XDG_CONFIG_HOME/ZanthMan/zanth-manager.conf
printf '[automation]\nwanted=true\n' >"$wish"
start "$work/x.con"
wanted=$!
await "the name of the program that was wanted" owned_by $name.instance$wanted $wanted
kill $wanted
before=$(clients)
start --no-automation "$work/x.con"
await "the program" runs_now $!
offers_nothing $! "$before" || fail "the program offers the control against its option"
kill $!

say "Offering nothing for a picture"
before=$(clients)
"$program" --host-dir "$data" --screenshot "$work/picture.png" "$work/x.con" 2>"$work/picture.errors" || fail "no picture"
[ "$(clients)" = $((before + 1)) ] || fail "the program is on the bus for a picture"
[ ! -e "$wish" ] || grep -q wanted "$wish" && fail "the wish of an earlier version is not taken over"
rm -f "$ZANTHMAN_STORE"
grep '^zanth-manager:' "$work"/*.errors && fail "it complains"

say "Asking for what cannot be"
for options in "--automation --no-automation" "--automation --screenshot $work/none.png"; do
  "$program" $options >/dev/null 2>&1 && fail "it takes $options"
done
[ -e "$work/none.png" ] && fail "it leaves a picture all the same"

say "Running without a bus"
refused='zanth-manager: Other programs cannot use the control: '
mkdir "$work/bin"
printf '#!/bin/sh\ntouch "%s"\nexit 1\n' "$work/launched" >"$work/bin/dbus-launch"
chmod +x "$work/bin/dbus-launch"
PATH=$work/bin:$PATH
for address in "" unix:path=/nonexistent autolaunch:; do
  for asked in "" --automation; do
    DBUS_SESSION_BUS_ADDRESS=$address start $asked
    await "the program without a bus" runs_now $!
    case $asked:$(told) in
      : | --automation:"$refused"*) ;;
      *) fail "with the address \"$address\" and \"$asked\" it says: $(told)" ;;
    esac
    kill $!
  done
done
rm -f "$work/bus"
touch "$work/bus"  # no socket, so no bus
DBUS_SESSION_BUS_ADDRESS='' start --automation
await "the program beside a file in the place of the bus" runs_now $!
[[ $(told) == "$refused"* ]] || fail "beside a file in the place of the bus it says: $(told)"
kill $!
rm "$work/bus"
[ -e "$work/launched" ] && fail "a bus was started"

say "Being refused a name"
cat >"$work/bus.conf" <<XML
<busconfig><listen>unix:dir=$work</listen><policy context="default"><allow send_destination="*"/><allow eavesdrop="true"/>
<allow own="*"/><deny own="$name"/></policy></busconfig>
XML
dbus-daemon --config-file="$work/bus.conf" --print-address --nofork >"$work/address" 2>"$work/daemon.errors" &
await "the strict bus" test -s "$work/address"
DBUS_SESSION_BUS_ADDRESS=$(<"$work/address")
start --automation
await "the program's complaint" grep -q "^zanth-manager: The bus does not give the name $name: " "$work/$runs.errors"
to=$name.instance$! expect "('a',)" call Tessel.ucTessel.SetTesselVersion a
kill $!
say "Done ($SECONDS s)"
