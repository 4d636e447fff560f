#!/usr/bin/env bash
# guide_pictures.sh: takes the pictures of the README, the user guide and the description for software centres anew, from
# the running program, into docs/pictures. Needs Debian's imagemagick beside what ./test.sh installs.
set -euo pipefail
cd "$(dirname "$0")/.."
command -v convert >/dev/null || { echo "guide_pictures.sh: the package imagemagick is missing" >&2; exit 1; }
. packaging/install.sh
build_preset dev window_gallery dialog_gallery

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
gallery() {
  xvfb-run -a "build/dev/bin/$1" "$scratch/$1" "${@:2}" 2>"$scratch/log" || { cat "$scratch/log" >&2; exit 1; }
}
gallery window_gallery
gallery window_gallery dark
gallery dialog_gallery

# The picture in docs/pictures, and what the galleries call it.
while read -r picture source; do
  convert "$scratch/$source.png" -strip +dither -colors 128 -define png:compression-level=9 \
    -define png:exclude-chunks=date,time "docs/pictures/$picture.png"
done <<END
ready              window_gallery/ready_
running            window_gallery/running_
done               window_gallery/success_
sealed-dark        window_gallery/sealed_dark
offer              window_gallery/offer_
damaged            window_gallery/damaged_
list               window_gallery/list_done_
password           dialog_gallery/password_seal
password-generator dialog_gallery/password_generator
key                dialog_gallery/key_generated
algorithms         dialog_gallery/set_algorithm_weak
options            dialog_gallery/options_general
options-names      dialog_gallery/options_names
END
