#ifndef CWIDGET_STYLE_XMLCURSOR_P_H
#define CWIDGET_STYLE_XMLCURSOR_P_H

#include <QString>

#include <cstring>

namespace xmlguard
{

inline bool isSpace(QChar ch)
{
    return ch == QLatin1Char(' ') || ch == QLatin1Char('\t') || ch == QLatin1Char('\n') ||
           ch == QLatin1Char('\r');
}

inline bool isQuote(QChar ch)
{
    return ch == QLatin1Char('"') || ch == QLatin1Char('\'');
}

/// Whether a name ends before \a ch.
inline bool isDelimiter(QChar ch)
{
    return isSpace(ch) || (ch.unicode() < 128 && strchr("\"'<>&;%/=", ch.toLatin1()));
}

/// A place in a text. Steps that fail leave it where it is.
class Cursor
{
public:
    explicit Cursor(const QString& text) : m_text(text), m_at(0)
    {
    }

    bool atEnd() const
    {
        return m_at >= m_text.size();
    }

    QChar ahead() const
    {
        return atEnd() ? QChar() : m_text.at(m_at);
    }

    QChar before() const
    {
        return m_text.at(m_at - 1);
    }

    QChar next()
    {
        return m_text.at(m_at++);
    }

    int place() const
    {
        return m_at;
    }

    void goTo(int place)
    {
        m_at = place;
    }

    void skipSpace()
    {
        while (isSpace(ahead()))
            ++m_at;
    }

    /// Passes \a word where it stands.
    bool skip(const char* word)
    {
        int at = m_at;
        for (; *word; ++word, ++at) {
            if (at >= m_text.size() || m_text.at(at) != QLatin1Char(*word))
                return false;
        }
        m_at = at;
        return true;
    }

    /// Goes behind the next \a word.
    bool skipPast(const char* word)
    {
        const int found = static_cast<int>(m_text.indexOf(QLatin1String(word), m_at));
        if (found >= 0)
            m_at = found + static_cast<int>(strlen(word));
        return found >= 0;
    }

    /// Passes the rest of a comment that has begun.
    bool skipComment()
    {
        return skipPast("--") && skip(">");
    }

    /// Passes a text in quotes, and gives it without them.
    bool takeLiteral(QString* literal)
    {
        const int end = static_cast<int>(m_text.indexOf(ahead(), m_at + 1));
        if (end < 0)
            return false;
        *literal = m_text.mid(m_at + 1, end - m_at - 1);
        m_at = end + 1;
        return true;
    }

    /// Passes a name, and gives it.
    QString takeName()
    {
        const int start = m_at;
        while (!atEnd() && !isDelimiter(m_text.at(m_at)))
            ++m_at;
        return m_text.mid(start, m_at - start);
    }

    /// Passes a name and a semicolon, and gives the name.
    bool takeReference(QString* name)
    {
        const int start = m_at;
        *name = takeName();
        if (skip(";"))
            return true;
        m_at = start;
        return false;
    }

private:
    const QString& m_text;
    int m_at;
};

} // namespace xmlguard

#endif
