# Our own targets treat warnings as errors; system headers stay quiet.
function(zephrane_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Werror -Wshadow=local
                                           -Wnon-virtual-dtor -Wno-missing-field-initializers)
endfunction()
