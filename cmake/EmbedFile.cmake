# zephrane_embed(target SYMBOL file): compiles the bytes of `file` into `target` as
# `extern const std::string_view SYMBOL` (namespace CleanerCore::Embedded).
set(ZEPHRANE_EMBED_SCRIPT ${CMAKE_CURRENT_LIST_DIR}/EmbedFileScript.cmake)
function(zephrane_embed target symbol file)
  set(out ${CMAKE_CURRENT_BINARY_DIR}/embedded/${symbol}.cpp)
  add_custom_command(
    OUTPUT ${out}
    COMMAND ${CMAKE_COMMAND} -DIN=${file} -DOUT=${out} -DSYMBOL=${symbol} -P ${ZEPHRANE_EMBED_SCRIPT}
    DEPENDS ${file} ${ZEPHRANE_EMBED_SCRIPT}
    COMMENT "Embedding ${file}")
  target_sources(${target} PRIVATE ${out})
endfunction()
