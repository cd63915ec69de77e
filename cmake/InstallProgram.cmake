# Installs the programs, their help and documents, for any prefix and to be moved as a whole afterwards:
#   cmake --install build/release --component program --prefix /some/where
# Each program looks for what belongs to it in the folder of its own executable, symbolic links followed. So they live
# together in a folder of their own, and relative links in the folder for programs lead there.
include(GNUInstallDirs)

set(program_folder lib/penwright)
install(TARGETS PenwrightPE hostbench RUNTIME DESTINATION ${program_folder} COMPONENT program)
install(FILES $<TARGET_FILE_DIR:PenwrightPE>/Lumentor_PE-HTML.chm DESTINATION ${program_folder} COMPONENT program)

# The way from one folder below the prefix to the other. Folders given whole count from the prefix that is configured.
cmake_path(ABSOLUTE_PATH program_folder BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} NORMALIZE OUTPUT_VARIABLE way)
cmake_path(RELATIVE_PATH way BASE_DIRECTORY ${CMAKE_INSTALL_FULL_BINDIR})
foreach(program PenwrightPE hostbench)
  set(link ${PROJECT_BINARY_DIR}/links/${program})
  file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/links)
  file(CREATE_LINK ${way}/${program} ${link} SYMBOLIC)
  install(FILES ${link} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT program)
endforeach()

set(packaging ${PROJECT_SOURCE_DIR}/packaging)
install(FILES ${packaging}/PenwrightPE.1 ${packaging}/hostbench.1
  DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT program)
install(FILES ${PROJECT_SOURCE_DIR}/docs/host-integration.md ${PROJECT_SOURCE_DIR}/docs/plot.md
  DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT program)
install(FILES ${packaging}/org.penwright.hostbench.desktop
  DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT program)
install(FILES ${packaging}/org.penwright.hostbench.metainfo.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT program)
install(FILES ${packaging}/org.penwright.hostbench.svg
  DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT program)
