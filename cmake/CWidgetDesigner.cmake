# The option to build the plugin for Qt Designer: on where everything for it is there. A device's
# build never has it.

set(found OFF)
if(CWIDGET_QT_MAJOR GREATER 4 AND NOT CMAKE_CROSSCOMPILING AND
    (CWIDGET_IS_TOP_LEVEL OR CWIDGET_BUILD_DESIGNER))
  find_package(Qt${CWIDGET_QT_MAJOR}UiPlugin QUIET)
  find_package(Qt${CWIDGET_QT_MAJOR}Designer QUIET)
  if(TARGET Qt${CWIDGET_QT_MAJOR}::UiPlugin AND TARGET Qt${CWIDGET_QT_MAJOR}::Designer)
    set(found ON)
  endif()
endif()
option(CWIDGET_BUILD_DESIGNER "Build the plugin for Qt Designer" ${found})
if(CWIDGET_BUILD_DESIGNER AND NOT found)
  message(FATAL_ERROR "CWIDGET_BUILD_DESIGNER needs Qt's UI plugin and Designer modules, and no "
    "cross compiling: qttools5-dev or qt6-tools-dev has them")
endif()
