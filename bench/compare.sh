#!/usr/bin/env bash
# Measures quillet-cli beside cp and the peers that are installed, and beside its own ciphers in memory.
# docs/PERFORMANCE.md tells what it prints. Nothing else should run on the machine meanwhile.
set -euo pipefail
cd "$(dirname "$0")/.."
cmake --preset bench >/dev/null
cmake --build --preset bench --target quillet-cli cipher_speed timed_run >/dev/null
exec python3 bench/compare.py --programs build/bench/bin "$@"
