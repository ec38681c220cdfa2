# What an installation holds, below the usual directories.
#
# The program goes where programs are found by name, not among the internals of a package (libexec): what starts it is
# the agent, which comes in a package of its own and names it to the system as any user would.
include(GNUInstallDirs)

install(TARGETS xqenclientui RUNTIME)

# Translations, for the agent to hand over, and what translators need to write more. The checker finds the template
# beside its own directory.
set(DATA_DIRECTORY ${CMAKE_INSTALL_DATADIR}/${PROJECT_NAME})
install(DIRECTORY share/translations DESTINATION ${DATA_DIRECTORY} FILES_MATCHING PATTERN *.xlat)
install(PROGRAMS tools/check_translation DESTINATION ${DATA_DIRECTORY}/tools)

# The resource file is an example only: the program itself reads no configuration file.
install(FILES docs/copyright docs/protocol.md docs/translating.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs/example-conversation DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY share/examples DESTINATION ${CMAKE_INSTALL_DOCDIR})

# Without name and time inside, so that equal sources yield equal files.
find_program(GZIP gzip REQUIRED)
function(install_compressed file directory)
  get_filename_component(name ${file} NAME)
  set(compressed ${CMAKE_BINARY_DIR}/${name}.gz)
  add_custom_command(
    OUTPUT ${compressed}
    COMMAND ${GZIP} -9 --no-name --stdout ${CMAKE_SOURCE_DIR}/${file} > ${compressed}
    DEPENDS ${file}
    VERBATIM)
  add_custom_target(compressed_${name} ALL DEPENDS ${compressed})
  install(FILES ${compressed} DESTINATION ${directory})
endfunction()
install_compressed(docs/changelog ${CMAKE_INSTALL_DOCDIR})
install_compressed(docs/xqenclientui.1 ${CMAKE_INSTALL_MANDIR}/man1)
