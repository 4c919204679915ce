#include "keypad/keybutton.h"

#include "style/qtcompat.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPen>
#include <QPointer>

namespace
{

const int arrowPenWidth = 2;

} // namespace

/// A key without text and symbol whose code is Qt::Key_unknown.
CKeyButton::CKeyButton(QWidget* parent) : CPushButton(parent), m_key(Qt::Key_unknown)
{
}

CKeyButton::~CKeyButton()
{
}

/// The code of the key: one of Qt::Key or of KeyPadKey.
int CKeyButton::key() const
{
    return m_key;
}

/// Sets the code and repaints.
void CKeyButton::setKey(int code)
{
    m_key = code;
    update();
}

/// The text that the key normally shows, empty by default.
QString CKeyButton::getKeyText() const
{
    return m_keyText;
}

/// Sets the text that the key normally shows, and shows it.
void CKeyButton::setKeyText(const QString& text)
{
    m_keyText = text;
    setText(text);
}

/// The text that the key shows instead while symbols are on, empty by default.
QString CKeyButton::getSymbol() const
{
    return m_symbol;
}

/// Sets the symbol. What the key shows changes only with showSymbol().
void CKeyButton::setSymbol(const QString& symbol)
{
    m_symbol = symbol;
}

/// Shows the symbol, or else the key's text.
void CKeyButton::showSymbol(bool on)
{
    setText(on ? m_symbol : m_keyText);
}

/// Shows the pressed look.
void CKeyButton::mousePressEvent(QMouseEvent* event)
{
    const QPointer<CKeyButton> self(this); // a slot of pressed() may delete the key
    CPushButton::mousePressEvent(event);
    if (self && isEnabled())
        updateStatus(Pressed);
}

/// A released key looks selected, not released, until its keypad selects another one.
void CKeyButton::mouseReleaseEvent(QMouseEvent* event)
{
    const QPointer<CKeyButton> self(this); // a slot of clicked() may delete the key
    CPushButton::mouseReleaseEvent(event);
    if (self && isEnabled())
        updateStatus(Selected);
}

/// The second of two quick touches is a press like any other, also for an event filter of the key:
/// no letter of a word like "hello" gets lost.
void CKeyButton::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QPoint pos = qtcompat::eventPos(event);
    QMouseEvent press(QEvent::MouseButtonPress, pos, mapToGlobal(pos), event->button(),
                      event->buttons(), event->modifiers());
    QCoreApplication::sendEvent(this, &press);
}

/// Paints the button, and on the backspace key an arrow over it.
void CKeyButton::paintEvent(QPaintEvent* event)
{
    CPushButton::paintEvent(event);
    if (m_key == Qt::Key_Backspace)
        drawBackspaceArrow();
}

/// Draws an arrow to the left around the middle of the key, in the colour of its text.
void CKeyButton::drawBackspaceArrow()
{
    const int cx = (width() - 1) / 2;
    const int cy = (height() - 1) / 2;
    const QPoint head[] = {QPoint(cx - 4, cy - 4), QPoint(cx - 8, cy), QPoint(cx - 4, cy + 4)};
    QPen pen(getTextColor());
    pen.setWidth(arrowPenWidth);
    pen.setJoinStyle(Qt::MiterJoin);
    QPainter painter(this);
    painter.setPen(pen);
    painter.setBrush(QBrush(getTextColor(), Qt::SolidPattern));
    painter.drawPolygon(head, 3, Qt::OddEvenFill);
    painter.drawLine(cx - 4, cy, cx + 9, cy);
}
