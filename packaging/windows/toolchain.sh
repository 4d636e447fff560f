#!/usr/bin/env bash
# toolchain.sh [STEP ...]: builds what the Windows programs link, from Debian's source packages, into the cache folder
# $QUILLET_WINDOWS, else ${XDG_CACHE_HOME:-~/.cache}/quillet-windows. Steps: argon2 cryptopp zxcvbn googletest qt qtsvg; all
# without arguments. Each is done once for a version of sources.txt and prints how long it took; its output is in
# log/STEP. JOBS is the number of compilers at a time (2). Needs no rights but for missing packages.
set -euo pipefail
cd "$(dirname "$0")/../.."
. packaging/install.sh
install_missing packaging/packages-windows.txt

here=$PWD/packaging/windows
cache=${QUILLET_WINDOWS:-${XDG_CACHE_HOME:-$HOME/.cache}/quillet-windows}
prefix=$cache/prefix
host=x86_64-w64-mingw32
jobs=${JOBS:-2}
# GCC aligns the stack to 16 bytes on Windows and yet moves 32 as if they were aligned (its bug 54412): the assembler
# makes these moves indifferent to it.
flags="-O2 -DNDEBUG -Wa,-muse-unaligned-vector-move"

mkdir -p "$cache"/{log,done,source,apt/lists/partial,apt/cache/archives/partial} "$prefix"/{include,lib/pkgconfig}

# The sources come through lists of packages of our own: the machine's stay as they are.
apt_get() {
  local key=/usr/share/keyrings/debian-archive-keyring.gpg
  printf "deb-src [signed-by=$key] http://deb.debian.org/%s main\n" 'debian bookworm' 'debian bookworm-updates' \
    'debian-security bookworm-security' >"$cache/apt/sources.list"
  apt-get -q -o Dir::State::Lists="$cache/apt/lists" -o Dir::Cache="$cache/apt/cache" -o Dir::Etc::SourceParts=/dev/null \
    -o Dir::Etc::SourceList="$cache/apt/sources.list" -o APT::Sandbox::User="$(id -un)" "$@"
}

version_of() {
  awk -v name="$1" '$1 == name { print $2 }' "$here/sources.txt"
}

# unpack SOURCE: fetches and unpacks the source package, verified by apt, and goes there. What an interrupted run has
# left of the same version is gone on with.
unpack() {
  local folder=$cache/source/$1-$(version_of "$1")
  if [ ! -e "$folder/unpacked" ]; then
    rm -rf "$cache/source/$1"-*
    mkdir "$folder"
    cd "$folder"
    apt_get source "$1=$(version_of "$1")" || { apt_get update && apt_get source "$1=$(version_of "$1")"; }
    touch unpacked
  fi
  cd "$folder/$1"-*/
}

# describe NAME LIBRARIES: lets pkg-config find what has been put into the prefix.
describe() {
  printf 'Name: %s\nDescription: %s\nVersion: %s\nLibs: -L%s/lib %s\nCflags: -I%s/include\n' \
    "$1" "$1" "$3" "$prefix" "$2" "$prefix" >"$prefix/lib/pkgconfig/$1.pc"
}

# The reference code, as cryptsetup's source carries it.
build_argon2() {
  unpack cryptsetup
  cd lib/crypto_backend/argon2
  $host-gcc $flags -std=gnu89 -I. -Iblake2 -c argon2.c core.c encoding.c opt.c thread.c blake2/blake2b.c
  $host-ar rcs "$prefix/lib/libargon2.a" ./*.o
  install -m 644 argon2.h "$prefix/include"
  describe libargon2 -largon2 "$(version_of cryptsetup)"
}

# For Windows 10 and later: random numbers are those of its BCrypt.
build_cryptopp() {
  unpack libcrypto++
  make -j"$jobs" static CXX=$host-g++ AR=$host-ar RANLIB=$host-ranlib CXXFLAGS="$flags -D_WIN32_WINNT=0x0A00"
  mkdir -p "$prefix/include/cryptopp"
  install -m 644 ./*.h "$prefix/include/cryptopp"
  install -m 644 libcrypto++.a "$prefix/lib"
  describe libcrypto++ "-lcrypto++ -lbcrypt -lws2_32" "$(version_of libcrypto++)"
}

build_zxcvbn() {
  unpack haskell-zxcvbn-c
  : >stdafx.h # a precompiled header that it expects on Windows
  make dict-src.h
  $host-gcc $flags -c zxcvbn.c
  $host-ar rcs "$prefix/lib/libzxcvbn.a" zxcvbn.o
  install -m 644 zxcvbn.h "$prefix/include"
}

build_googletest() {
  unpack googletest
  cmake -S . -B build -G Ninja -DCMAKE_TOOLCHAIN_FILE="$here/toolchain.cmake" -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_INSTALL_PREFIX="$prefix" -Dgtest_disable_pthreads=OFF
  cmake --build build -j"$jobs"
  cmake --install build
}

# Into a prefix of its own, whose tools (moc, rcc, uic) are this machine's. Built beside the source: within it, its
# installation looks for the files of pkg-config in the wrong place.
build_qt() {
  unpack qtbase-opensource-src
  mkdir -p ../build
  cd ../build
  [ -e Makefile ] || ../qtbase-*/configure -prefix "$cache/qt" -opensource -confirm-license -release -static \
    -platform linux-g++ -xplatform win32-g++ -device-option CROSS_COMPILE=$host- -nomake examples -nomake tests \
    -no-compile-examples -no-avx -no-avx2 -no-avx512 -no-opengl -no-openssl -no-dbus -no-icu -no-libjpeg -qt-zlib \
    -qt-libpng -qt-freetype -qt-harfbuzz -qt-pcre -no-feature-vulkan -no-feature-direct2d -no-feature-sql \
    -no-feature-network -no-feature-printer -no-feature-concurrent -no-feature-tabletevent
  make -j"$jobs" sub-src
  make install
}

build_qtsvg() {
  unpack qtsvg-opensource-src
  "$cache/qt/bin/qmake" CONFIG+=release
  make -j"$jobs" sub-src
  make sub-src-install_subtargets
}

# step NAME SOURCE: builds it unless it is there in this version.
step() {
  local name=$1 done seconds=$SECONDS
  done=$cache/done/$name-$(version_of "$2")
  [ ! -e "$done" ] || return 0
  # Not in a condition: there the shell would go on after a command that failed.
  set +e
  (set -e; "build_$name") >"$cache/log/$name" 2>&1
  local result=$?
  set -e
  if [ $result != 0 ]; then
    tail -40 "$cache/log/$name" >&2
    echo "toolchain.sh: $name could not be built; its log is $cache/log/$name" >&2
    return 1
  fi
  rm -rf "$cache/done/$name"-* "$cache/source/$2"-*
  date +%F >"$done"
  printf '%-12s %4d s\n' "$name" $((SECONDS - seconds))
}

for name in "${@:-argon2 cryptopp zxcvbn googletest qt qtsvg}"; do
  for part in $name; do
    case $part in
      argon2) step argon2 cryptsetup ;;
      cryptopp) step cryptopp libcrypto++ ;;
      googletest) step googletest googletest ;;
      zxcvbn) step zxcvbn haskell-zxcvbn-c ;;
      qt | qtsvg) step "$part" "${part/%qt/qtbase}-opensource-src" ;;
      *) echo "toolchain.sh: no step $part" >&2; exit 2 ;;
    esac
  done
done
