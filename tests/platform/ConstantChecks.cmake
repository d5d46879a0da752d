# corvanta_check_constants(<target>)
#
# For the Windows build: turns every plain constant of the stand-in platform into a static_assert
# against the value that the platform's own headers give it, and compiles that into the target.
function(corvanta_check_constants target)
  set(header ${PROJECT_SOURCE_DIR}/src/platform/standin/constants.h)
  set(source ${CMAKE_CURRENT_BINARY_DIR}/constant_checks.cpp)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})
  file(STRINGS ${header} lines REGEX "^#define [A-Za-z0-9_]+ [^\\\\]*$")
  set(checks "#include <cstddef>\n\n#include \"platform/win32.h\"\n\n")
  foreach(line IN LISTS lines)
    # Handles and texts are no constant expressions; the tests use them.
    if(line MATCHES "^#define ([A-Za-z0-9_]+) (\\(?-?[0-9][0-9A-Fa-fx]*\\)?|\\(\\(int\\).*|\\(\\(DWORD\\).*)$")
      string(APPEND checks
             "static_assert(static_cast<unsigned>(${CMAKE_MATCH_1}) == "
             "static_cast<unsigned>(${CMAKE_MATCH_2}), \"${CMAKE_MATCH_1}\");\n")
    endif()
  endforeach()
  file(WRITE ${source} "${checks}")
  target_sources(${target} PRIVATE ${source})
endfunction()
