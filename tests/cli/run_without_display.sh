#!/usr/bin/env bash
# What run.sh does where there is no display. Arguments: source tree, console program.
set -eu
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir -p "$scratch/packaging" "$scratch/build/release/bin"
cp "$1/run.sh" "$scratch"
ln -s "$2" "$scratch/build/release/bin/quillet-cli"
printf 'install_missing() { :; }\nbuild_preset() { :; }\n' >"$scratch/packaging/install.sh"
echo readme >"$scratch/README.md"
echo letter >"$scratch/a letter"
cd "$scratch"
unset DISPLAY WAYLAND_DISPLAY

./run.sh
test -s build/console/README.md.enc
echo secret | ./run.sh -start -ifile 'a letter' -algorithm AES-256
test -s 'a letter.enc'
rm -r build/console
for arguments in nosuch.txt '-ifile nosuch.txt' 'README.md nosuch.txt'; do
  if told=$(./run.sh $arguments 2>&1 <<<secret); then
    echo "$arguments passed for a file"
    exit 1
  fi
  grep -q 'no such file: nosuch.txt' <<<"$told"
  test ! -e build/console -a ! -e README.md.enc
done
