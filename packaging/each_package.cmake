# Read by CPack once for each package that it makes.
if(CPACK_GENERATOR STREQUAL "NSIS")
  # The zip and the installer must differ in more than their ending, which Windows hides.
  string(APPEND CPACK_PACKAGE_FILE_NAME "-setup")
endif()
