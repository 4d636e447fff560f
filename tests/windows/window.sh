#!/usr/bin/env bash
# window.sh SETUP.EXE [FOLDER]: under Wine, installs the program for Windows, encrypts a file in its window, decrypts it by the
# command of Explorer's menu, and removes the program; looks at the registry, the menus and the files each time. Saves
# pictures in FOLDER.
set -euo pipefail
[ -n "${QUILLET_INSIDE_X:-}" ] || QUILLET_INSIDE_X=1 exec xvfb-run -a -s "-screen 0 1280x900x24 -noreset" "$0" "$@"

setup=$(realpath "$1")
pictures=${2:-}
here=$(dirname "$(realpath "$0")")
secret='Tr0ub4dor-and-3'
scratch=$(mktemp -d)
export WINEPREFIX=$scratch/wine
trap 'wineserver -k 2>/dev/null || /usr/lib/wine/wineserver64 -k || true; rm -rf "$scratch"' EXIT
user=$WINEPREFIX/drive_c/users/$(id -un)
folder=$user/AppData/Local/Programs/Quillet
software='HKCU\Software'
menu="$software\\Classes\\*\\shell\\Quillet"

fail() { echo "$1" >&2; exit 1; }
wine() { "$here/../../packaging/windows/wine.sh" "$@"; }
value() { wine reg query "$1" ${3:-/v} ${2:+"$2"} | tr -d '\r' | sed -nE 's/^ +.* +REG_[A-Z]+ +//p'; }
windows_path() { wine winepath -w "$1" | tr -d '\r'; }
is_gone() { ! wine reg query "$1" >/dev/null 2>&1; }
picture() { [ -z "$pictures" ] || { mkdir -p "$pictures"; sleep 1; import -window root "$pictures/$1.png"; }; }

# wait_until COMMAND...: at most two minutes
wait_until() {
  for _ in $(seq 1200); do
    if "$@" >/dev/null 2>&1; then return; fi
    sleep 0.1
  done
  picture in-vain
  fail "in vain: $*"
}

has_focus() { [ "$(xdotool getwindowfocus)" = "$1" ]; }

is_closed() { ! xdotool search --onlyvisible --name "$1"; }

focus() {
  local window
  wait_until xdotool search --onlyvisible --name "$1"
  window=$(xdotool search --onlyvisible --name "$1" | tail -1)
  wait_until xdotool windowfocus "$window"
  wait_until has_focus "$window"
}

# choose MENU COMMAND: by their keys.
choose() {
  focus 'Quillet$'
  xdotool key "alt+$1"
  sleep 1
  xdotool key "$2"
}

look_at_options() {
  choose o o
  focus '^Options$'
  picture options
  xdotool key Escape
}

# answer DIRECTION FILE: gives the password, waits for the file, and closes the window.
answer() {
  focus "Password to $1"
  xdotool type --delay 50 "$secret"
  [ "$1" = decrypt ] || { xdotool key Tab; xdotool type --delay 50 "$secret"; }
  picture "password-$1"
  xdotool key Return
  wait_until is_closed "Password to $1"
  picture "run-$1"
  wait_until test -e "$2"
  picture "done-$1"
  [ -z "$pictures" ] || look_at_options
  choose f q
  wait "$pid" || fail "the program ended with $?"
}

wine wineboot -i
wine "$setup" /S
for file in quillet.exe quillet-cli.exe translations/quillet.langs.xml uninstall.exe; do
  [ -e "$folder/$file" ] || fail "$file is not installed"
done
[ "$(value "$software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Quillet" DisplayName)" = Quillet ] ||
  fail "not in the list of programs"

head -c 3000000 /dev/urandom >"$scratch/in"
truncate -s 3G "$scratch/in" # time for a look at the progress
wine "$folder/quillet.exe" /encrypt /start /ifile "$(windows_path "$scratch/in")" \
  /ofile "$(windows_path "$scratch/out.enc")" &
pid=$!
answer encrypt "$scratch/out.enc"
[ "$(stat -c %s "$scratch/out.enc")" = $((3 * 1024 ** 3 + 64)) ] || fail "the encrypted file has the wrong size"

program=$(windows_path "$folder/quillet.exe")
for entry in "1encrypt|\"$program\" /encrypt /start /ifile \"%L\"" "2decrypt|\"$program\" /decrypt /start /ifile \"%L\"" \
  "3open|\"$program\" /ifile \"%L\""; do
  found=$(value "$menu\\shell\\${entry%%|*}\\command" '' /ve)
  [ "$found" = "${entry#*|}" ] || fail "${entry%%|*} starts $found"
done
[ "$(value "$menu" SubCommands)$(value "$menu" MUIVerb)" = Quillet ] || fail "no submenu"
link=$(find "$user" -path '*SendTo/Quillet.lnk')
grep -qa Quillet "$link" || fail "no entry in the send-to menu"
wine reg query "$software\\Tessaly\\Quillet" | tr -d '\r' >"$scratch/settings"
grep -q MainWindowGeometry "$scratch/settings" || fail "the window's place is not among the settings"

command=$(value "$menu\\shell\\2decrypt\\command" '' /ve)
command=${command//'%L'/"$(windows_path "$scratch/out.enc")"}
eval "set -- ${command//\\/\\\\}"
wine "$@" &
pid=$!
answer decrypt "$scratch/out.dec"
cmp "$scratch/in" "$scratch/out.dec" || fail "the file has changed on its way"

[ -z "$pictures" ] || { wine reg query "$menu" /s; cat "$scratch/settings"; } >"$pictures/registry.txt"
wine "$folder/uninstall.exe" /S
wait_until test ! -e "$folder"
for key in "$menu" "$software\\Tessaly" "$software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Quillet"; do
  wait_until is_gone "$key"
done
[ -z "$(find "$user" -name 'Quillet*.lnk')" ] || fail "a link is left"
echo "installed, encrypted, decrypted by the menu's command, removed: nothing is left"
