#!/usr/bin/env bash
# sweep.sh [BUILD]: all that can fail, each allocation too. Takes a few minutes.
set -euo pipefail
here=$(dirname "$(realpath "$0")")
build=$(realpath "${1:-$here/../../build/dev}")
library=$build/tests/faults/libfailing_calls.so
failed=0
"$here/console.py" "$build/bin/quillet-cli" "$library" || failed=1
for test in window power_loss; do
  "$here/$test.py" "$build/bin/window_job" "$build/bin/quillet-cli" "$library" || failed=1
done
"$here/kills.py" "$build/bin/quillet" "$build/bin/quillet-cli" "$library" || failed=1
exit $failed
