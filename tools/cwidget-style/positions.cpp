#include "positions.h"

#include <algorithm>

namespace
{

const QLatin1Char lineFeed('\n');

bool isQuote(QChar ch)
{
    return ch == QLatin1Char('"') || ch == QLatin1Char('\'');
}

bool endsName(QChar ch)
{
    return ch.isSpace() || ch == QLatin1Char('=') || ch == QLatin1Char('>') ||
           ch == QLatin1Char('/');
}

} // namespace

Positions::Positions(const QString& text) : m_text(text)
{
    m_lineStarts.append(0);
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) == lineFeed)
            m_lineStarts.append(i + 1);
    }
}

/// The number of the line with the character at \a offset, from 1.
int Positions::lineOf(int offset) const
{
    return static_cast<int>(
        std::upper_bound(m_lineStarts.constBegin(), m_lineStarts.constEnd(), offset) -
        m_lineStarts.constBegin());
}

/// The place of the character at \a offset in its line, from 1. A tab is one character.
int Positions::columnOf(int offset) const
{
    return offset - m_lineStarts.at(lineOf(offset) - 1) + 1;
}

/// Where the tag begins that ends before \a end. No value in a tag may hold its opening bracket.
int Positions::tagBefore(int end) const
{
    return qMax(0, static_cast<int>(m_text.lastIndexOf(QLatin1Char('<'), qMax(0, end - 1))));
}

/// Where the attribute \a name of the tag at \a tag begins, or the tag itself when the attribute is
/// not written there.
int Positions::attributeIn(int tag, const QString& name) const
{
    QChar quote;
    for (int i = tag + 1; i < m_text.size(); ++i) {
        const QChar ch = m_text.at(i);
        if (!quote.isNull()) {
            if (ch == quote)
                quote = QChar();
        } else if (isQuote(ch)) {
            quote = ch;
        } else if (ch == QLatin1Char('>')) {
            break;
        } else if (m_text.at(i - 1).isSpace() && m_text.mid(i, name.size()) == name &&
                   i + name.size() < m_text.size() && endsName(m_text.at(i + name.size()))) {
            return i;
        }
    }
    return tag;
}

/// The first character at or after \a begin that is no white space.
int Positions::firstCharacter(int begin) const
{
    int i = begin;
    while (i < m_text.size() && m_text.at(i).isSpace())
        ++i;
    return i;
}
