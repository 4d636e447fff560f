#!/usr/bin/env bash
# kill_loop.sh QUILLET QUILLET_CLI [ROUNDS]: kills the program at random moments while it encrypts a file and
# deletes it, as the settings say. After each, the input must be whole or the output must decrypt.
set -euo pipefail
[ -n "${QUILLET_INSIDE_X:-}" ] || QUILLET_INSIDE_X=1 exec xvfb-run -a -s "-screen 0 1280x1024x24 -noreset" "$0" "$@"

quillet=$1 cli=$2 rounds=${3:-20}
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export HOME=$home XDG_CONFIG_HOME=$home/config XDG_STATE_HOME=$home/state XDG_DATA_HOME=$home/data
mkdir -p "$XDG_CONFIG_HOME/Tessaly"
printf '[General]\n%s\n' UseConfirmPassword=false DeleteSourceFileAfterEncryption=true \
  ConfirmDeleteSourceFileAfterEncryption=false >"$XDG_CONFIG_HOME/Tessaly/Quillet.conf"
printf 'secret\n' >"$home/password"
head -c 200000000 /dev/urandom >"$home/original"

whole=0 encrypted=0
for round in $(seq "$rounds"); do
  rm -f "$home/in" "$home/out" "$home/back"
  cp "$home/original" "$home/in"
  "$quillet" -start -ifile "$home/in" -ofile "$home/out" 2>/dev/null &
  pid=$!
  until window=$(xdotool search --name 'Password to encrypt' | tail -1) && [ -n "$window" ]; do sleep 0.05; done
  xdotool windowfocus --sync "$window"
  xdotool type --delay 5 secret
  xdotool key Return
  sleep "$(printf '0.%03d' $((RANDOM % 1000)))"
  kill -9 "$pid"
  wait "$pid" 2>/dev/null || true
  if [ -e "$home/in" ]; then
    cmp "$home/original" "$home/in"
    whole=$((whole + 1))
  else
    "$cli" decrypt --algorithm AES-256 --password-file "$home/password" --output "$home/back" "$home/out" >/dev/null
    cmp "$home/original" "$home/back"
    encrypted=$((encrypted + 1))
  fi
done
echo "$rounds kills: the input was whole $whole times, the output decrypted $encrypted times"
