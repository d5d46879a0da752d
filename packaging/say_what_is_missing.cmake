# Run by CPack before it packs the collected files.
if(NOT EXISTS ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/TAMOVI.CHM)
  message(WARNING "The package has no manual: chmcmd (Debian package fp-utils) is missing.")
endif()
if(NOT CPACK_NSIS_EXECUTABLE)
  message(WARNING "Only the zip is made: makensis (Debian package nsis) is missing.")
endif()
