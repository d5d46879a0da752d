# corvanta_embed_resources(<target> <script.rc>)
#
# Gives a native program the resources of a resource script: the C preprocessor expands the script,
# with the defines of its headers, and the text is compiled into the program, where the stand-in platform
# reads it. The target is the program itself: an object that only registers itself would be left out
# of a static library.
function(corvanta_embed_resources target script)
  get_target_property(type ${target} TYPE)
  if(NOT type STREQUAL "EXECUTABLE")
    message(FATAL_ERROR "Resources are embedded into a program, and ${target} is none.")
  endif()
  set(expanded ${CMAKE_CURRENT_BINARY_DIR}/${target}_resources.txt)
  set(source ${CMAKE_CURRENT_BINARY_DIR}/${target}_resources.cpp)
  # -undef: a word of the script must not be replaced by a macro of the compiler's own.
  add_custom_command(
    OUTPUT ${source}
    COMMAND ${CMAKE_CXX_COMPILER} -E -P -undef -nostdinc -x c -DCORVANTA_STANDIN -DRC_INVOKED
            -I ${PROJECT_SOURCE_DIR}/src -MMD -MF ${expanded}.d -MT ${source} -o ${expanded}
            ${script}
    COMMAND ${CMAKE_COMMAND} -DINPUT=${expanded} -DOUTPUT=${source} -P
            ${PROJECT_SOURCE_DIR}/cmake/WriteResourceSource.cmake
    MAIN_DEPENDENCY ${script}
    DEPENDS ${PROJECT_SOURCE_DIR}/cmake/WriteResourceSource.cmake
    DEPFILE ${expanded}.d
    COMMENT "Embedding ${script}"
    VERBATIM)
  target_sources(${target} PRIVATE ${source})
endfunction()
