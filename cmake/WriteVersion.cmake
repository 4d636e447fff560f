# cmake -D VERSION=... -D OUTPUT=FILE -P WriteVersion.cmake: run by each build; touches the file only
# when the commit is another one.
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/SourceCommit.cmake)
set(text "${VERSION}")
if(SOURCE_COMMIT)
  string(APPEND text " (${SOURCE_COMMIT})")
endif()
file(CONFIGURE OUTPUT ${OUTPUT} @ONLY CONTENT [[
#include "common/version/Version.h"

const char* tessaly::versionText()
{
    return "@text@";
}
]])
