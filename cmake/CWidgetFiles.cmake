# The library's names, its files and the headers that applications see.
#
#   CWIDGET_NAME       of the library, of its folders and of its pkg-config file
#   CWIDGET_PACKAGE    of its CMake package
#   CWIDGET_SUFFIX     ends the names of programs
#
# What is built with Qt 6 has names of its own, to be installed beside what is built with Qt 4 or 5.

set(CWIDGET_PACKAGE QuorlinCWidget)
set(CWIDGET_SUFFIX "")
if(CWIDGET_QT_MAJOR EQUAL 6)
  string(APPEND CWIDGET_PACKAGE Qt6)
  set(CWIDGET_SUFFIX -qt6)
endif()
set(CWIDGET_NAME quorlin-cwidget${CWIDGET_SUFFIX})

set(CWIDGET_INSTALL_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}/${CWIDGET_NAME}")
set(CWIDGET_INSTALL_STYLEDIR "${CMAKE_INSTALL_DATADIR}/${CWIDGET_NAME}")
set(CWIDGET_FORWARDING_DIR "${PROJECT_BINARY_DIR}/forwarding")

# cwidget_install(FILE FOLDER COMPONENT)
function(cwidget_install file folder component)
  if(CWIDGET_INSTALL)
    install(FILES "${file}" DESTINATION "${folder}" COMPONENT "${component}")
  endif()
endfunction()

# cwidget_public_header(FILE CLASS...)
#
# Installs FILE.h of the calling folder, and for each CLASS makes and installs a header of that very
# name which includes it, so that an application can write #include <CPushButton>.
#
# Whatever an application has on its include path, it gets our header: the installed one stands
# beside the folder that it names, and the one for this tree names the whole path.
function(cwidget_public_header file)
  get_filename_component(folder "${CMAKE_CURRENT_SOURCE_DIR}" NAME)
  cwidget_install("${CMAKE_CURRENT_SOURCE_DIR}/${file}.h"
    "${CWIDGET_INSTALL_INCLUDEDIR}/${folder}" development)
  foreach(class IN LISTS ARGN)
    file(GENERATE OUTPUT "${CWIDGET_FORWARDING_DIR}/${class}"
      CONTENT "#include \"${CMAKE_CURRENT_SOURCE_DIR}/${file}.h\"\n")
    set(installed "${PROJECT_BINARY_DIR}/installed-forwarding/${class}")
    file(GENERATE OUTPUT "${installed}" CONTENT "#include \"${folder}/${file}.h\"\n")
    cwidget_install("${installed}" "${CWIDGET_INSTALL_INCLUDEDIR}" development)
    set_property(GLOBAL APPEND PROPERTY CWIDGET_CLASSES "${class}")
  endforeach()
endfunction()

# cwidget_class(FILE CLASS...): the pair FILE.h and FILE.cpp with its public classes.
function(cwidget_class file)
  cwidget_sources("${file}.h" "${file}.cpp")
  cwidget_public_header("${file}" ${ARGN})
endfunction()

# cwidget_sources(FILE...): files of the library that applications do not see.
function(cwidget_sources)
  foreach(file IN LISTS ARGN)
    target_sources(cwidget PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}/${file}")
  endforeach()
endfunction()
