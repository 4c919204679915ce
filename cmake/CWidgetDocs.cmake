# The target "docs": the reference as HTML with a search, and as help for Qt's Assistant and Creator.
# Its pictures are drawn by cwidget-style, so it needs that, Doxygen, and Qt's qhelpgenerator.

find_program(CWIDGET_DOXYGEN doxygen)
find_program(CWIDGET_QHELPGENERATOR qhelpgenerator
  PATHS /usr/lib/qt6/libexec /usr/lib/qt5/bin /usr/lib/qt6/bin)

if(NOT (CWIDGET_DOXYGEN AND CWIDGET_QHELPGENERATOR AND TARGET cwidget-style))
  message(STATUS "Doxygen, qhelpgenerator or cwidget-style is missing: there is no target docs")
  return()
endif()

# Installed headers, and sources of the classes in them. What has a private header is private.
set(folders style widgets pages parm keypad hotplug)
list(TRANSFORM folders APPEND "/*.h" OUTPUT_VARIABLE headers)
list(TRANSFORM folders APPEND "/*.cpp" OUTPUT_VARIABLE sources)
file(GLOB files CONFIGURE_DEPENDS RELATIVE "${PROJECT_SOURCE_DIR}" ${headers} ${sources})
set(inputs "\"${PROJECT_SOURCE_DIR}/docs/reference\"")
foreach(file IN LISTS files)
  string(REGEX REPLACE "\\.(h|cpp)$" "_p.h" private "${file}")
  if(file MATCHES "devicewatcher" OR NOT (file MATCHES "_p\\.h$|qtcompat\\.h$" OR
      EXISTS "${PROJECT_SOURCE_DIR}/${private}"))
    list(APPEND inputs "\"${PROJECT_SOURCE_DIR}/${file}\"")
  endif()
endforeach()
list(JOIN inputs " \\\n                         " CWIDGET_DOCS_INPUT)

set(CWIDGET_DOCS_DIR "${PROJECT_BINARY_DIR}/docs")
set(CWIDGET_DOCS_PREVIEWS "${CWIDGET_DOCS_DIR}/previews")
string(REPLACE "." "" CWIDGET_DOCS_QHP_VERSION "${PROJECT_VERSION}")
configure_file("${PROJECT_SOURCE_DIR}/docs/Doxyfile.in" "${CWIDGET_DOCS_DIR}/Doxyfile" @ONLY)

add_custom_target(docs
  COMMAND "${CMAKE_COMMAND}" -E rm -rf "${CWIDGET_DOCS_DIR}/html" "${CWIDGET_DOCS_DIR}/xml"
  COMMAND "${CMAKE_COMMAND}" -E env "FONTCONFIG_FILE=${PROJECT_SOURCE_DIR}/resources/fonts.conf"
    $<TARGET_FILE:cwidget-style> preview "${PROJECT_SOURCE_DIR}/style/widget-style.xml"
    -o "${CWIDGET_DOCS_PREVIEWS}"
  COMMAND "${CWIDGET_DOXYGEN}" "${CWIDGET_DOCS_DIR}/Doxyfile"
  DEPENDS cwidget-style
  COMMENT "Building the reference"
  VERBATIM)

# One reference is for all generations of Qt.
if(CWIDGET_INSTALL AND NOT CWIDGET_SUFFIX)
  install(DIRECTORY "${CWIDGET_DOCS_DIR}/html" DESTINATION "${CMAKE_INSTALL_DOCDIR}"
    COMPONENT documentation OPTIONAL PATTERN "*.qhp" EXCLUDE)
  # install(FILES) would make the folder even where there is no such file, and uninstall leave it.
  set(help "${CWIDGET_DOCS_DIR}/quorlin-cwidget.qch")
  set(destination "${CMAKE_INSTALL_DOCDIR}")
  if(NOT IS_ABSOLUTE "${destination}")
    string(PREPEND destination "\${CMAKE_INSTALL_PREFIX}/")
  endif()
  install(CODE "
    if(EXISTS \"${help}\")
      file(INSTALL DESTINATION \"${destination}\" TYPE FILE FILES \"${help}\")
    endif()" COMPONENT documentation)
endif()
