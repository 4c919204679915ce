#ifndef CWIDGET_TESTS_DOCS_PRELUDE_H
#define CWIDGET_TESTS_DOCS_PRELUDE_H

// What the snippets of the guide that are no whole programs stand in. This file and what comes
// after each of them is put around them by snippets.sh.

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
