#!/usr/bin/env bash
# Installs what is missing, builds the release, and opens Quillet's window with the arguments given.
# The first argument encrypt, decrypt or algorithms starts the console program instead. Without a
# display the job runs in the console: each file given (or README.md) is encrypted, and what comes
# out of the decryption is compared with it.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
programs=$here/build/release/bin

console_run() {
  local folder='' password file sealed
  echo "No display here: doing the job in the console." >&2
  if [ $# = 0 ]; then
    set -- "$here/README.md"
    folder=$here/build/console
    mkdir -p "$folder"
    rm -f "$folder/README.md.enc"
    password=$(head -c 24 /dev/urandom | base64)
  else
    IFS= read -rsp "Password: " password
    echo >&2
  fi
  scratch=$(mktemp -d)
  trap 'rm -rf "$scratch"' EXIT
  for file; do
    sealed=${folder:-$(dirname "$file")}/$(basename "$file").enc
    "$programs/quillet-cli" encrypt --password-file - --output "$sealed" "$file" <<<"$password"
    "$programs/quillet-cli" decrypt --password-file - --force --output "$scratch/opened" "$sealed" <<<"$password"
    cmp "$file" "$scratch/opened"
    echo "$file: encrypted into $sealed, which decrypts to the same file"
  done
}

(
  cd "$here"
  . packaging/install.sh
  install_missing packaging/packages-build.txt
  build_preset release all
)

case ${1-} in
  encrypt | decrypt | algorithms) exec "$programs/quillet-cli" "$@" ;;
  --help | --version) exec "$programs/quillet" "$@" ;;
esac
if [ -n "${DISPLAY-}${WAYLAND_DISPLAY-}" ]; then
  exec "$programs/quillet" "$@"
fi
files=()
while [ $# -gt 0 ]; do
  case ${1,,} in
    [-/]encrypt | [-/]decrypt | [-/]start | [-/]ifile) ;;
    [-/]ofile | [-/]algorithm | [-/]library) [ $# = 1 ] || shift ;;
    *)
      if [ ! -f "$1" ]; then
        echo "run.sh: no such file: $1" >&2
        exit 1
      fi
      files+=("$1")
      ;;
  esac
  shift
done
console_run ${files[@]+"${files[@]}"}
