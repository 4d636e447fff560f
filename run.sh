#!/usr/bin/env bash
# Installs what is missing, builds the release, and opens Quillet's window with the arguments given.
# The first argument encrypt, decrypt, verify or algorithms starts the console program instead. Without a
# display the job runs in the console: each file given is encrypted, and what comes out of the
# decryption is compared with it; with -decrypt each is decrypted. Without any argument README.md is
# encrypted.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
programs=$here/build/release/bin

refuse() {
  echo "run.sh: $1" >&2
  exit 1
}

console_run() {
  local password file sealed
  echo "No display here: doing the job in the console." >&2
  if [ $# = 0 ]; then
    set -- "$here/README.md"
    mkdir -p "$here/build/console"
    output=$here/build/console/README.md.enc
    rm -f "$output"
    password=$(head -c 24 /dev/urandom | base64)
  else
    IFS= read -rsp "Password: " password
    echo >&2
  fi
  scratch=$(mktemp -d)
  trap 'rm -rf "$scratch"' EXIT
  for file; do
    if [ "$operation" = decrypt ]; then
      cipher decrypt ${output:+--output "$output"} "$file" <<<"$password"
      continue
    fi
    sealed=${output:-$file.enc}
    cipher encrypt --output "$sealed" "$file" <<<"$password"
    cipher decrypt --quiet --force --output "$scratch/opened" "$sealed" <<<"$password"
    cmp "$file" "$scratch/opened"
    echo "$file: encrypted into $sealed, which decrypts to the same file"
  done
}

cipher() {
  local command=$1
  shift
  "$programs/quillet-cli" "$command" --password-file - ${algorithm:+--algorithm "$algorithm"} "$@"
}

(
  cd "$here"
  . packaging/install.sh
  install_missing packaging/packages-build.txt
  build_preset release all
)

case ${1-} in
  encrypt | decrypt | verify | algorithms) exec "$programs/quillet-cli" "$@" ;;
  --help | --version) exec "$programs/quillet" "$@" ;;
esac
if [ -n "${DISPLAY-}${WAYLAND_DISPLAY-}" ]; then
  exec "$programs/quillet" "$@"
fi
files=()
operation=encrypt algorithm='' output='' given=$#
while [ $# -gt 0 ]; do
  case ${1,,} in
    [-/]encrypt) operation=encrypt ;;
    [-/]decrypt) operation=decrypt ;;
    [-/]start | [-/]ifile) ;;
    [-/]ofile | [-/]algorithm | [-/]library)
      [ -n "${2-}" ] || refuse "nothing given for $1"
      case ${1,,} in
        ?ofile) output=$2 ;;
        ?algorithm) algorithm=$2 ;;
      esac
      shift
      ;;
    *)
      [ -f "$1" ] || refuse "no such file: $1"
      files+=("$1")
      ;;
  esac
  shift
done
[ "$given" = 0 ] || [ ${#files[@]} -gt 0 ] || refuse "no file given"
[ -z "$output" ] || [ ${#files[@]} = 1 ] || refuse "-ofile takes one file only"
console_run ${files[@]+"${files[@]}"}
