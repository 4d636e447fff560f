#!/usr/bin/env bash
# Runs the worked example of docs/FILE_FORMAT.md word for word. Arguments: source tree, folder of the programs.
set -eu
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
example=$(awk '/^```sh$/ { inside = 1; next } /^```$/ { inside = 0 } inside' "$1/docs/FILE_FORMAT.md")
[ -n "$example" ]
cd "$scratch"
PATH="$2:$PATH" bash -eux -c "$example"
