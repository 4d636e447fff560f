#!/usr/bin/env bash
# packages.sh BUILD_FOLDER: makes the Debian packages of a release build, and looks into them.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$1"
fail() { echo "$1"; exit 1; }

rm -rf packages
cpack >"$work/log" || fail "$(cat "$work/log")"
lintian --fail-on error --allow-root --tag-display-limit 0 packages/*.deb

for package in quillet quillet-cli; do
  deb=$(echo packages/"$package"_*.deb)
  dpkg-deb -x "$deb" "$work/$package"
  needs=$(dpkg-deb -f "$deb" Depends)
  for library in libc6 libcrypto++8 libargon2-1 libqt5core5a $([ $package = quillet-cli ] || echo libqt5widgets5 libqt5svg5); do
    [[ ", $needs" == *", $library"* ]] || fail "$package: no dependency on $library: $needs"
  done
  grep -q "No licence has been chosen" "$work/$package/usr/share/doc/$package/copyright"
done
[[ $(dpkg-deb -f packages/quillet-cli_*.deb Depends) != *widgets* ]] || fail "quillet-cli asks for a desktop"
. "$here/check_installed.sh" "$work/quillet/usr"
"$here/hardening.sh" Release "$work"/*/usr/bin/*
