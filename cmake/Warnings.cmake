# The one list of warning flags for our own code: warnings are errors; system headers stay quiet.
set(ZEPHRANE_WARNING_FLAGS -Wall -Wextra -Wpedantic -Werror -Wnon-virtual-dtor -Wno-missing-field-initializers)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 at -O3 takes some std::string assignments for overlapping copies (a known false positive
  # of its -Wrestrict), which would break the optimised build only.
  list(APPEND ZEPHRANE_WARNING_FLAGS -Wshadow=local -Wno-restrict)
else()
  list(APPEND ZEPHRANE_WARNING_FLAGS -Wshadow-uncaptured-local)
endif()

# Every source of `target` is ours.
function(zephrane_warnings target)
  target_compile_options(${target} PRIVATE ${ZEPHRANE_WARNING_FLAGS})
endfunction()

# Only the listed sources are ours; the rest of the target is generated (moc, qmlcachegen, type
# registrations) and not ours to police.
function(zephrane_warnings_on_sources)
  set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS "${ZEPHRANE_WARNING_FLAGS}")
endfunction()
