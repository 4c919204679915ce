#ifndef CWIDGET_TESTS_PACKAGE_SUBPROJECT_STYLE_STYLE_H
#define CWIDGET_TESTS_PACKAGE_SUBPROJECT_STYLE_STYLE_H

// The application has its own header of this name.
#define APPLICATION_STYLE

#endif
