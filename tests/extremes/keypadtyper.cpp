#include "extremes/keypadtyper.h"

#include "keypad/softkeypad.h"

#include <QApplication>
#include <QPointer>

KeypadTyper::KeypadTyper()
{
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(type()));
    m_timer.start(0);
}

void KeypadTyper::type()
{
    const QPointer<CSoftKeyPad> keypad(
        qobject_cast<CSoftKeyPad*>(QApplication::activeModalWidget()));
    if (keypad)
        keypad->changedkey(QLatin1String("1"), Qt::Key_1);
    if (keypad)
        keypad->changedkey(QString(), Key_Apply);
}
