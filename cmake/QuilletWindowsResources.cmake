# quillet_windows_resources(TARGET DESCRIPTION [ICON FILE]): version, manifest and icon of a program for Windows. Nothing on
# other systems. The icon is drawn from the SVG file in the sizes that Windows asks for.
enable_language(RC)
set(CMAKE_RC_COMPILE_OBJECT "<CMAKE_RC_COMPILER> -O coff <DEFINES> <INCLUDES> -i <SOURCE> -o <OBJECT>")

function(quillet_windows_resources target description)
  cmake_parse_arguments(PARSE_ARGV 2 ARG "" "ICON" "")
  set(manifest ${CMAKE_SOURCE_DIR}/resources/windows/program.manifest)
  string(REPLACE "." "," version_numbers "${PROJECT_VERSION},0")
  set(icon_line "")
  if(ARG_ICON)
    quillet_windows_icon(${CMAKE_CURRENT_BINARY_DIR}/${target}.ico ${ARG_ICON})
    set(icon_line "IDI_ICON1 ICON \"${CMAKE_CURRENT_BINARY_DIR}/${target}.ico\"")
    set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${target}.rc PROPERTIES
      OBJECT_DEPENDS "${CMAKE_CURRENT_BINARY_DIR}/${target}.ico;${manifest}")
  endif()
  configure_file(${CMAKE_SOURCE_DIR}/resources/windows/program.rc.in ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc @ONLY)
  target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
endfunction()

# The largest one is kept as PNG, as Windows expects it; older readers know the others.
function(quillet_windows_icon icon svg)
  find_program(RSVG_CONVERT rsvg-convert REQUIRED)
  find_program(ICOTOOL icotool REQUIRED)
  set(pictures)
  set(commands)
  foreach(size 16 20 24 32 40 48 64 256)
    list(APPEND commands COMMAND ${RSVG_CONVERT} -w ${size} -h ${size} -o ${icon}.${size}.png ${svg})
    if(size LESS 256)
      list(APPEND pictures ${icon}.${size}.png)
    endif()
  endforeach()
  add_custom_command(OUTPUT ${icon} ${commands}
    COMMAND ${ICOTOOL} --create --output=${icon} ${pictures} --raw=${icon}.256.png
    DEPENDS ${svg} VERBATIM)
endfunction()
