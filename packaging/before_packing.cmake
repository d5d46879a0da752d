# Run by CPack before it packs the collected files: names them to the installer, but for the settings,
# which it treats on their own, and says what is missing.
file(GLOB_RECURSE packed RELATIVE ${CPACK_TEMPORARY_DIRECTORY} ${CPACK_TEMPORARY_DIRECTORY}/*)
list(REMOVE_ITEM packed Settings.ini)
set(lines "")
foreach(name IN LISTS packed)
  string(REPLACE "/" "\\" name "${name}")
  string(APPEND lines "!insertmacro \${FOR_FILE} \"${name}\"\n")
endforeach()
file(WRITE ${CPACK_TOPLEVEL_DIRECTORY}/files.nsh "${lines}")

if(NOT EXISTS ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/TAMOVI.CHM)
  message(WARNING "The package has no manual: chmcmd (Debian package fp-utils) is missing.")
endif()
if(NOT CPACK_NSIS_EXECUTABLE)
  message(WARNING "Only the zip is made: makensis (Debian package nsis) is missing.")
endif()
