#!/usr/bin/env bash
# Asks other implementations for all answers in tests/data/vectors again and prints what differs. It needs
# libbcprov-java, default-jdk-headless and libtomcrypt-dev, which no test does.
set -euo pipefail
cd "$(dirname "$0")"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
grep -vh '^#' ../../data/vectors/*.txt | sort >"$scratch/ours"
cc answers.c -ltomcrypt -o "$scratch/answers"
java -cp "${BCPROV:-/usr/share/java/bcprov.jar}" Answers.java <"$scratch/ours" >"$scratch/BouncyCastle"
"$scratch/answers" <"$scratch/ours" >"$scratch/libtomcrypt"
/usr/bin/perl answers.pl <"$scratch/ours" >"$scratch/CryptX"
for who in BouncyCastle libtomcrypt CryptX; do
  # The same answers, and of the algorithms that evidence.txt claims.
  diff <(sort "$scratch/$who") <(grep -Ff <(cut -d ' ' -f 1-3 "$scratch/$who") "$scratch/ours") >&2
  cut -d ' ' -f 1 "$scratch/$who" | sort -u >"$scratch/names"
  awk -v who="$who" '$2 ~ who { print $1 }' ../../data/evidence.txt | sort | diff "$scratch/names" - >&2
  echo "$who gives the same $(wc -l <"$scratch/$who") answers."
done
