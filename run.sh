#!/usr/bin/env bash
# Installs what is missing, builds the release, and starts Quillet with the arguments given.
# The first argument encrypt, decrypt or algorithms starts the console program.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
(
  cd "$here"
  . packaging/install.sh
  install_missing packaging/packages-build.txt
  build_preset release quillet-cli
)
exec "$here/build/release/bin/quillet-cli" "$@"
