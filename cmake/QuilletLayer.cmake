# quillet_layer(NAME SOURCES ... HEADERS ... LINK ...)
# One static library per layer: quillet_NAME. Its headers are a file set, so that the
# target all_verify_interface_header_sets proves that each one compiles on its own.
function(quillet_layer name)
  cmake_parse_arguments(ARG "" "" "SOURCES;HEADERS;LINK" ${ARGN})
  set(target quillet_${name})
  add_library(${target} STATIC)
  target_sources(${target}
    PRIVATE ${ARG_SOURCES}
    PUBLIC FILE_SET HEADERS BASE_DIRS ${CMAKE_SOURCE_DIR}/src FILES ${ARG_HEADERS})
  target_link_libraries(${target} PUBLIC quillet_options ${ARG_LINK})
  set_target_properties(${target} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
endfunction()
