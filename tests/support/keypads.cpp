#include "support/keypads.h"

#include "style/widgetstyle.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QTimer>
#include <QVBoxLayout>

namespace testing
{

namespace
{

const int retryInterval = 2; // ms

ExpectedKey spec(const QString& text, int code, int background, int width, int height, int row)
{
    const ExpectedKey result = {text, code, QString(), background, QSize(width, height), row};
    return result;
}

/// The letters of a row of the general grid; codes are those of the upper-case letters.
ExpectedKeys letters(const char* texts, const char* symbols, int row)
{
    ExpectedKeys specs;
    for (; *texts; ++texts, ++symbols) {
        const int code = *texts - 'a' + 0x41;
        ExpectedKey key = spec(QString(QLatin1Char(*texts)), code, 1, 45, 45, row);
        key.symbol = QString(QLatin1Char(*symbols));
        specs.append(key);
    }
    return specs;
}

/// The keys of the lowest row of the grids for numbers; \a background is that of "Del".
ExpectedKeys functionKeys(const QString& fourth, int fourthCode, int background, int row)
{
    ExpectedKeys specs;
    specs << spec("Del", Qt::Key_Delete, background, 40, 30, row)
          << spec("Del All", 0x200000c, background + 3, 77, 30, row)
          << spec(fourth, fourthCode, background + 6, 40, 30, row)
          << spec("Apply", 0x200000a, background + 9, 90, 30, row)
          << spec("", Qt::Key_Backspace, background + 12, 40, 30, row);
    return specs;
}

} // namespace

ExpectedKeys generalKeys()
{
    ExpectedKeys specs;
    for (int digit = 1; digit <= 10; ++digit)
        specs << spec(QString::number(digit % 10), 0x30 + digit % 10, 1, 45, 45, 0);
    specs << letters("qwertyuiop", "!#$%^&*()_", 1);
    specs << letters("asdfghjkl", "+=:;\"',~-", 2);
    specs << spec("Shift", Qt::Key_Shift, 7, 55, 45, 3);
    specs << letters("zxcvbnm", "<>?\\/|`", 3);
    specs << spec("Caps", Qt::Key_CapsLock, 4, 55, 45, 3);
    specs << spec("Symbol", 0x2000009, 10, 66, 45, 4);
    specs << spec("Del", Qt::Key_Delete, 1, 45, 45, 4);
    specs << spec("@", 0x40, 1, 45, 45, 4);
    specs << spec(".", 0x200000b, 1, 45, 45, 4);
    specs << spec("Del All", 0x200000c, 13, 75, 45, 4);
    specs << spec("", Qt::Key_Backspace, 1, 45, 45, 4);
    specs << spec("SPACE", 0x20, 16, 365, 45, 5);
    specs << spec("Apply", 0x200000a, 19, 95, 45, 5);
    return specs;
}

ExpectedKeys hexKeys()
{
    ExpectedKeys specs;
    for (int i = 0; i < 6; ++i)
        specs << spec(QString(QLatin1Char('A' + i)), 0x41 + i, 22, 75, 40, i / 3);
    for (int i = 0; i < 9; ++i)
        specs << spec(QString::number(i + 1), 0x31 + i, 22, 75, 40, 2 + i / 3);
    specs << spec("0", 0x30, 22, 75, 40, 6);
    return specs << functionKeys("-", 0x2d, 25, 7);
}

ExpectedKeys numericKeys()
{
    ExpectedKeys specs;
    for (int i = 0; i < 9; ++i)
        specs << spec(QString::number(i + 1), 0x31 + i, 40, 75, 40, i / 3);
    specs << spec("+/-", 0x200000d, 40, 75, 40, 4);
    specs << spec("0", 0x30, 40, 75, 40, 4);
    specs << spec("", Qt::Key_unknown, -1, 75, 40, 4);
    return specs << functionKeys(".", 0x200000b, 43, 5);
}

QList<QRect> geometryOf(const ExpectedKeys& specs, const QSize& size, const QMargins& margins,
                        int spacing, const QList<int>& rowSpacings, const QList<bool>& centered)
{
    QWidget grid;
    grid.setFixedSize(size);
    QVBoxLayout* column = new QVBoxLayout(&grid);
    column->setContentsMargins(margins);
    if (spacing >= 0)
        column->setSpacing(spacing);
    QList<QWidget*> places;
    for (int i = 0; i < rowSpacings.size(); ++i) {
        QHBoxLayout* row = new QHBoxLayout;
        column->addLayout(row);
        if (rowSpacings.at(i) >= 0)
            row->setSpacing(rowSpacings.at(i));
        if (centered.at(i))
            row->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
        row->addStretch();
        for (; places.size() < specs.size() && specs.at(places.size()).row == i;) {
            QWidget* place = new QWidget;
            place->setFixedSize(specs.at(places.size()).size);
            row->addWidget(place);
            places.append(place);
        }
        row->addStretch();
    }
    column->activate();
    QList<QRect> rects;
    for (int i = 0; i < places.size(); ++i)
        rects.append(places.at(i)->geometry());
    return rects;
}

QList<QRect> geometryOf(const QList<CKeyButton*>& keys)
{
    QList<QRect> rects;
    for (int i = 0; i < keys.size(); ++i)
        rects.append(keys.at(i)->geometry());
    return rects;
}

bool sameImage(const QPixmap& a, const QPixmap& b)
{
    return a.toImage() == b.toImage();
}

QPixmap keyPicture(int status)
{
    return CWidgetStyle::getKeyStatus(static_cast<CWidgetStyle::KeyStatus>(status));
}

QString difference(CKeyButton* key, const ExpectedKey& spec)
{
    QString what;
    if (key->getText() != spec.text || key->getKeyText() != spec.text)
        what = QLatin1String("text");
    else if (key->key() != spec.code)
        what = QLatin1String("code");
    else if (key->getSymbol() != spec.symbol)
        what = QLatin1String("symbol");
    else if (key->size() != spec.size || key->minimumSize() != spec.size ||
             key->maximumSize() != spec.size)
        what = QLatin1String("size");
    return what.isEmpty() ? what : QString::fromLatin1("%1 of '%2'").arg(what, spec.text);
}

QString lookDifference(CKeyButton* key, int background, Qt::GlobalColor textColor)
{
    if (!sameImage(key->getBackground(), keyPicture(background)))
        return QString::fromLatin1("picture of '%1'").arg(key->getText());
    if (key->getTextColor() != QColor(textColor))
        return QString::fromLatin1("text colour of '%1'").arg(key->getText());
    return QString();
}

QString statesDifference(CKeyButton* key, int background)
{
    key->updateStatus(CPushButton::Pressed);
    QString what = lookDifference(key, background - 1, Qt::white);
    key->updateStatus(CPushButton::Selected);
    if (what.isEmpty())
        what = lookDifference(key, background + 1, Qt::black);
    key->updateStatus(CPushButton::Released);
    return what.isEmpty() ? lookDifference(key, background, Qt::white) : what;
}

QList<CKeyButton*> keysOf(const QWidget* widget)
{
    return widget->findChildren<CKeyButton*>();
}

CKeyButton* keyOf(const QWidget* widget, int code)
{
    const QList<CKeyButton*> keys = keysOf(widget);
    for (int i = 0; i < keys.size(); ++i) {
        if (keys.at(i)->key() == code)
            return keys.at(i);
    }
    qFatal("no key of code 0x%x", code);
    return nullptr;
}

QStringList textsOf(const QList<CKeyButton*>& keys)
{
    QStringList texts;
    for (int i = 0; i < keys.size(); ++i)
        texts.append(keys.at(i)->getText());
    return texts;
}

QList<int> selectedKeys(const QList<CKeyButton*>& keys)
{
    QList<int> codes;
    for (int i = 0; i < keys.size(); ++i) {
        if (keys.at(i)->isSelected())
            codes.append(keys.at(i)->key());
    }
    return codes;
}

void touch(QWidget* key)
{
    QTest::mouseClick(key, Qt::LeftButton);
}

void press(QWidget* key)
{
    QTest::mousePress(key, Qt::LeftButton);
}

void release(QWidget* key)
{
    QTest::mouseRelease(key, Qt::LeftButton);
}

void pressAgain(QWidget* key)
{
    const QPoint middle = key->rect().center();
    QMouseEvent event(QEvent::MouseButtonDblClick, middle, key->mapToGlobal(middle), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(key, &event);
}

void deleteDeferred()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// ---- KeyPadUser

KeyPadUser::KeyPadUser(const Action& action) : m_action(action), m_opened(0), m_leavesOpen(false)
{
    QTimer::singleShot(0, this, SLOT(act()));
}

int KeyPadUser::opened() const
{
    return m_opened;
}

void KeyPadUser::leaveOpen()
{
    m_leavesOpen = true;
}

void KeyPadUser::act()
{
    const QPointer<CSoftKeyPad> dialog(
        qobject_cast<CSoftKeyPad*>(QApplication::activeModalWidget()));
    if (!dialog || !dialog->isVisible()) {
        QTimer::singleShot(retryInterval, this, SLOT(act()));
        return;
    }
    ++m_opened;
    m_action(dialog);
    if (dialog && dialog->isVisible() && !m_leavesOpen)
        dialog->reject();
}

// ---- EventLoopCall

EventLoopCall::EventLoopCall(const Action& action) : m_action(action)
{
    QTimer::singleShot(0, this, SLOT(act()));
}

void EventLoopCall::run(const Action& action)
{
    EventLoopCall call(action);
    call.m_loop.exec();
}

void EventLoopCall::act()
{
    m_action();
    m_loop.quit();
}

} // namespace testing
