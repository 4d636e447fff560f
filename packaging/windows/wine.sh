#!/usr/bin/env bash
# wine.sh PROGRAM [ARGUMENT ...]: runs a Windows program under Wine, in $WINEPREFIX or a prefix of its own in the cache
# folder that toolchain.sh uses, for at most 10 minutes (or $QUILLET_WINE_SECONDS).
set -euo pipefail
cache=${QUILLET_WINDOWS:-${XDG_CACHE_HOME:-$HOME/.cache}/quillet-windows}
# Arguments and names of files are UTF-8.
export LC_ALL=C.UTF-8 WINEPREFIX=${WINEPREFIX:-$cache/wine} WINEARCH=win64 WINEDEBUG=${WINEDEBUG:--all}
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d" # neither downloads nor menu entries
program=(timeout "${QUILLET_WINE_SECONDS:-600}" "$(command -v wine64 || echo /usr/lib/wine/wine64)" "$@")
# What Wine starts in the background keeps the standard error of the program that needed it first, and lives for as long
# as any program does: who reads a pipe to its end would wait for all of them.
[ -p /dev/stderr ] || exec "${program[@]}"
errors=$(mktemp)
trap 'rm -f "$errors"' EXIT
code=0
"${program[@]}" 2>"$errors" || code=$?
cat "$errors" >&2
exit $code
