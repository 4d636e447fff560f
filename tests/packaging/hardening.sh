#!/usr/bin/env bash
# hardening.sh CONFIG PROGRAM ...: reads from the programs what the compiler and linker were asked to put there.
set -u
config=$1
shift
failed=0

expect() { # PROGRAM WHAT PATTERN
  grep -qE "$3" <<<"$facts" || { echo "$1: no $2"; failed=1; }
}
refuse() {
  ! grep -qE "$3" <<<"$facts" || { echo "$1: $2"; failed=1; }
}

for program; do
  facts=$(LC_ALL=C readelf --wide --file-header --program-headers --dynamic --notes --dyn-syms "$program") || exit 1
  expect "$program" "position-independent code" 'FLAGS_1\).*\bPIE\b'
  expect "$program" "read-only relocations" '^ *GNU_RELRO'
  expect "$program" "immediate binding" 'FLAGS_1\).*\bNOW\b'
  expect "$program" "stack that can't be executed" '^ *GNU_STACK .* RW +0x'
  expect "$program" "stack protector" '__stack_chk_fail'
  expect "$program" "assertions of the C++ library" '__glibcxx_assert_fail'
  refuse "$program" "a path to libraries inside" '\((RPATH|RUNPATH)\)'
  refuse "$program" "memory both writable and executable" '^ *LOAD .* RWE '
  case $(uname -m) in
    # Where an indirect jump may land stands an endbr64. The note that tells of it is missing, as Debian's own
    # start-up code has none.
    x86_64)
      landings=$(LC_ALL=C grep -aoP '\xf3\x0f\x1e\xfa' "$program" | wc -l)
      [ "$landings" -gt 500 ] || { echo "$program: no control-flow protection"; failed=1; }
      ;;
  esac
  [ "$config" = Debug ] || expect "$program" "checked library calls" '__[a-z]+_chk@'
  if [ "$config" != Debug ] && grep -aqF "$(cd "$(dirname "$0")/../.." && pwd)" "$program"; then
    echo "$program: names the folder that it was built in"
    failed=1
  fi
done
exit $failed
