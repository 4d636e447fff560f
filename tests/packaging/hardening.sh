#!/usr/bin/env bash
# hardening.sh CONFIG PROGRAM ...: reads from the programs what the compiler and linker were asked to put there.
set -u
config=$1
shift
failed=0
root=$(cd "$(dirname "$0")/../.." && pwd)
complain() { echo "$program: $1"; failed=1; }
expect() { grep -qE "$2" <<<"$facts" || complain "no $1"; }
refuse() { ! grep -qE "$2" <<<"$facts" || complain "$1"; }

for program; do
  facts=$(LC_ALL=C readelf --wide --file-header --program-headers --dynamic --notes --dyn-syms "$program") || exit 1
  expect "position-independent code" 'FLAGS_1\).*\bPIE\b'
  expect "read-only relocations" '^ *GNU_RELRO'
  expect "immediate binding" 'FLAGS_1\).*\bNOW\b'
  expect "stack that can't be executed" '^ *GNU_STACK .* RW +0x'
  expect "stack protector" '__stack_chk_fail'
  expect "assertions of the C++ library" '__glibcxx_assert_fail'
  refuse "a path to libraries inside" '\((RPATH|RUNPATH)\)'
  refuse "memory both writable and executable" '^ *LOAD .* RWE '
  # Where an indirect jump may land stands an endbr64. The note that tells of it is missing, as Debian's own start-up code
  # has none.
  landings=$(LC_ALL=C grep -aoP '\xf3\x0f\x1e\xfa' "$program" | wc -l)
  [ "$landings" -gt 500 ] || [ "$(uname -m)" != x86_64 ] || complain "no control-flow protection"
  [ "$config" != Debug ] || continue
  expect "checked library calls" '__[a-z]+_chk@'
  ! grep -aqF "$root" "$program" || complain "names the folder that it was built in"
done
exit $failed
