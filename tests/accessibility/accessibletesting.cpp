#include "accessibletesting.h"

#include "support/testing.h"

namespace
{

const int timeout = 5000;

// What Qt was told.
QStringList told;

QString stateText(const QAccessible::State& state)
{
    QStringList names;
    if (state.pressed)
        names << QLatin1String("pressed");
    if (state.checked)
        names << QLatin1String("checked");
    if (state.selected)
        names << QLatin1String("selected");
    if (state.busy)
        names << QLatin1String("busy");
    if (state.readOnly)
        names << QLatin1String("readOnly");
    return names.join(QLatin1String("+"));
}

void hear(QAccessibleEvent* event)
{
    const QString name = event->object()->objectName();
    if (name.isEmpty())
        return;
    if (event->type() == QAccessible::NameChanged)
        told << QLatin1String("name ") + name;
    else if (event->type() == QAccessible::ValueChanged)
        told << QLatin1String("value ") + name + QLatin1Char(' ') +
                    static_cast<QAccessibleValueChangeEvent*>(event)->value().toString();
    else if (event->type() == QAccessible::StateChanged)
        told << QLatin1String("state ") + name + QLatin1Char(' ') +
                    stateText(static_cast<QAccessibleStateChangeEvent*>(event)->changedStates());
}

} // namespace

namespace accessibletesting
{

QStringList modes()
{
    return QString::fromLatin1("Off,Auto,Manual,Holiday,Night,Boost,Test").split(QLatin1Char(','));
}

QAccessibleInterface* interfaceOf(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

bool listen()
{
    for (int i = 0; i < 100 && !QAccessible::isActive(); ++i)
        QTest::qWait(50);
    QAccessible::installUpdateHandler(hear);
    return QAccessible::isActive();
}

void showAndAsk(QWidget* widget)
{
    widget->setObjectName(QLatin1String("it"));
    widget->show();
    QWidget* const window = widget->window();
    window->show();
    window->activateWindow();
    if (!testcompat::waitForWindow(window))
        qFatal("no window");
    interfaceOf(widget);
}

void forget()
{
    told.clear();
}

/// What was told until the screen is painted; waits for the first line.
QStringList waitForRecord()
{
    for (int waited = 0; waited < timeout && told.isEmpty(); waited += settlingTime)
        QTest::qWait(settlingTime);
    QTest::qWait(settlingTime);
    return told;
}

} // namespace accessibletesting
