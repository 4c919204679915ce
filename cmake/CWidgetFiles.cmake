# The library's files and the headers that applications see.

set(CWIDGET_INSTALL_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}/quorlin-cwidget")
set(CWIDGET_INSTALL_STYLEDIR "${CMAKE_INSTALL_DATADIR}/quorlin-cwidget")
set(CWIDGET_FORWARDING_DIR "${CMAKE_BINARY_DIR}/forwarding")

# cwidget_public_header(FILE CLASS...)
#
# Installs FILE.h of the calling folder, and for each CLASS makes and installs a header of that very
# name which includes it, so that an application can write #include <CPushButton>.
function(cwidget_public_header file)
  get_filename_component(folder "${CMAKE_CURRENT_SOURCE_DIR}" NAME)
  install(FILES "${CMAKE_CURRENT_SOURCE_DIR}/${file}.h"
    DESTINATION "${CWIDGET_INSTALL_INCLUDEDIR}/${folder}" COMPONENT development)
  foreach(class IN LISTS ARGN)
    set(forward "${CWIDGET_FORWARDING_DIR}/${class}")
    file(GENERATE OUTPUT "${forward}" CONTENT "#include \"${folder}/${file}.h\"\n")
    install(FILES "${forward}" DESTINATION "${CWIDGET_INSTALL_INCLUDEDIR}" COMPONENT development)
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
