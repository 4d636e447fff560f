# What makes a fault in our programs hard to use, in the one interface target that everything of ours links.
# tests/packaging/hardening.sh reads from the programs whether it is there.
include(CheckCXXCompilerFlag)
check_cxx_compiler_flag(-fcf-protection=full QUILLET_HAS_CF_PROTECTION)
if(NOT WIN32) # there the compiler touches each page of a large frame anyway, and fails with the flag
  check_cxx_compiler_flag(-fstack-clash-protection QUILLET_HAS_STACK_CLASH_PROTECTION)
endif()

add_library(quillet_hardening INTERFACE)
target_compile_definitions(quillet_hardening INTERFACE _GLIBCXX_ASSERTIONS)
target_compile_options(quillet_hardening INTERFACE
  # Needs optimisation; some compilers bring a lower level of their own.
  $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE>
  $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=3>
  # As Qt asks; whatever is linked into a position-independent program must be so. On Windows all code is.
  $<$<NOT:$<BOOL:${WIN32}>>:-fPIC>
  -fstack-protector-strong
  $<$<BOOL:${QUILLET_HAS_CF_PROTECTION}>:-fcf-protection=full>
  $<$<BOOL:${QUILLET_HAS_STACK_CLASH_PROTECTION}>:-fstack-clash-protection>)
if(QUILLET_SYSTEM STREQUAL "windows")
  target_link_options(quillet_hardening INTERFACE
    LINKER:--nxcompat LINKER:--dynamicbase LINKER:--high-entropy-va
    -fstack-protector-strong) # its functions stand in a library of their own here
else()
  target_link_options(quillet_hardening INTERFACE
    $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:-pie>
    LINKER:-z,relro LINKER:-z,now LINKER:-z,noexecstack)
endif()
set(CMAKE_SKIP_RPATH ON)
