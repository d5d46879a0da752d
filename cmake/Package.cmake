# The manual, the installed files and the packages: a zip, and an installer where NSIS is at hand.
# `cmake --build <build folder> --target package` writes both to the build folder's `package`.
include(cmake/PackageManual.cmake)

# The shipped binaries carry nothing that is never called, and stop at a stack that was overrun.
foreach(target editor Corvanta ImageLib sprite corvanta-sprite)
  target_compile_options(${target} PRIVATE -ffunction-sections -fdata-sections -fstack-protector)
endforeach()
foreach(target Corvanta ImageLib corvanta-sprite)
  target_link_options(${target} PRIVATE -Wl,--gc-sections)
endforeach()
target_link_libraries(editor PUBLIC ssp)
target_link_libraries(ImageLib PRIVATE ssp)

# One flat folder: the editor looks for everything beside its executable.
install(TARGETS Corvanta ImageLib corvanta-sprite RUNTIME DESTINATION .)
# The symbols stay behind, in the build folder. Without -p, which CPack's own stripping lacks, each
# run would write another time into the files.
install(
  CODE "
  foreach(name Corvanta.exe ImageLib.dll corvanta-sprite.exe)
    execute_process(COMMAND \"${CMAKE_STRIP}\" -p \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/\${name}\"
                    COMMAND_ERROR_IS_FATAL ANY)
  endforeach()")
install(FILES templates/Settings.ini DESTINATION .)
install(DIRECTORY templates/Templates templates/samples DESTINATION .)
# Papers for the user, with the line ends of Windows.
foreach(paper packaging/Readme.txt packaging/Notices.txt LICENSE)
  cmake_path(GET paper STEM name)
  string(REPLACE LICENSE License name ${name})
  configure_file(${paper} ${CMAKE_BINARY_DIR}/papers/${name}.txt @ONLY NEWLINE_STYLE CRLF)
endforeach()
install(DIRECTORY ${CMAKE_BINARY_DIR}/papers/ DESTINATION .)
if(TARGET manual)
  install(FILES ${CORVANTA_MANUAL} DESTINATION .)
endif()

set(CPACK_GENERATOR ZIP)
find_program(CORVANTA_MAKENSIS makensis)
if(CORVANTA_MAKENSIS)
  list(APPEND CPACK_GENERATOR NSIS)
  set(CPACK_NSIS_EXECUTABLE ${CORVANTA_MAKENSIS})
endif()
set(CPACK_PACKAGE_NAME Corvanta)
set(CPACK_PACKAGE_HOMEPAGE_URL ${PROJECT_HOMEPAGE_URL})
set(CPACK_PACKAGE_VENDOR "The Corvanta authors")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Loading screen editor")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_FILE_NAME Corvanta-${PROJECT_VERSION})
set(CPACK_PACKAGE_INSTALL_DIRECTORY Corvanta)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/package)
set(CPACK_VERBATIM_VARIABLES ON)
# CPack takes its NSIS.template.in from here instead of its own, which installs for all users.
list(APPEND CMAKE_MODULE_PATH ${PROJECT_SOURCE_DIR}/packaging)
set(CPACK_NSIS_MUI_ICON ${PROJECT_SOURCE_DIR}/src/resources/corvanta.ico)
set(CPACK_NSIS_MUI_WELCOMEFINISHPAGE_BITMAP ${PROJECT_SOURCE_DIR}/packaging/setup_side.bmp)
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/packaging/each_package.cmake)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/packaging/before_packing.cmake)
include(CPack)
