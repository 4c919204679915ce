#ifndef CWIDGET_TESTS_DOCS_PRELUDE_H
#define CWIDGET_TESTS_DOCS_PRELUDE_H

// What surrounds those snippets of the guide that are not whole programs: snippets.sh puts this
// file before them and writes what comes after each of them.

#include "allclasses.h"

#if __has_include(<QtWidgets>)
#include <QtWidgets>
#else
#include <QtGui> // Qt 4
#endif

class Page : public CWidget
{
public:
    Page() : panel(this)
    {
    }

protected:
    QString styleFile;
    CWidget* panel;
};

#endif
