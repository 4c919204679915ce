# cmake --install: the library with its soname, the headers, the CMake package and the pkg-config
# file. The headers and the style file are installed where they are listed. The target "uninstall"
# takes back what was installed last from this build folder.

include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/${CWIDGET_PACKAGE}")

install(TARGETS cwidget EXPORT ${CWIDGET_PACKAGE}Targets
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT runtime NAMELINK_COMPONENT development
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development)
install(EXPORT ${CWIDGET_PACKAGE}Targets
  NAMESPACE Quorlin:: DESTINATION "${package_dir}" COMPONENT development)

# ---- the CMake package

set(config "${PROJECT_BINARY_DIR}/${CWIDGET_PACKAGE}Config.cmake")
set(config_version "${PROJECT_BINARY_DIR}/${CWIDGET_PACKAGE}ConfigVersion.cmake")
configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/QuorlinCWidgetConfig.cmake.in" "${config}"
  INSTALL_DESTINATION "${package_dir}"
  PATH_VARS CWIDGET_INSTALL_STYLEDIR)
write_basic_package_version_file("${config_version}" COMPATIBILITY SameMajorVersion)
install(FILES "${config}" "${config_version}" DESTINATION "${package_dir}" COMPONENT development)

# ---- the pkg-config file

# cwidget_pkgconfig_path(VARIABLE FOLDER): an absolute folder stands as it is, the others begin with
# the prefix.
function(cwidget_pkgconfig_path variable folder)
  if(NOT IS_ABSOLUTE "${folder}")
    string(PREPEND folder "\${prefix}/")
  endif()
  set(${variable} "${folder}" PARENT_SCOPE)
endfunction()

cwidget_pkgconfig_path(CWIDGET_PKGCONFIG_LIBDIR "${CMAKE_INSTALL_LIBDIR}")
cwidget_pkgconfig_path(CWIDGET_PKGCONFIG_INCLUDEDIR "${CWIDGET_INSTALL_INCLUDEDIR}")
cwidget_pkgconfig_path(CWIDGET_PKGCONFIG_STYLEDIR "${CWIDGET_INSTALL_STYLEDIR}")
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
  set(CWIDGET_PKGCONFIG_PREFIX "${CMAKE_INSTALL_PREFIX}")
else()
  # From the file's own place, so that a staged or moved tree works.
  file(RELATIVE_PATH to_prefix "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" "${CMAKE_INSTALL_PREFIX}")
  string(REGEX REPLACE "/$" "" to_prefix "${to_prefix}")
  set(CWIDGET_PKGCONFIG_PREFIX "\${pcfiledir}/${to_prefix}")
endif()
if(NOT BUILD_SHARED_LIBS)
  set(CWIDGET_PKGCONFIG_CFLAGS " -DCWIDGET_STATIC")
endif()
set(pkgconfig "${PROJECT_BINARY_DIR}/${CWIDGET_NAME}.pc")
configure_file("${CMAKE_CURRENT_LIST_DIR}/quorlin-cwidget.pc.in" "${pkgconfig}" @ONLY)
install(FILES "${pkgconfig}" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT development)

# ---- taking it back

if(CWIDGET_IS_TOP_LEVEL)
  add_custom_target(uninstall
    COMMAND "${CMAKE_COMMAND}" -D "CWIDGET_MANIFESTS=${PROJECT_BINARY_DIR}"
      -P "${CMAKE_CURRENT_LIST_DIR}/CWidgetUninstall.cmake"
    VERBATIM)
endif()
