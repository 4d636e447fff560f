#!/usr/bin/env bash
# run.sh [--ci | --minimize] [SECONDS] [NAME...]: builds the fuzzers and runs each so long (600 s unless told),
# two at a time, from the stored corpus and what earlier runs have found beyond it; prints a table, and fails on a
# finding. --ci takes 20 seconds, the stored corpus alone and always the same way, so that what it finds comes from the
# change that it looks at. --minimize runs nothing: it makes the stored corpora anew, of few inputs that reach what all
# known ones reach. Needs Debian's packages in packaging/packages-build.txt and packages-ci.txt.
set -euo pipefail
cd "$(dirname "$0")/.."
. packaging/install.sh

seconds=600 mode=run names=()
for word; do
  case $word in
    --ci) mode=ci seconds=20 ;;
    --minimize) mode=minimize ;;
    [0-9]*) seconds=$word ;;
    *) names+=("$word") ;;
  esac
done
known=$(sed -n 's/^quillet_fuzzer(\([a-z]*\).*/\1/p' fuzz/CMakeLists.txt)
[ ${#names[@]} -gt 0 ] || names=($known)
for name in "${names[@]}"; do
  grep -qx "$name" <<<"$known" || { echo "run.sh: no such fuzzer: $name; there are:" $known >&2; exit 2; }
done

install_missing packaging/packages-build.txt packaging/packages-ci.txt
build_preset asan-ubsan "${names[@]/#/fuzz_}"

out=$PWD/build/fuzz
scratch=$(mktemp -d "$([ -w /dev/shm ] && echo /dev/shm || echo /tmp)/quillet-fuzz.XXXXXX")
trap 'rm -rf "$scratch"' EXIT
export out mode seconds TMPDIR=$scratch LC_ALL=C.UTF-8 QT_LOGGING_RULES='*=false'

# A few times what any input needs, on a busy machine, too: memory in MiB, seconds for one input. Leaks are looked for
# at the end: after each input that takes most of the time, as Qt keeps what it has read.
limits='-detect_leaks=0 -rss_limit_mb=1024 -malloc_limit_mb=64 -timeout=60 -report_slow_units=60 -max_len=4096'
export limits

fuzz() {
  local name=$1 dictionary=fuzz/dictionaries/$1.dict corpora=("fuzz/corpus/$1") options=("-max_total_time=$seconds")
  mkdir -p "$out/findings/$name" "$out/corpus/$name" "fuzz/corpus/$name"
  # Former findings are inputs like others: what is not mended is found again at once.
  find "$out/findings/$name" -type f -exec mv -t "$out/corpus/$name" {} +
  if [ "$mode" = ci ]; then
    rm -rf "$out/ci/$name"
    mkdir -p "$out/ci/$name"
    corpora=("$out/ci/$name" "${corpora[@]}")
    options+=(-seed=1)
  else
    corpora=("$out/corpus/$name" "${corpora[@]}")
  fi
  # Where the bytes are choices, none of which stands at the front, short inputs reach little.
  case $name in decryptor | sealed | search | naming) options+=(-max_len=160 -len_control=0 -entropic=0) ;; esac
  [ ! -f "$dictionary" ] || options+=("-dict=$dictionary")
  local status=0
  nice build/asan-ubsan/bin/"fuzz_$name" $limits "${options[@]}" -print_final_stats=1 \
    -artifact_prefix="$out/findings/$name/" "${corpora[@]}" >"$out/$name.log" 2>&1 || status=$?
  report "$name" "$status"
}

report() {
  local log=$out/$1.log executions corpus findings
  executions=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
  corpus=$(grep -oE 'corp: [0-9]+/[0-9]+[A-Za-z]*' "$log" | tail -n 1)
  findings=$(find "$out/findings/$1" -type f | wc -l)
  [ "$2" = 0 ] || [ "$findings" -gt 0 ] || findings="failed: $log" # a leak, or no run at all
  printf '%-12s %12s  %-20s %s\n' "$1" "${executions:-0}" "${corpus#corp: }" "$findings"
}

# All that is needed elsewhere to see a finding again: the log has the input as text, too, where that is short.
tell() {
  printf '\n%s: the end of %s\n' "$1" "$out/$1.log"
  tail -n 60 "$out/$1.log" | cut -c 1-400
}

# Of the small inputs alone: the repository shall stay small, too. Those with a name of their own stay.
minimize() {
  local made=$scratch/made small=$scratch/small
  rm -rf "$made" "$small" && mkdir -p "$made" "$small" "$out/corpus/$1" "fuzz/corpus/$1"
  find "$out/corpus/$1" "fuzz/corpus/$1" -type f -size -1500c -exec cp -t "$small" {} +
  nice build/asan-ubsan/bin/"fuzz_$1" $limits -merge=1 "$made" "$small" >"$out/$1.log" 2>&1
  find "fuzz/corpus/$1" -type f -regextype posix-extended -regex '.*/[0-9a-f]{40}' -delete
  find "$made" -type f -exec cp -t "fuzz/corpus/$1" {} +
  printf '%-12s %s\n' "$1" "$(find "fuzz/corpus/$1" -type f | wc -l) files, $(du -bs "fuzz/corpus/$1" | cut -f1) bytes"
}
export -f fuzz report
mkdir -p "$out"

if [ "$mode" = minimize ]; then
  for name in "${names[@]}"; do minimize "$name"; done
  exit
fi
printf '%-12s %12s  %-20s %s\n' fuzzer executions corpus findings
printf '%s\n' "${names[@]}" | xargs -P 2 -I{} bash -euo pipefail -c 'fuzz {}' | tee "$scratch/table"
failed=$(sed -n '/ 0$/!s/ .*//p' "$scratch/table")
for name in $failed; do tell "$name"; done
[ -z "$failed" ]
