#!/usr/bin/env bash
# Runs the worked examples of docs/FILE_FORMAT.md word for word, then has its Python open what the program seals, and
# the other way round, with other ciphers and with a key and an IV. Arguments: source tree, folder of the programs.
set -eu
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export PATH="$2:/usr/bin:$PATH" # the system's Python has the packages
blocks() { awk -v begin="\`\`\`$1" '$0 == begin { inside = 1; next } /^```$/ { inside = 0 } inside' "$document"; }
document=$1/docs/FILE_FORMAT.md
cd "$scratch"
blocks python >sealed.py
example=$(blocks sh)
[ -s sealed.py ] && [ -n "$example" ]
bash -eux -c "$example"

head -c "${SIZE:-200000}" /dev/urandom >plain
there_and_back() { # ALGORITHM, the console's options for the secret, its files
  quillet-cli encrypt --seal --algorithm "$1" $2 --force --output ours plain
  python3 sealed.py open "$1" ours opened $3
  cmp plain opened
  python3 sealed.py seal "$1" plain theirs $3
  quillet-cli decrypt --algorithm "$1" $2 --force --output opened theirs
  cmp plain opened
  echo "$1 with $3: both ways"
}
for row in "AES-256 32 16" "Serpent-256 32 16" "Threefish-1024 128 128" "Salsa20-256 32 8"; do
  read -r algorithm key iv <<<"$row"
  openssl rand -hex "$key" >key
  openssl rand -hex "$iv" >iv
  there_and_back "$algorithm" "--key-file key --iv-file iv" "key iv"
  [ -z "${BY_PASSWORD-}" ] || there_and_back "$algorithm" "--password-file password.txt" password.txt
done
