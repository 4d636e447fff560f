# quillet_layer(NAME SOURCES ... HEADERS ... LINK ...)
# One static library per layer: quillet_NAME. Every header compiles on its own: its source includes it
# first (house.layers), and those without a source are a file set that the target
# all_verify_interface_header_sets compiles one by one.
function(quillet_layer name)
  cmake_parse_arguments(ARG "" "" "SOURCES;HEADERS;LINK" ${ARGN})
  set(alone ${ARG_HEADERS})
  list(TRANSFORM ARG_SOURCES REPLACE "\\.cpp$" ".h" OUTPUT_VARIABLE with_source)
  list(REMOVE_ITEM alone ${with_source})
  list(REMOVE_ITEM ARG_HEADERS ${alone})
  set(target quillet_${name})
  add_library(${target} STATIC)
  target_sources(${target}
    PRIVATE ${ARG_SOURCES}
    PUBLIC FILE_SET HEADERS BASE_DIRS ${CMAKE_SOURCE_DIR}/src FILES ${ARG_HEADERS}
    PUBLIC FILE_SET alone TYPE HEADERS BASE_DIRS ${CMAKE_SOURCE_DIR}/src FILES ${alone})
  target_link_libraries(${target} PUBLIC quillet_options ${ARG_LINK})
  set_target_properties(${target} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON INTERFACE_HEADER_SETS_TO_VERIFY alone)
endfunction()
