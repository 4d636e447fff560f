# Sets SOURCE_COMMIT (empty where it is unknown) and SOURCE_DATE (seconds since 1970): of git, or of
# SourceCommit.txt, which a source archive has filled in.
file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/SourceCommit.txt lines)
list(GET lines 0 SOURCE_COMMIT)
list(GET lines 1 SOURCE_DATE)
if(SOURCE_COMMIT MATCHES "Format")
  set(SOURCE_COMMIT "")
  string(TIMESTAMP SOURCE_DATE %s)
  foreach(query "SOURCE_COMMIT;describe;--always;--abbrev=40;--exclude=*;--dirty=+" "SOURCE_DATE;log;-1;--format=%ct")
    list(POP_FRONT query variable)
    execute_process(COMMAND git ${query} WORKING_DIRECTORY ${CMAKE_CURRENT_LIST_DIR}
      OUTPUT_VARIABLE answer RESULT_VARIABLE failed OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    if(failed STREQUAL "0")
      set(${variable} ${answer})
    endif()
  endforeach()
endif()
string(REGEX REPLACE "^(............)[^+]*" "\\1" SOURCE_COMMIT "${SOURCE_COMMIT}")
