#ifndef CWIDGET_TESTS_EXTREMES_TOUCHES_H
#define CWIDGET_TESTS_EXTREMES_TOUCHES_H

#include <QString>

class QWidget;

/// What users and applications do to widgets. A widget may die of each step; the steps after that
/// leave it alone.
namespace touches
{

/// Touches \a widget and everything in it: once, twice, and with a finger that slides out of it.
/// Keypads that open are typed into and applied.
void touchAll(QWidget* widget);

/// Types letters, digits and the keys that edit and choose into \a widget and everything in it.
void typeAll(QWidget* widget);

/// Changes what an application of the class changes: texts, entries, pages.
void changeAll(QWidget* widget);

} // namespace touches

#endif
