# Our own targets treat warnings as errors; system headers stay quiet.
function(zephrane_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Werror -Wnon-virtual-dtor
                                           -Wno-missing-field-initializers)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${target} PRIVATE -Wshadow=local)
  else()
    target_compile_options(${target} PRIVATE -Wshadow-uncaptured-local)
  endif()
  # GCC 12 at -O3 takes some std::string assignments for overlapping copies (a known false
  # positive of its -Wrestrict), which would break the optimised build only.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${target} PRIVATE -Wno-restrict)
  endif()
endfunction()
