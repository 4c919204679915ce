#include "widgets/shapedtext_p.h"

#include "style/qtcompat.h"
#include "widgets/painting_p.h"

#include <QFontInfo>
#include <QPaintDevice>
#include <QPainter>

namespace
{

const ushort firstLetter = 0x21;
const ushort lastAscii = 0x7e;
const ushort firstLatin1 = 0xa1;
const ushort firstRightToLeft = 0x590;

/// Whether \a ch is a letter or a sign of a script that is written from left to right.
bool isPlain(QChar ch)
{
    const ushort code = ch.unicode();
    return (code >= firstLetter && code <= lastAscii) ||
           (code >= firstLatin1 && code < firstRightToLeft);
}

/// Whether \a text is a line of plain letters with blanks between them. For all others, drawText()
/// knows best where things go.
bool isPlainLine(const QString& text)
{
    for (int i = 0; i < text.size(); ++i) {
        const bool isInside = i > 0 && i < text.size() - 1;
        if (!isPlain(text.at(i)) && !(isInside && text.at(i) == QLatin1Char(' ')))
            return false;
    }
    return true;
}

bool hasLines(const QFont& font)
{
    return font.underline() || font.overline() || font.strikeOut();
}

/// Whether what \a painter draws of \a text is, and goes, where this class knows. A shape has the
/// resolution of the screen, not of the device, so the letters must have their size in pixels.
bool isPlainOn(const QPainter* painter, const QString& text)
{
    const QFont& font = painter->font();
    return painting::isAligned(painter) && font.pixelSize() > 0 && !hasLines(font) &&
           isPlainLine(text);
}

} // namespace

ShapedText::ShapedText() : m_isShaped(false), m_dpi(0), m_advance(0)
{
}

/// Draws \a text in the font and with the pen of \a painter.
void ShapedText::draw(QPainter* painter, const QRect& area, const QString& text)
{
    if (isPlainOn(painter, text) && hasShape(painter, text) && fits(area))
        painter->drawStaticText(place(area), m_shape);
    else
        painter->drawText(area, Qt::AlignCenter, text); // it cuts off what stands out
}

/// Whether the shape is that of \a text. A text that is drawn for the first time gets none: many a
/// screen is closed before it is painted again, and a shape is worth three times its text.
bool ShapedText::hasShape(QPainter* painter, const QString& text)
{
    if (!wasDrawn(painter, text)) {
        note(painter, text);
        return false;
    }
    if (!m_isShaped)
        shape(painter);
    return true;
}

bool ShapedText::fits(const QRect& area) const
{
    return m_size.width() <= area.width() && m_size.height() <= area.height();
}

QPointF ShapedText::place(const QRectF& area) const
{
    return area.topLeft() +
           QPointF((area.width() - m_advance) / 2, (area.height() - m_size.height()) / 2);
}

/// Whether \a text is the one that was drawn last, and would look the same. The family is the one
/// that the font really has, which changes with the fonts that the application adds.
bool ShapedText::wasDrawn(const QPainter* painter, const QString& text) const
{
    return m_text == text && m_font == painter->font() &&
           m_dpi == painter->device()->logicalDpiY() &&
           m_family == QFontInfo(painter->font()).family();
}

void ShapedText::note(const QPainter* painter, const QString& text)
{
    m_text = text;
    m_font = painter->font();
    m_family = QFontInfo(m_font).family();
    m_dpi = painter->device()->logicalDpiY();
    m_isShaped = false;
}

/// Shapes the text that was drawn last.
void ShapedText::shape(QPainter* painter)
{
    m_shape = QStaticText(m_text);
    m_shape.setTextFormat(Qt::PlainText);
    m_size = painter->boundingRect(QRectF(), Qt::AlignCenter, m_text).size();
    m_advance = qtcompat::textWidth(QFontMetricsF(m_font, painter->device()), m_text);
    m_isShaped = true;
}
