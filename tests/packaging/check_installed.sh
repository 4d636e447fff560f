# Sourced with the root of an installation (such as /usr) as argument: tries what stands there.
check_installed() (
  set -euo pipefail
  here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
  bin=$1/bin share=$1/share
  work=$(mktemp -d) || exit
  trap 'rm -rf "$work"' EXIT
  fail() { echo "$1"; exit 1; }

  # The programs
  head -c 100000 /dev/urandom >"$work/plain"
  echo "a good password" >"$work/password"
  "$bin/quillet-cli" encrypt --password-file "$work/password" --algorithm Serpent-256 "$work/plain"
  "$bin/quillet-cli" decrypt --password-file "$work/password" --algorithm Serpent-256 --output "$work/opened" "$work/plain.enc"
  cmp "$work/plain" "$work/opened"
  [[ $("$bin/quillet" --version) =~ ^Quillet\ [0-9.]+\ \([0-9a-f]{12}\+?\)$ ]] || fail "no commit in the version"

  # The desktop's files
  id=$(basename "$share"/applications/*.desktop .desktop)
  desktop-file-validate "$share/applications/$id.desktop"
  appstreamcli validate --no-net "$share/metainfo/$id.metainfo.xml" >"$work/out" || fail "$(cat "$work/out")"
  for size in 16 22 24 32 48 64 128 256; do
    for icon in apps/quillet mimetypes/application-x-quillet; do
      file "$share/icons/hicolor/${size}x$size/$icon.png" | grep -q "PNG image data, $size x $size," || fail "no $icon of $size"
    done
  done
  mkdir -p "$work/mime/packages"
  cp "$share/mime/packages/$id.xml" "$work/mime/packages"
  XDG_DATA_HOME=$work update-mime-database "$work/mime"
  grep -qx '50:application/x-quillet:\*.enc' "$work/mime/globs2" || fail "*.enc is no file of Quillet's"

  # The manual pages have each option that the help has.
  for page in quillet quillet-cli; do
    text=$(man --warnings -l "$share/man/man1/$page.1.gz" 2>"$work/out" | col -b)
    [ ! -s "$work/out" ] || fail "$page.1: $(cat "$work/out")"
    for option in $("$bin/$page" --help | grep -oE '^ +-[-a-z]+' | sort -u); do
      grep -qe "$option" <<<"$text" || fail "$page.1: no $option"
    done
  done

  # The completions
  completed() { # SHELL EXPECTED GIVEN ...
    grep -qx -- "$2" <<<"$(cd "$work" && "complete_$1" quillet-cli "${@:3}")" || fail "$1 does not complete \"${*:3}\" to $2"
  }
  complete_bash() {
    bash -c '. /usr/share/bash-completion/bash_completion && . "$0" && COMP_WORDS=("$@") && COMP_CWORD=$(($# - 1)) &&
      COMP_LINE="$*" && COMP_POINT=${#COMP_LINE} && _quillet_cli && printf "%s\n" "${COMPREPLY[@]}"' \
      "$share/bash-completion/completions/quillet-cli" "$@"
  }
  complete_fish() {
    HOME=$work fish -N -c 'source $argv[1]; complete -C "$argv[2..]"' "$share/fish/vendor_completions.d/quillet-cli.fish" "$@" | cut -f1
  }
  complete_zsh() {
    HOME=$work timeout 20 zsh -f "$here/complete.zsh" "$share"/zsh/*/ "$@"
  }
  for shell in bash fish zsh; do
    completed $shell decrypt dec
    completed $shell --password-file encrypt --pass
    completed $shell Serpent-256 encrypt --algorithm Serpent-25
    completed $shell plain.enc decrypt plain.e
  done
)
check_installed "$@"
