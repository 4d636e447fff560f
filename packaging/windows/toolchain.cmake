# Builds for Windows with the compilers of Debian's g++-mingw-w64-x86-64-posix and the libraries that toolchain.sh has
# put into its cache folder.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(host x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${host}-gcc-posix)
set(CMAKE_CXX_COMPILER ${host}-g++-posix)
set(CMAKE_RC_COMPILER ${host}-windres)

if(NOT "$ENV{QUILLET_WINDOWS}" STREQUAL "")
  set(cache $ENV{QUILLET_WINDOWS})
elseif(NOT "$ENV{XDG_CACHE_HOME}" STREQUAL "")
  set(cache $ENV{XDG_CACHE_HOME}/quillet-windows)
else()
  set(cache $ENV{HOME}/.cache/quillet-windows)
endif()
set(CMAKE_PREFIX_PATH ${cache}/prefix ${cache}/qt)
set(CMAKE_FIND_ROOT_PATH /usr/${host} ${cache})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} ${cache}/prefix/lib/pkgconfig)

set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/wine.sh)
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -L${cache}/prefix/lib")
# GCC aligns the stack to 16 bytes on Windows and yet moves 32 as if they were aligned (its bug 54412): the assembler
# makes these moves indifferent to it.
set(CMAKE_C_FLAGS_INIT -Wa,-muse-unaligned-vector-move)
set(CMAKE_CXX_FLAGS_INIT -Wa,-muse-unaligned-vector-move)
