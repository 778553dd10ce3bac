# Qt 6.4's qmltyperegistrar includes every registered type's header by its bare file name
# ("#include <SystemJunkModel.hpp>"), so the folders holding those headers must be on the include
# path of the QML module's target. Newer Qt writes the path it was given; drop this then.
function(zephrane_qml_header_folders target)
  get_target_property(sources ${target} SOURCES)
  set(folders "")
  foreach(source IN LISTS sources)
    if(source MATCHES "\\.hpp$")
      get_filename_component(folder ${source} DIRECTORY)
      list(APPEND folders ${folder})
    endif()
  endforeach()
  list(REMOVE_DUPLICATES folders)
  target_include_directories(${target} PRIVATE ${folders})
endfunction()
