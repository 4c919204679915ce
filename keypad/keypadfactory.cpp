#include "keypad/keypadfactory.h"

#include "keypad/softkeypad.h"
#include "style/qtcompat.h"

#include <QApplication>
#include <QPointer>

namespace
{

/// The active window. A keypad that is closed and not deleted yet does not count; the window that
/// it stood over does.
QWidget* activeWindow()
{
    QWidget* window = QApplication::activeWindow();
    while (qobject_cast<CSoftKeyPad*>(window) && !window->isVisible())
        window = window->parentWidget() ? window->parentWidget()->window() : nullptr;
    return window;
}

/// What a keypad is centred on: the active window, else that of \a parent, else the screen.
QRect groundGeometry(const QWidget* active, const QWidget* parent)
{
    if (active)
        return active->geometry();
    return parent ? parent->window()->geometry() : qtcompat::primaryScreenGeometry();
}

void moveOver(const QRect& ground, QWidget* dialog)
{
    const int centerX = (ground.left() + ground.right()) / 2;
    const int centerY = (ground.top() + ground.bottom()) / 2;
    dialog->move(centerX - dialog->width() / 2, centerY - dialog->height() / 2);
}

/// Runs a keypad that \a setRange was called with. Whatever happens to the dialog and to its parent
/// while it is open, only what still lives is touched afterwards.
template <typename SetRange>
QString run(const QString& title, const QString& text, CKeyPadFactory::KeyPadType type,
            QWidget* parent, SetRange setRange)
{
    QWidget* active = activeWindow();
    const QPointer<CSoftKeyPad> dialog(new CSoftKeyPad(type, parent ? parent : active));
    setRange(dialog.data());
    dialog->setText(title, text);
    moveOver(groundGeometry(active, parent), dialog);
    dialog->exec();
    if (!dialog)
        return text;
    QString input = dialog->getInput();
    dialog->hide(); // still open when the application quits meanwhile
    dialog->deleteLater();
    return input;
}

} // namespace

/// Asks for a text with a keypad of \a type that is headed \a title, starts with \a text, and when
/// its type is SKP_HEX, SKP_BINARY or SKP_DECIMAL accepts numbers from \a min to \a max only.
///
/// Returns the entry, in whatever way the keypad was closed: to tell a change from a rejected
/// keypad, compare it with \a text. Returns \a text itself when the keypad was deleted together
/// with its parent. The parent is by default the active window; the keypad is always centred on the
/// active window and, without one, on that of the parent or on the screen.
QString CKeyPadFactory::accessKeyPad(const QString& title, const QString& text, KeyPadType type,
                                     int min, int max, QWidget* parent)
{
    return run(title, text, type, parent,
               [min, max](CSoftKeyPad* dialog) { dialog->setRange(min, max); });
}

/// As above with the range as texts. Deliberate: they are stored, but the entry is checked against
/// the integer range, which is from 0 to 0 here.
QString CKeyPadFactory::accessKeyPad(const QString& title, const QString& text, KeyPadType type,
                                     const QString& min, const QString& max, QWidget* parent)
{
    return run(title, text, type, parent,
               [&min, &max](CSoftKeyPad* dialog) { dialog->setRange(min, max); });
}

/// As above without a range.
QString CKeyPadFactory::accessKeyPad(const QString& title, const QString& text, KeyPadType type,
                                     QWidget* parent)
{
    return run(title, text, type, parent, [](CSoftKeyPad*) {});
}
