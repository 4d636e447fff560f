#!/usr/bin/env bash
# end_to_end.sh QUILLET: runs the program on an X server of its own, types the password, and compares the
# file after the way back. Afterwards no secret may be found in settings, log or temporary files.
set -euo pipefail
command -v xdotool >/dev/null && command -v xvfb-run >/dev/null || { echo "no xdotool, or no xvfb-run" >&2; exit 77; }
# Without -noreset the server starts anew between two programs, and refuses whoever comes just then.
[ -n "${QUILLET_INSIDE_X:-}" ] || QUILLET_INSIDE_X=1 exec xvfb-run -a -s "-screen 0 1280x1024x24 -noreset" "$0" "$@"

quillet=$1
secret='Tr0ub4dor-and-3'
home=$(mktemp -d)
trap 'kill "$pid" 2>/dev/null || true; rm -rf "$home"' EXIT
export HOME=$home TMPDIR=$home XDG_CONFIG_HOME=$home/config XDG_STATE_HOME=$home/state XDG_DATA_HOME=$home/data
# The program bars debuggers from itself, and a leak checker is one.
export ASAN_OPTIONS=detect_leaks=0
unset QT_QPA_PLATFORM
# The X and graphics libraries aren't built for ThreadSanitizer, and there are too many to name.
export TSAN_OPTIONS=ignore_noninstrumented_modules=1
mkdir -p "$XDG_CONFIG_HOME/Tessaly" "$XDG_CONFIG_HOME/caja"
printf '[General]\nUseLogFile=true\nLogLevel=6\n' >"$XDG_CONFIG_HOME/Tessaly/Quillet.conf"
pid=

fail() { echo "$1" >&2; cat "$home/stderr" >&2; exit 1; }

# wait_until COMMAND...: at most two minutes, while the program runs
wait_until() {
  for _ in $(seq 1200); do
    if "$@" >/dev/null 2>&1; then return; fi
    kill -0 "$pid" || fail "the program has ended before: $*"
    sleep 0.1
  done
  fail "in vain: $*"
}

has_focus() { [ "$(xdotool getwindowfocus)" = "$1" ]; }

# end: as a log-out does it
end() {
  kill "$pid"
  wait "$pid" || fail "the program ended with $?"
  pid=
}

# ask DIRECTION INPUT OUTPUT: starts the program and waits until what is typed goes to its password dialog.
ask() {
  "$quillet" "-$1" -start -ifile "$2" -ofile "$3" -algorithm Serpent-256 2>"$home/stderr" &
  pid=$!
  wait_until xdotool search --onlyvisible --name "Password to $1"
  local window
  window=$(xdotool search --onlyvisible --name "Password to $1" | tail -1)
  wait_until xdotool windowfocus "$window"
  wait_until has_focus "$window"
}

# run DIRECTION INPUT OUTPUT: the output appears when it is whole, and so is the trace that a success leaves.
run() {
  ask "$@"
  kill -PIPE "$pid" # as a reader of its output that goes away: nothing to end a job for
  xdotool type --delay 20 "$secret"
  [ "$1" = decrypt ] || { xdotool key Tab; xdotool type --delay 20 "$secret"; }
  xdotool key Return
  wait_until test -e "$3"
  end
}

code=0
DISPLAY=:987 "$quillet" 2>"$home/stderr" || code=$?
[ "$code-$(wc -l <"$home/stderr")" = 1-1 ] || fail "with a dead display the program ended with $code"
DISPLAY=:987 "$quillet" --help | grep -q '^Usage: quillet ' || fail "no help"

head -c 3000000 /dev/urandom >"$home/in"
ask encrypt "$home/in" "$home/none"
grep -Eq '^Max core file size +0 +0 ' "/proc/$pid/limits" || fail "a core dump could hold the secret"
end
[ ! -e "$home/none" ] || fail "nobody has entered a password"
run encrypt "$home/in" "$home/out"
run decrypt "$home/out" "$home/back"
cmp "$home/in" "$home/back" || fail "the file has changed on its way"
[ "$(stat -c %s "$home/out")" = 3000064 ] || fail "the encrypted file has the wrong size"
[ -x "$XDG_CONFIG_HOME/caja/scripts/Encrypt with Quillet" ] || fail "no entry in the file manager's menu"

log=$(find "$XDG_STATE_HOME" -name '*.log')
grep -q 'Try to process command line: "-encrypt" "-start"' "$log" || fail "no line in the log"
! grep -rqF "$secret" "$home" || fail "the password stands in $(grep -rlF "$secret" "$home")"
