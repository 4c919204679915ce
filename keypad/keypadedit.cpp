#include "keypad/keypadedit.h"

#include "keypad/keypadtype_p.h"
#include "widgets/toptitlearea.h"

#include <QKeyEvent>
#include <QTextCursor>

namespace
{

const int titleHeight = 30;
const int pointSize = 12;

} // namespace

/// An empty field of bold text at the right edge, under a white title strip of 30 pixels.
CKeyPadEdit::CKeyPadEdit(QWidget* parent)
    : QTextEdit(parent),
      m_keyPadType(CKeyPadFactory::SKP_GENERAL),
      m_titleStrip(new CTopTitleArea(this))
{
    const QFont font(QLatin1String("Arial"), pointSize, QFont::Bold);
    m_titleStrip->setBackgroundColor(Qt::white);
    m_titleStrip->setFont(font);
    m_titleStrip->resize(m_titleStrip->width(), titleHeight);
    setFont(font);
    setViewportMargins(0, titleHeight, 0, 0);
    setStyleSheet(QLatin1String("border:0px;"));
    setAlignment(Qt::AlignRight);
}

CKeyPadEdit::~CKeyPadEdit()
{
}

/// Sets which keys of a keyboard are allowed: those of a keypad of \a type.
void CKeyPadEdit::setSKPType(CKeyPadFactory::KeyPadType type)
{
    m_keyPadType = type;
}

/// Fixes the size of the field and the width of its title strip, in pixels.
void CKeyPadEdit::setFixedSize(int width, int height)
{
    QWidget::setFixedSize(width, height);
    m_titleStrip->setFixedWidth(width);
}

/// Sets the title, and inserts \a text at the cursor. Deliberate: what the field holds stays.
void CKeyPadEdit::setText(const QString& title, const QString& text)
{
    m_title = title;
    m_titleStrip->setTitle(title);
    m_text = text;
    textCursor().insertText(text);
}

/// Deliberate: only the code of the key is looked at, so that in a keypad for numbers a key that
/// types nothing, for example an arrow, deletes a character too.
void CKeyPadEdit::keyPressEvent(QKeyEvent* event)
{
    QTextEdit::keyPressEvent(event);
    if (!keypadtype::row(m_keyPadType).keepsKey(event->text(), event->key()))
        textCursor().deletePreviousChar();
}
