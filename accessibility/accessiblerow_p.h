#ifndef CWIDGET_ACCESSIBILITY_ACCESSIBLEROW_P_H
#define CWIDGET_ACCESSIBILITY_ACCESSIBLEROW_P_H

#include <QAccessible>
#include <QString>

class QWidget;

// What there is to tell of the classes, as a table.
namespace accessible
{

/// What can be done with a widget without a finger.
enum Operation {
    NoOperation,
    PressOperation,  // a touch
    ToggleOperation, // a touch that switches something
    TurnOperation    // pages
};

/// The number that a widget shows, and between which others it is.
struct Range {
    int minimum;
    int maximum;
    int value;
};

/// What there is to tell of a class. A null function tells nothing.
struct Row {
    const char* className;
    QAccessible::Role role;
    QString (*name)(const QWidget* widget);
    QString (*value)(const QWidget* widget);
    void (*addState)(const QWidget* widget, QAccessible::State* state);
    Range (*range)(const QWidget* widget);
    Operation operation;
    const char* valueClass; // of the child that has the value: both are one then
};

const Row* rowOf(const QString& className);
const Row* rowOf(const QObject* object);

} // namespace accessible

#endif
