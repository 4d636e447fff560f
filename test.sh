#!/usr/bin/env bash
# Installs what is missing, builds, runs every test, and makes the packages. Arguments go to ctest, for example -R Thread.
set -euo pipefail
cd "$(dirname "$0")"
. packaging/install.sh

install_missing packaging/packages-build.txt packaging/packages-test.txt
build_preset dev all all_verify_interface_header_sets
ctest --preset dev "$@"
build_preset release all
exec ctest --preset release "$@"
