#include "widgets/characterlayout_p.h"

#include "style/qtcompat.h"

#include <QPainter>

namespace
{

const int firstLineTop = 5;

bool isSeparator(QChar ch)
{
    return !ch.isLetterOrNumber();
}

} // namespace

/// Draws with the pen and the font of \a painter. A line may be as wide as \a area reaches from its
/// left to its right edge; the first one stands 5 pixels below its top.
CharacterLayout::CharacterLayout(QPainter* painter, const QRect& area, int lineHeight)
    : m_text(painter, lineHeight),
      m_metrics(painter->font()),
      m_area(area),
      m_lineHeight(lineHeight),
      m_x(area.left()),
      m_y(area.top() + firstLineTop),
      m_lineWidth(0)
{
}

/// Breaks before each character that does not fit.
void CharacterLayout::drawCharWrapped(const QString& text)
{
    for (int i = 0; i < text.size(); ++i) {
        while (!fits(widthOf(text.at(i)))) {
            if (!startLine())
                return;
        }
        draw(text.at(i));
    }
}

/// Breaks before a separator whose next word does not fit.
///
/// Deliberate: inside a word that is wider than a line, the layout starts a new line and goes on
/// from the separator before the word, so that the beginning of the word is drawn again there;
/// without such a separator it leaves out the character that did not fit.
void CharacterLayout::drawWordWrapped(const QString& text)
{
    int i = 0;
    while (i < text.size()) {
        const QChar ch = text.at(i);
        if (isSeparator(ch) && !fits(widthOfWordAfter(text, i)) && !startLine())
            return;
        if (fits(widthOf(ch))) {
            draw(ch);
            ++i;
            continue;
        }
        const int separator = lookBack(text, i);
        if (!startLine())
            return;
        i = separator >= 0 ? separator : i + 1;
    }
}

bool CharacterLayout::fits(int width) const
{
    return m_lineWidth + width <= m_area.right() - m_area.left();
}

/// Returns false when the new line would start below the area: nothing of it could be seen.
bool CharacterLayout::startLine()
{
    m_x = m_area.left();
    m_y += m_lineHeight;
    m_lineWidth = 0;
    return m_y <= m_area.bottom();
}

int CharacterLayout::widthOf(QChar ch)
{
    return m_text.widthOf(ch);
}

void CharacterLayout::draw(QChar ch)
{
    const int width = widthOf(ch);
    m_text.draw(ch, QPoint(m_x, m_y));
    m_x += width;
    m_lineWidth += width;
}

/// Words come again as well as letters; each is measured once.
int CharacterLayout::widthOfWordAfter(const QString& text, int separator)
{
    int end = separator + 1;
    while (end < text.size() && !isSeparator(text.at(end)))
        ++end;
    const QString word = text.mid(separator + 1, end - separator - 1);
    QHash<QString, int>::const_iterator found = m_wordWidths.constFind(word);
    if (found == m_wordWidths.constEnd())
        found = m_wordWidths.insert(word, qtcompat::textWidth(m_metrics, word));
    return found.value();
}

/// The nearest separator at or before \a from, or -1 when the line, counted down by the width of
/// the character at \a from, or the text begins before one is found.
int CharacterLayout::lookBack(const QString& text, int from)
{
    const int step = widthOf(text.at(from));
    int lineWidth = m_lineWidth;
    for (int i = from; i >= 0; --i) {
        if (isSeparator(text.at(i)))
            return i;
        lineWidth -= step;
        if (lineWidth < 1)
            return -1;
    }
    return -1;
}
