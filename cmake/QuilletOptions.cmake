# Warnings and sanitizers, in the one interface target that everything of ours links.
add_library(quillet_options INTERFACE)

target_compile_options(quillet_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
  -Woverloaded-virtual -Wcast-qual -Wformat=2 -Wundef -Wnull-dereference
  $<$<BOOL:${QUILLET_WERROR}>:-Werror>)
target_compile_definitions(quillet_options INTERFACE QUILLET_VERSION="${PROJECT_VERSION}")
target_include_directories(quillet_options INTERFACE ${CMAKE_SOURCE_DIR}/src)

if(QUILLET_SYSTEM STREQUAL "windows")
  # Windows 10 and later, as the libraries are built for.
  target_compile_definitions(quillet_options INTERFACE
    _WIN32_WINNT=0x0A00 UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN)
endif()

# What users get is the same in whatever folder it was built.
target_compile_options(quillet_options INTERFACE
  $<$<NOT:$<CONFIG:Debug>>:-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.>
  $<$<NOT:$<CONFIG:Debug>>:-ffile-prefix-map=${CMAKE_BINARY_DIR}=build>)

if(QUILLET_SANITIZERS)
  target_compile_options(quillet_options INTERFACE
    -fsanitize=${QUILLET_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(quillet_options INTERFACE -fsanitize=${QUILLET_SANITIZERS})
else()
  include(QuilletHardening)
  target_link_libraries(quillet_options INTERFACE quillet_hardening)
endif()
