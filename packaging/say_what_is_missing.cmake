# Run by CPack before it packs the collected files: names them to the uninstaller, and says what is
# missing.
file(GLOB_RECURSE packed RELATIVE ${CPACK_TEMPORARY_DIRECTORY} ${CPACK_TEMPORARY_DIRECTORY}/*)
set(deletions "")
foreach(name IN LISTS packed)
  string(REPLACE "/" "\\" installed "${name}")
  string(APPEND deletions "!insertmacro DeleteUnchanged \"${installed}\" \"${name}\"\n")
endforeach()
file(WRITE ${CPACK_TOPLEVEL_DIRECTORY}/delete_unchanged.nsh "${deletions}")

if(NOT EXISTS ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/TAMOVI.CHM)
  message(WARNING "The package has no manual: chmcmd (Debian package fp-utils) is missing.")
endif()
if(NOT CPACK_NSIS_EXECUTABLE)
  message(WARNING "Only the zip is made: makensis (Debian package nsis) is missing.")
endif()
