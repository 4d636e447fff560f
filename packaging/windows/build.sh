#!/usr/bin/env bash
# build.sh [FOLDER]: makes the programs for Windows from this tree on a Debian 12 machine, runs their tests under Wine, and
# puts a zip archive, an installer and their checksums into FOLDER (else build/windows-dist). Prints the time of each
# step; the libraries are built once (toolchain.sh). JOBS is the number of compilers at a time (2).
set -euo pipefail
umask 022
cd "$(dirname "$0")/../.."
. packaging/install.sh
mkdir -p "${1:-build/windows-dist}"
out=$(cd "${1:-build/windows-dist}" && pwd)
version=$(sed -nE 's/^project\(quillet VERSION ([0-9.]+).*/\1/p' CMakeLists.txt)
name=quillet-$version-windows-x86_64
folder=build/windows-dist.$$/$name
trap 'rm -rf "build/windows-dist.$$"' EXIT

step() {
  local seconds=$SECONDS
  "$@"
  printf '== %-20s %5d s\n' "$1" $((SECONDS - seconds))
}

packages() {
  install_missing packaging/packages-windows.txt
}

libraries() {
  packaging/windows/toolchain.sh
}

programs() {
  mkdir -p build
  cmake --preset windows >build/windows.log
  cmake --build --preset windows -j"${JOBS:-2}" >>build/windows.log || { tail -40 build/windows.log >&2; return 1; }
}

tests() {
  timeout 7200 xvfb-run -a ctest --preset windows --quiet -O build/windows-tests.log || {
    tail -60 build/windows-tests.log >&2
    return 1
  }
  tail -4 build/windows-tests.log
}

# What users get, in a folder.
staging() {
  local host=x86_64-w64-mingw32 language
  mkdir -p "$folder"/{translations/toolkit,licences}
  for program in quillet quillet-cli; do
    $host-strip -o "$folder/$program.exe" "build/windows/bin/$program.exe"
  done
  install -m 644 translations/quillet* "$folder/translations"
  for language in translations/quillet_*.ts; do
    language=$(basename "$language" .ts)
    install_toolkit_texts "${language#quillet_}"
  done
  # The libraries are in the programs; these are the statements of their licences, and the texts these refer to.
  for package in libqt5core5a libqt5svg5 libcrypto++8 libargon2-1 libzxcvbn0 gcc-mingw-w64-base mingw-w64-common \
    qttranslations5-l10n; do
    install -m 644 "/usr/share/doc/$package/copyright" "$folder/licences/$package.txt"
  done
  install -m 644 resources/words/README.md "$folder/licences/words.txt"
  for licence in GPL-2 GPL-3 LGPL-2.1 LGPL-3 Apache-2.0 CC0-1.0; do
    install -m 644 "/usr/share/common-licenses/$licence" "$folder/licences/$licence.txt"
  done
  sed -e 's/$/\r/' packaging/windows/README.txt >"$folder/README.txt"
}

# Under the name that the toolkit looks for: the country's where there is one, else the language's.
install_toolkit_texts() {
  local texts=/usr/share/qt5/translations/qtbase
  for known in "${texts}_${1/-/_}.qm" "${texts}_${1%-*}.qm"; do
    if [ -e "$known" ]; then
      install -m 644 "$known" "$folder/translations/toolkit"
      return
    fi
  done
}

archive() {
  rm -f "$out/$name.zip"
  find "$folder" -exec touch -d "@$(git log -1 --format=%ct)" {} +
  (cd "$(dirname "$folder")" && find "$name" | sort | zip -q -9 -X -@ "$out/$name.zip")
}

installer() {
  makensis -V2 -DVERSION="$version" -DFOLDER="$PWD/$folder" -DSIZE="$(du -sk "$folder" | cut -f1)" \
    -DICON="$PWD/build/windows/src/app/quillet.ico" -DOUT="$out/$name-setup.exe" packaging/windows/installer.nsi
}

for step in packages libraries programs tests staging archive installer; do
  step $step
done
ls -l "$folder"/*.exe | awk '{ print $5, $9 }'
cd "$out"
ls -l "$name"* | awk '{ print $5, $9 }'
sha256sum "$name.zip" "$name-setup.exe" | tee SHA256SUMS
