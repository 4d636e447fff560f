#!/usr/bin/env bash
# staging.sh BUILD_FOLDER: installs into a folder, runs what is there, and removes it without leftovers.
set -euo pipefail
build=$1
cd "$(dirname "$0")/../.."
stage=$(mktemp -d)
manifest=$build/install_manifest.txt
[ ! -f "$manifest" ] || cp "$manifest" "$stage.manifest" # of the developer's own installation
trap 'rm -rf "$stage"; [ ! -f "$stage.manifest" ] || mv "$stage.manifest" "$manifest"' EXIT
root=$stage/usr

cmake --install "$build" --prefix "$root" >/dev/null
. ./tests/packaging/check_installed.sh "$root"

# Translations are searched beside the program.
for file in translations/*.ts translations/*.langs.xml; do
  [ ! -f "$file" ] || cmp "$file" "$root/share/quillet/$file"
done

cmake -P "$build/Uninstall.cmake" >/dev/null
left=$(find "$root" -mindepth 1)
[ -z "$left" ] || { echo "Left behind:" "$left"; exit 1; }
