# The warnings of every target of ours; each is an error.
add_library(corvanta_warnings INTERFACE)
target_compile_options(
  corvanta_warnings
  INTERFACE -Werror
            -Wall
            -Wextra
            -Wpedantic
            -Wshadow
            -Wconversion
            -Wnon-virtual-dtor
            -Woverloaded-virtual
            -Wold-style-cast
            -Wimplicit-fallthrough
            -Wcast-qual)
if(WIN32)
  # windows.h writes its own constants and handles with C casts and unused callback types.
  target_compile_options(corvanta_warnings INTERFACE -Wno-old-style-cast -Wno-cast-function-type)
endif()
