// What assistive technology and test robots learn about the widgets. The widgets know nothing about
// it: Qt asks the factory below for a class by its name, and changes are noticed when a widget
// repaints itself.

#include "accessibility/accessiblerow_p.h"

#include "pages/pagebar.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QVariant>

#if !defined(QT_NO_ACCESSIBILITY)

using accessible::Range;
using accessible::Row;

namespace
{

/// The widget that a finger would touch: the one of the value where name and value are one.
QWidget* touched(QWidget* widget, const Row& row)
{
    if (!row.valueClass)
        return widget;
    const QList<QWidget*> children = widget->findChildren<QWidget*>();
    for (int i = 0; i < children.size(); ++i) {
        if (children.at(i)->inherits(row.valueClass) && children.at(i)->parent() == widget)
            return children.at(i);
    }
    return widget;
}

bool isBehindDialog(const QWidget* widget)
{
    const QWidget* const dialog = QApplication::activeModalWidget();
    return dialog && dialog != widget->window() && !dialog->isAncestorOf(widget);
}

void postMouse(QWidget* widget, QEvent::Type type, Qt::MouseButtons buttons)
{
    const QPoint middle = widget->rect().center();
    QCoreApplication::postEvent(widget, new QMouseEvent(type, middle, widget->mapToGlobal(middle),
                                                        Qt::LeftButton, buttons, Qt::NoModifier));
}

/// What a finger does. It comes as soon as the caller is back in its event loop: the touch may open
/// a keypad, which must not hold up a caller that only asked for a touch.
void touch(QWidget* widget)
{
    if (!widget->isEnabled() || !widget->isVisible() || isBehindDialog(widget))
        return;
    postMouse(widget, QEvent::MouseButtonPress, Qt::LeftButton);
    postMouse(widget, QEvent::MouseButtonRelease, Qt::NoButton);
}

/// Turns as often as the arrows would have to be touched.
void turnTo(CPageBar* bar, int index)
{
    const QPointer<CPageBar> self(bar); // a slot may delete the bar
    for (int steps = qAbs(index - bar->currentIndex()); steps > 0 && self; --steps) {
        if (index > bar->currentIndex())
            bar->rightClicked();
        else
            bar->leftClicked();
    }
}

// ---- what is announced

class Accessible : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    Accessible(QWidget* widget, const Row& row) : QAccessibleWidget(widget, row.role), m_row(row)
    {
    }

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

private:
    bool isOne() const;

    const Row& m_row;
};

/// Name and value are one: the parts are not told apart.
bool Accessible::isOne() const
{
    return m_row.valueClass != nullptr;
}

/// What the application says with setAccessibleName() goes before what the widget shows.
QString Accessible::text(QAccessible::Text kind) const
{
    QString said = QAccessibleWidget::text(kind);
    if (!said.isEmpty())
        return said;
    if (kind == QAccessible::Name && m_row.name)
        return m_row.name(widget());
    if (kind == QAccessible::Value && m_row.value)
        return m_row.value(widget());
    if (kind == QAccessible::Description && widget()->inherits("CLabel"))
        return widget()->property("cornerText").toString();
    return QString();
}

QAccessible::State Accessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    if (m_row.addState)
        m_row.addState(widget(), &state);
    return state;
}

void* Accessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface && m_row.range)
        return static_cast<QAccessibleValueInterface*>(this);
    const bool ofText =
        type == QAccessible::TextInterface || type == QAccessible::EditableTextInterface;
    if (ofText && m_row.role == QAccessible::EditableText)
        return QAccessible::queryAccessibleInterface(touched(widget(), m_row))
            ->interface_cast(type);
    return QAccessibleWidget::interface_cast(type);
}

int Accessible::childCount() const
{
    return isOne() ? 0 : QAccessibleWidget::childCount();
}

QAccessibleInterface* Accessible::child(int index) const
{
    return isOne() ? nullptr : QAccessibleWidget::child(index);
}

QAccessibleInterface* Accessible::childAt(int x, int y) const
{
    return isOne() ? nullptr : QAccessibleWidget::childAt(x, y);
}

QStringList Accessible::actionNames() const
{
    QStringList names;
    if (m_row.operation == accessible::PressOperation)
        names << pressAction();
    else if (m_row.operation == accessible::ToggleOperation)
        names << toggleAction();
    else if (m_row.operation == accessible::TurnOperation)
        names << previousPageAction() << nextPageAction();
    return names + QAccessibleWidget::actionNames();
}

void Accessible::doAction(const QString& name)
{
    if (name == pressAction() || name == toggleAction())
        touch(touched(widget(), m_row));
    else if (name == previousPageAction())
        QMetaObject::invokeMethod(widget(), "leftClicked", Qt::QueuedConnection);
    else if (name == nextPageAction())
        QMetaObject::invokeMethod(widget(), "rightClicked", Qt::QueuedConnection);
    else
        QAccessibleWidget::doAction(name);
}

QVariant Accessible::currentValue() const
{
    return m_row.range(widget()).value;
}

/// Only pages can be turned from outside; how far a task has come, its widget tells.
void Accessible::setCurrentValue(const QVariant& value)
{
    const Range range = m_row.range(widget());
    const int wanted = qBound(range.minimum, value.toInt(), range.maximum);
    if (m_row.operation == accessible::TurnOperation && range.maximum > 0)
        turnTo(static_cast<CPageBar*>(widget()), wanted - 1);
}

QVariant Accessible::maximumValue() const
{
    return m_row.range(widget()).maximum;
}

QVariant Accessible::minimumValue() const
{
    return m_row.range(widget()).minimum;
}

QVariant Accessible::minimumStepSize() const
{
    return 1;
}

// ---- what has changed

/// Watches a widget that somebody has asked about: tells what has changed whenever it, or a part of
/// it, is painted anew, as it is after each change that can be seen.
class Watcher : public QObject
{
public:
    Watcher(QWidget* widget, const Row& row);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Look {
        QString name;
        QString value;
        QAccessible::State state;
        QVariant number;
    };

    Look look() const;
    void tell();
    void tellState(const QAccessible::State& before, const QAccessible::State& now);

    QWidget* m_widget;
    const Row& m_row;
    Look m_told;
};

Watcher::Watcher(QWidget* widget, const Row& row) : QObject(widget), m_widget(widget), m_row(row)
{
    m_told = look();
    widget->installEventFilter(this);
    const QList<QWidget*> parts = widget->findChildren<QWidget*>();
    const bool watchesParts = row.valueClass || row.role == QAccessible::Dialog;
    for (int i = 0; i < parts.size() && watchesParts; ++i)
        parts.at(i)->installEventFilter(this);
}

bool Watcher::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint && QAccessible::isActive())
        tell();
    return QObject::eventFilter(watched, event);
}

Watcher::Look Watcher::look() const
{
    Look now;
    if (m_row.name)
        now.name = m_row.name(m_widget);
    if (m_row.value)
        now.value = m_row.value(m_widget);
    if (m_row.addState)
        m_row.addState(m_widget, &now.state);
    if (m_row.range)
        now.number = m_row.range(m_widget).value;
    return now;
}

void Watcher::tell()
{
    const Look before = m_told;
    m_told = look();
    if (m_told.name != before.name) {
        QAccessibleEvent event(m_widget, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    }
    if (m_told.value != before.value || m_told.number != before.number) {
        QAccessibleValueChangeEvent event(m_widget,
                                          m_row.range ? m_told.number : QVariant(m_told.value));
        QAccessible::updateAccessibility(&event);
    }
    tellState(before.state, m_told.state);
}

void Watcher::tellState(const QAccessible::State& before, const QAccessible::State& now)
{
    QAccessible::State changed;
    changed.pressed = before.pressed != now.pressed;
    changed.checked = before.checked != now.checked;
    changed.selected = before.selected != now.selected;
    changed.busy = before.busy != now.busy;
    changed.readOnly = before.readOnly != now.readOnly;
    if (!changed.pressed && !changed.checked && !changed.selected && !changed.busy &&
        !changed.readOnly)
        return;
    QAccessibleStateChangeEvent event(m_widget, changed);
    QAccessible::updateAccessibility(&event);
}

// ---- the factory

const char watchedProperty[] = "cwidgetWatched";

void watch(QWidget* widget, const Row& row)
{
    if (widget->property(watchedProperty).toBool())
        return;
    widget->setProperty(watchedProperty, true);
    new Watcher(widget, row);
}

QAccessibleInterface* accessibleOf(const QString& className, QObject* object)
{
    QWidget* const widget = qobject_cast<QWidget*>(object);
    const Row* const row = widget ? accessible::rowOf(className) : nullptr;
    if (!row)
        return nullptr;
    if (QAccessible::isActive())
        watch(widget, *row);
    return new Accessible(widget, *row);
}

/// Qt makes accessible objects of all widgets, whether or not somebody asks. They are watched only
/// when somebody does, which may come later.
class Observer : public QAccessible::ActivationObserver
{
public:
    void accessibilityActiveChanged(bool active) override;
};

void Observer::accessibilityActiveChanged(bool active)
{
    const QWidgetList widgets = active ? QApplication::allWidgets() : QWidgetList();
    for (int i = 0; i < widgets.size(); ++i) {
        if (const Row* const row = accessible::rowOf(widgets.at(i)))
            watch(widgets.at(i), *row);
    }
}

void install()
{
    static Observer observer;
    QAccessible::installFactory(accessibleOf);
    QAccessible::installActivationObserver(&observer);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(install)

#endif
