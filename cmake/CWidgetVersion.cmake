# Reads the version from the header that applications see.
#
#   CWIDGET_VERSION   for example 1.0.0

file(STRINGS "${CMAKE_CURRENT_LIST_DIR}/../style/version.h" lines
  REGEX "^#define CWIDGET_VERSION_(MAJOR|MINOR|PATCH) [0-9]+$")
string(REGEX REPLACE "[^;0-9]" "" numbers "${lines}")
string(REPLACE ";" "." CWIDGET_VERSION "${numbers}")
if(NOT CWIDGET_VERSION MATCHES "^[0-9]+\\.[0-9]+\\.[0-9]+$")
  message(FATAL_ERROR "style/version.h does not say major, minor and patch number in this order")
endif()
