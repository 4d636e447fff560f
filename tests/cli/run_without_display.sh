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
./run.sh -start -ifile 'a letter' -algorithm AES-128 <<<secret
./run.sh -DECRYPT -algorithm AES-128 -start -ifile 'a letter.enc' <<<secret
cmp 'a letter' 'a letter.dec'
./run.sh -ofile sealed 'a letter' <<<secret
./run.sh -ofile opened -decrypt sealed <<<secret
cmp 'a letter' opened
rm -r build/console
while IFS=: read -r arguments problem; do
  if told=$(./run.sh $arguments 2>&1 <<<secret); then
    echo "$arguments passed"
    exit 1
  fi
  grep -q "run.sh: $problem" <<<"$told"
  test ! -e build/console -a ! -e README.md.enc
done <<'END'
nosuch.txt:no such file: nosuch.txt
-ifile nosuch.txt:no such file: nosuch.txt
README.md nosuch.txt:no such file: nosuch.txt
-ifile:no file given
-start:no file given
-ofile out:no file given
-algorithm AES-128:no file given
-ofile:nothing given for -ofile
-ofile out README.md sealed:-ofile takes one file only
END
