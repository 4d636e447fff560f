# Warnings and sanitizers, in the one interface target that everything of ours links.
add_library(quillet_options INTERFACE)

target_compile_options(quillet_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
  -Woverloaded-virtual -Wcast-qual -Wformat=2 -Wundef -Wnull-dereference
  $<$<BOOL:${QUILLET_WERROR}>:-Werror>)
target_compile_definitions(quillet_options INTERFACE
  QUILLET_VERSION="${PROJECT_VERSION}"
  $<$<NOT:$<CONFIG:Debug>>:_FORTIFY_SOURCE=2>)
target_include_directories(quillet_options INTERFACE ${CMAKE_SOURCE_DIR}/src)

if(QUILLET_SANITIZERS)
  target_compile_options(quillet_options INTERFACE
    -fsanitize=${QUILLET_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(quillet_options INTERFACE -fsanitize=${QUILLET_SANITIZERS})
else()
  target_compile_options(quillet_options INTERFACE -fstack-protector-strong)
endif()
