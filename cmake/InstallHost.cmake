# Installs the host library as the package PenwrightHost with its one target PenwrightHost::host:
#   cmake --install build/release --component host --prefix /some/where
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(host_package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/PenwrightHost)
set_target_properties(penwright_host PROPERTIES EXPORT_NAME host)
install(TARGETS penwright_host EXPORT PenwrightHostTargets
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT host
  FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT host)
install(EXPORT PenwrightHostTargets NAMESPACE PenwrightHost:: DESTINATION ${host_package_folder} COMPONENT host)

write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/PenwrightHostConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
configure_file(${PROJECT_SOURCE_DIR}/cmake/PenwrightHostConfig.cmake.in PenwrightHostConfig.cmake @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/PenwrightHostConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/PenwrightHostConfigVersion.cmake
  DESTINATION ${host_package_folder} COMPONENT host)
