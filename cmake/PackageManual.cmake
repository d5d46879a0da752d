# The manual: the pages of docs/manual compiled to one file, which Help, "Help" opens beside the
# executable. Without the compiler the build goes on without a manual.
find_program(CORVANTA_CHMCMD chmcmd)
if(NOT CORVANTA_CHMCMD)
  message(STATUS "No chmcmd (Debian package fp-utils): building without the manual")
  return()
endif()

set(CORVANTA_MANUAL ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/TAMOVI.CHM)
file(GLOB manual_sources CONFIGURE_DEPENDS docs/manual/*.h* docs/manual/*.css
     docs/manual/pictures/*.png)
# The compiler writes beside its sources, so it gets a copy of them.
set(manual_copy ${CMAKE_BINARY_DIR}/manual)
add_custom_command(
  OUTPUT ${CORVANTA_MANUAL}
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${manual_copy}
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/docs/manual ${manual_copy}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}
  COMMAND ${CMAKE_COMMAND} -E chdir ${manual_copy} ${CORVANTA_CHMCMD} --verbosity 1 manual.hhp
  COMMAND ${CMAKE_COMMAND} -E copy ${manual_copy}/TAMOVI.CHM ${CORVANTA_MANUAL}
  DEPENDS ${manual_sources}
  COMMENT "Compiling the manual"
  VERBATIM)
add_custom_target(manual ALL DEPENDS ${CORVANTA_MANUAL})
