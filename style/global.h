#ifndef CWIDGET_STYLE_GLOBAL_H
#define CWIDGET_STYLE_GLOBAL_H

#include <QtGlobal>

// Marks what the shared library hands out; everything else is hidden.
#if defined(CWIDGET_BUILD_LIBRARY)
#define CWIDGET_EXPORT Q_DECL_EXPORT
#else
#define CWIDGET_EXPORT Q_DECL_IMPORT
#endif

#endif
