# cmake --install: the library with its soname, the headers, the CMake package and the pkg-config
# file. The headers and the style file are installed where they are listed.

include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/QuorlinCWidget")

install(TARGETS cwidget EXPORT QuorlinCWidgetTargets
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT runtime NAMELINK_COMPONENT development)
install(EXPORT QuorlinCWidgetTargets
  NAMESPACE Quorlin:: DESTINATION "${package_dir}" COMPONENT development)

configure_package_config_file(
  "${CMAKE_CURRENT_LIST_DIR}/QuorlinCWidgetConfig.cmake.in"
  "${CMAKE_BINARY_DIR}/QuorlinCWidgetConfig.cmake"
  INSTALL_DESTINATION "${package_dir}"
  PATH_VARS CWIDGET_INSTALL_STYLEDIR)
write_basic_package_version_file(
  "${CMAKE_BINARY_DIR}/QuorlinCWidgetConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES
  "${CMAKE_BINARY_DIR}/QuorlinCWidgetConfig.cmake"
  "${CMAKE_BINARY_DIR}/QuorlinCWidgetConfigVersion.cmake"
  DESTINATION "${package_dir}" COMPONENT development)

# The pkg-config file finds the prefix from its own place, so that a staged or moved tree works.
file(RELATIVE_PATH CWIDGET_PKGCONFIG_TO_PREFIX
  "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" "${CMAKE_INSTALL_PREFIX}")
configure_file(
  "${CMAKE_CURRENT_LIST_DIR}/quorlin-cwidget.pc.in" "${CMAKE_BINARY_DIR}/quorlin-cwidget.pc" @ONLY)
install(FILES "${CMAKE_BINARY_DIR}/quorlin-cwidget.pc"
  DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT development)
