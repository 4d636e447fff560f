#!/usr/bin/env bash
# end_to_end.sh QUILLET: runs the program on an X server of its own, types the password, and compares the
# file after the way back. Afterwards no secret may be found in settings, log or temporary files.
set -euo pipefail
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
mkdir -p "$XDG_CONFIG_HOME/Tessaly"
printf '[General]\nUseLogFile=true\nLogLevel=6\n' >"$XDG_CONFIG_HOME/Tessaly/Quillet.conf"
pid=

fail() { echo "$1" >&2; cat "$home/stderr" >&2; exit 1; }

# wait_until COMMAND...: at most 30 seconds
wait_until() {
  for _ in $(seq 300); do
    if "$@" >/dev/null 2>&1; then return; fi
    sleep 0.1
  done
  fail "in vain: $*"
}

# run DIRECTION INPUT OUTPUT KEYS...: starts the program and types into its password dialog
run() {
  local direction=$1 input=$2 output=$3
  "$quillet" "-$direction" -start -ifile "$input" -ofile "$output" -algorithm Serpent-256 2>"$home/stderr" &
  pid=$!
  wait_until xdotool search --name "Password to $direction"
  local window
  window=$(xdotool search --name "Password to $direction" | tail -1)
  xdotool windowfocus --sync "$window"
  xdotool type --delay 20 "$secret"
  [ "$direction" = decrypt ] || { xdotool key Tab; xdotool type --delay 20 "$secret"; }
  xdotool key Return
  wait_until test -s "$output"
  wait_until grep -q . "$output"
  wait_until xdotool search --name "^${input##*/} - Quillet$"
  kill "$pid"
  wait "$pid" || fail "the program ended with $?"
  pid=
}

code=0
DISPLAY=:987 "$quillet" 2>"$home/stderr" || code=$?
[ "$code-$(wc -l <"$home/stderr")" = 1-1 ] || fail "with a dead display the program ended with $code"

head -c 3000000 /dev/urandom >"$home/in"
run encrypt "$home/in" "$home/out"
run decrypt "$home/out" "$home/back"
cmp "$home/in" "$home/back" || fail "the file has changed on its way"
[ "$(stat -c %s "$home/out")" = 3000064 ] || fail "the encrypted file has the wrong size"

log=$(find "$XDG_STATE_HOME" -name '*.log')
grep -q 'Try to process command line: "-encrypt" "-start"' "$log" || fail "no line in the log"
! grep -rqF "$secret" "$home" || fail "the password stands in $(grep -rlF "$secret" "$home")"
