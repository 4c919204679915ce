#ifndef CWIDGET_STYLE_GLOBAL_H
#define CWIDGET_STYLE_GLOBAL_H

#include "version.h"

#include <QtGlobal>

// Marks what the shared library hands out; everything else is hidden. Who links the static library
// defines CWIDGET_STATIC, which its CMake package and pkg-config file do.
#if defined(CWIDGET_STATIC)
#define CWIDGET_EXPORT
#elif defined(CWIDGET_BUILD_LIBRARY)
#define CWIDGET_EXPORT Q_DECL_EXPORT
#else
#define CWIDGET_EXPORT Q_DECL_IMPORT
#endif

#endif
