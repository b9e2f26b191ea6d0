# What Debian asks of each package beyond what an installation holds: who may copy it, what changed, compressed manual
# pages. CPack runs this on the files of all packages before it packs them.
set(packages Runtime liborbchart0 Development liborbchart-dev Program orbml)

while(packages)
  list(POP_FRONT packages component package)
  set(root "${CPACK_TEMPORARY_DIRECTORY}/${component}/usr")
  if(NOT IS_DIRECTORY "${root}")
    continue()
  endif()
  file(COPY "${CMAKE_CURRENT_LIST_DIR}/copyright" "${CMAKE_CURRENT_LIST_DIR}/changelog"
       DESTINATION "${root}/share/doc/${package}")
  set(compressed "${root}/share/doc/${package}/changelog")
  file(GLOB manuals "${root}/share/man/man1/*.1")
  execute_process(COMMAND gzip --best --no-name --force ${compressed} ${manuals} COMMAND_ERROR_IS_FATAL ANY)
  if(EXISTS "${CMAKE_CURRENT_LIST_DIR}/${package}.lintian-overrides")
    file(MAKE_DIRECTORY "${root}/share/lintian/overrides")
    file(COPY_FILE "${CMAKE_CURRENT_LIST_DIR}/${package}.lintian-overrides" "${root}/share/lintian/overrides/${package}")
  endif()

  # The system's folders are searched anyway.
  file(GLOB programs "${root}/bin/*" "${root}/lib/*.so.*.*" "${root}/lib/lib*.so")
  foreach(program IN LISTS programs)
    if(NOT IS_SYMLINK "${program}")
      file(RPATH_REMOVE FILE "${program}")
    endif()
  endforeach()
endwhile()
