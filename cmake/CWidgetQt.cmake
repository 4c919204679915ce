# Finds the wanted generation of Qt and names its targets alike for all of them:
#
#   CWIDGET_QT_PUBLIC      what an application of the library links as well
#   CWIDGET_QT_TEST        QtTest, for the tests
#   CWIDGET_QT_PKGCONFIG   the pkg-config modules behind CWIDGET_QT_PUBLIC
#   CWIDGET_CXX_STANDARD   the language standard that this Qt asks for
#   cwidget_qt             an interface target over CWIDGET_QT_PUBLIC, for programs in the tree

set(CWIDGET_CXX_STANDARD 11)

if(CWIDGET_QT_MAJOR EQUAL 4)
  find_package(Qt4 4.8 REQUIRED QtCore QtGui QtXml)
  set(CWIDGET_QT_PUBLIC Qt4::QtCore Qt4::QtGui Qt4::QtXml)
  set(CWIDGET_QT_PKGCONFIG "QtCore QtGui QtXml")
  if(BUILD_TESTING AND CWIDGET_BUILD_TESTING)
    find_package(Qt4 4.8 REQUIRED QtCore QtGui QtXml QtTest)
    set(CWIDGET_QT_TEST Qt4::QtTest)
  endif()
elseif(CWIDGET_QT_MAJOR EQUAL 5)
  find_package(Qt5 5.9 REQUIRED COMPONENTS Core Gui Widgets Xml)
  set(CWIDGET_QT_PUBLIC Qt5::Core Qt5::Gui Qt5::Widgets Qt5::Xml)
  set(CWIDGET_QT_PKGCONFIG "Qt5Core Qt5Gui Qt5Widgets Qt5Xml")
  if(BUILD_TESTING AND CWIDGET_BUILD_TESTING)
    find_package(Qt5 REQUIRED COMPONENTS Test)
    set(CWIDGET_QT_TEST Qt5::Test)
  endif()
elseif(CWIDGET_QT_MAJOR EQUAL 6)
  set(CWIDGET_CXX_STANDARD 17)
  find_package(Qt6 6.2 REQUIRED COMPONENTS Core Gui Widgets Xml)
  set(CWIDGET_QT_PUBLIC Qt6::Core Qt6::Gui Qt6::Widgets Qt6::Xml)
  set(CWIDGET_QT_PKGCONFIG "Qt6Core Qt6Gui Qt6Widgets Qt6Xml")
  if(BUILD_TESTING AND CWIDGET_BUILD_TESTING)
    find_package(Qt6 REQUIRED COMPONENTS Test)
    # Without the path of each test's folder, which no test asks for: all of them share a
    # precompiled header, and must be compiled alike for that.
    set_target_properties(Qt6::Test PROPERTIES INTERFACE_COMPILE_DEFINITIONS QT_TESTLIB_LIB)
    set(CWIDGET_QT_TEST Qt6::Test)
  endif()
else()
  message(FATAL_ERROR "CWIDGET_QT_MAJOR is ${CWIDGET_QT_MAJOR}, but must be 4, 5 or 6")
endif()

add_library(cwidget_qt INTERFACE)
target_link_libraries(cwidget_qt INTERFACE ${CWIDGET_QT_PUBLIC})
target_compile_features(cwidget_qt INTERFACE cxx_std_${CWIDGET_CXX_STANDARD})
