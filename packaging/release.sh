#!/usr/bin/env bash
# release.sh [FOLDER]: makes of the last commit, in FOLDER (else build/dist), the source archive, the Debian packages
# built from it, and their checksums. The same commit gives the same bytes, in whatever folder, with the same compiler
# and libraries.
set -euo pipefail
umask 022
cd "$(dirname "$0")/.."
. packaging/install.sh
mkdir -p "${1:-build/dist}"
out=$(cd "${1:-build/dist}" && pwd)
[ -z "$(git status --porcelain)" ] || echo "release.sh: what is not committed is left out" >&2
install_missing packaging/packages-build.txt

version=$(sed -nE 's/^project\(quillet VERSION ([0-9.]+).*/\1/p' CMakeLists.txt)
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export SOURCE_DATE_EPOCH
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

archive=quillet-$version.tar.gz
rm -f "$out"/*.deb "$out"/quillet-*.tar.gz "$out/SHA256SUMS"
git archive --format=tar --prefix="quillet-$version/" HEAD | gzip -9n >"$out/$archive"
tar -xzf "$out/$archive" -C "$scratch"

cd "$scratch/quillet-$version"
build_preset release all package
mv build/release/packages/*.deb "$out"
cd "$out"
sha256sum "$archive" *.deb | tee SHA256SUMS
