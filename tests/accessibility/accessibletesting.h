#ifndef CWIDGET_TESTS_ACCESSIBILITY_ACCESSIBLETESTING_H
#define CWIDGET_TESTS_ACCESSIBILITY_ACCESSIBLETESTING_H

#include <QAccessible>
#include <QStringList>
#include <QtTest>

/// What the tests of accessibility share: widgets that somebody has asked about, and a record of
/// what Qt is told afterwards.
namespace accessibletesting
{

const int settlingTime = 50; // ms, for the X server to have everything painted

/// The names of seven modes, for lists.
QStringList modes();

QAccessibleInterface* interfaceOf(QWidget* widget);

/// Waits for the accessibility bus and records from then on; false where there is no bus.
bool listen();

/// Puts \a widget, now called "it", on the screen with its window, and asks about it.
void showAndAsk(QWidget* widget);

/// The same, for the widget's creation.
template <typename Widget>
Widget* shown(Widget* widget)
{
    showAndAsk(widget);
    return widget;
}

void forget();
QStringList waitForRecord();

/// What is told when \a action is done and the screen painted, as lines "type object detail".
template <typename Action>
QStringList toldBy(Action action)
{
    QTest::qWait(settlingTime);
    forget();
    action();
    return waitForRecord();
}

} // namespace accessibletesting

#endif
