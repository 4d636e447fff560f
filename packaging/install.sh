# Sourced by run.sh and test.sh: installs the Debian packages that the named lists hold and that
# are missing, as root or through sudo. Says nothing when there is nothing to do.
install_missing() {
  local missing sudo='' log=build/install.log
  missing=$(cat "$@" | while read -r package; do
    dpkg-query -W -f='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed || echo "$package"
  done)
  [ -n "$missing" ] || return 0
  echo "Installing: $(echo $missing)" >&2
  [ "$(id -u)" = 0 ] || sudo=sudo
  mkdir -p build
  if ! { $sudo apt-get update -qq &&
         $sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing; } >"$log" 2>&1; then
    cat "$log" >&2
    return 1
  fi
}

# build_preset NAME [TARGET ...]: configures when needed and builds; shows the output of a failure.
build_preset() {
  local preset=$1 log=build/$1.log
  shift
  mkdir -p build
  if [ ! -f "build/$preset/build.ninja" ]; then
    echo "Configuring and building ($preset); the first time takes a few minutes ..." >&2
    cmake --preset "$preset" >"$log" 2>&1 || { cat "$log" >&2; return 1; }
  fi
  cmake --build --preset "$preset" ${1:+--target "$@"} >"$log" 2>&1 || { cat "$log" >&2; return 1; }
}
