# One target carries the warnings and the hardening that all code of the project is built with.
add_library(velmora_warnings INTERFACE)
target_compile_options(
  velmora_warnings
  INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
            -Woverloaded-virtual -Wimplicit-fallthrough -Werror
            # What only one file uses is in an unnamed namespace.
            $<$<CXX_COMPILER_ID:GNU>:-Wmissing-declarations>
            "$<$<CXX_COMPILER_ID:Clang,AppleClang>:-Wmissing-prototypes;-Wmissing-variable-declarations>"
            # GCC 12 sees overlapping copies in "text" + std::string where there are none (its bug 105651).
            $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
            # Rounding must compile to one instruction: nothing here looks at errno.
            -fno-math-errno)

option(VELMORA_SANITIZE "Run under AddressSanitizer and UndefinedBehaviorSanitizer; with clang, fuzz too" OFF)
set(VELMORA_FUZZ OFF)
if(VELMORA_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    # The fuzz targets take the game as the tests have it, so it is built for them once.
    set(VELMORA_FUZZ ON)
    add_compile_options(-fsanitize=fuzzer-no-link)
  endif()
endif()
