#!/usr/bin/env bash
# Fails on an include against the layer order app > ui > common > crypto > io > lib (cli stands beside app, over common),
# on a Crypto++ header outside crypto/cryptopp, and on Qt below ui where it is not allowed.
set -u
cd "$1/src" || exit 2
failed=0
complain() { printf '%s\n' "$2" | sed "s|^|$1: |"; failed=1; }

rank() {
  case $1 in
    lib) echo 0 ;; io) echo 1 ;; crypto) echo 2 ;; common) echo 3 ;; ui) echo 4 ;; app | cli) echo 5 ;; *) echo -1 ;;
  esac
}

while IFS=: read -r file line text; do
  from=${file%%/*}
  to=$(sed -E 's|.*"([a-z]+)/.*|\1|' <<<"$text")
  to_rank=$(rank "$to")
  [ "$to_rank" -ge 0 ] || continue
  if [ "$to_rank" -gt "$(rank "$from")" ] || { [ "$to" != "$from" ] && [ "$to_rank" = 5 ]; } ||
    [ "$from-$to" = cli-ui ]; then
    complain "against the layer order" "$file:$line:$text"
  fi
done < <(grep -rnE '^[[:space:]]*#[[:space:]]*include[[:space:]]+"[a-z]+/' --include='*.h' --include='*.cpp' . | sed 's|^\./||')

hits=$(grep -rnE '#[[:space:]]*include[[:space:]]+[<"](cryptopp|crypto\+\+)/' . | grep -v '^\./crypto/cryptopp/')
[ -z "$hits" ] || complain "Crypto++ outside crypto/cryptopp" "$hits"

hits=$(grep -rnE '#[[:space:]]*include[[:space:]]+[<"]argon2\.h' . | grep -v '^\./crypto/sealed/Argon2\.cpp:')
[ -z "$hits" ] || complain "Argon2 outside its one file" "$hits"

hits=$(grep -rnE '#[[:space:]]*include[[:space:]]+<Q[A-Za-z]+' lib io crypto cli | grep -v '^lib/i18n/')
[ -z "$hits" ] || complain "Qt below ui" "$hits"

hits=$(grep -rnE '^[[:space:]]*#[[:space:]]*(if|ifdef|ifndef|elif)\b.*(_WIN32|__linux__|__unix__|Q_OS_)' .)
[ -z "$hits" ] || complain "platform switch in the logic" "$hits"

posix='unistd|fcntl|sys/[a-z]+|termios|pwd|dirent|poll|dlfcn'
windows='windows|winternl|aclapi|sddl|shlobj|shellapi|shobjidl|io'
for system in linux windows; do
  [ $system = linux ] && foreign=$windows || foreign=$posix
  hits=$(grep -rnE "#[[:space:]]*include[[:space:]]+<($foreign)\.h>" lib/platform/$system app/desktop/$system 2>/dev/null |
    grep -vE ':#include <fcntl\.h>$')
  [ -z "$hits" ] || complain "header of another system" "$hits"
  hits=$(grep -rnE "#[[:space:]]*include[[:space:]]+\"(lib/platform|app/desktop)/$system/" . |
    grep -vE "^\./(lib/platform|app/desktop)/$system/")
  [ -z "$hits" ] || complain "one system's own header outside its folder" "$hits"
done
hits=$(grep -rnE "#[[:space:]]*include[[:space:]]+<($posix|$windows)\.h>" . | grep -vE '^\./(lib/platform|app/desktop)/(linux|windows)/')
[ -z "$hits" ] || complain "system header outside the platform folders" "$hits"

exit $failed
