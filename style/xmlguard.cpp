#include "style/xmlguard_p.h"

#include "style/xmlcursor_p.h"
#include "style/xmlpiece_p.h"

using xmlguard::Cursor;
using xmlguard::isQuote;

namespace
{

// Parameter entities within one another; each level takes some stack here, too.
const int maximumParameterLevel = 50;

// In front of the name of an element whose attributes have defaults. No entity is called so.
const char defaultsMark[] = "<";

/// What is known of the document while it is read.
struct Document {
    Document() : parentheses(0), parameterText(0), understood(true)
    {
    }

    XmlLedger ledger;
    QHash<QString, QString> parameters;
    XmlPiece body;
    qint64 parentheses;
    qint64 parameterText; ///< characters of parameter entities put in so far
    bool understood;      ///< whether nothing of the document type remained unclear
};

/// Reads the body of a document, or the text of an entity as part of one.
class ContentReader
{
public:
    ContentReader(const QString& text, Document* document, XmlPiece* piece, bool isBody);

    void read();

private:
    bool readMarkup();
    bool readStartTag();
    bool readEndTag();
    bool readAttributeValue();
    bool readReference();
    void readTorn();
    void use(const QString& name, qint64 written);

    Cursor m_cursor;
    Document* const m_document;
    XmlPiece* const m_piece;
    const bool m_isBody;
    qint64 m_level;
};

/// Reads a document type declaration, or a parameter entity within one.
class DoctypeReader
{
public:
    DoctypeReader(Cursor* cursor, Document* document, int level);

    bool read();
    bool readDeclarations();

private:
    bool readDeclaration();
    bool readEntity();
    bool readAttributeList();
    bool readRest(XmlPiece* literals);
    bool readParameter();
    bool takeParameter(Cursor* cursor, int level, QString* text);
    bool takeCharacter(Cursor* cursor, QString* value);
    bool expand(const QString& literal, int level, QString* value);

    Cursor* const m_cursor;
    Document* const m_document;
    const int m_level; ///< of parameter entities within one another
};

/// Gives \a document a declaration of the entity \a name with \a text.
void declareEntity(Document* document, const QString& name, const QString& text, bool isClear)
{
    XmlPiece piece;
    piece.size = text.size();
    ContentReader(text, document, &piece, false).read();
    piece.torn = piece.torn || !isClear;
    document->ledger.add(name, piece);
}

// ---- document type

DoctypeReader::DoctypeReader(Cursor* cursor, Document* document, int level)
    : m_cursor(cursor), m_document(document), m_level(level)
{
}

/// Reads what follows the word DOCTYPE.
bool DoctypeReader::read()
{
    QString literal;
    while (!m_cursor->atEnd()) {
        if (isQuote(m_cursor->ahead())) {
            if (!m_cursor->takeLiteral(&literal))
                return false;
        } else if (m_cursor->skip("[")) {
            if (!readDeclarations() || !m_cursor->skip("]"))
                return false;
        } else if (m_cursor->skip(">")) {
            return true;
        } else if (m_cursor->next() == QLatin1Char('<')) {
            return false;
        }
    }
    return false;
}

/// Reads up to a closing bracket, or to the end.
bool DoctypeReader::readDeclarations()
{
    m_cursor->skipSpace();
    while (!m_cursor->atEnd() && m_cursor->ahead() != QLatin1Char(']')) {
        if (!(m_cursor->skip("%") ? readParameter() : readDeclaration()))
            return false;
        m_cursor->skipSpace();
    }
    return true;
}

bool DoctypeReader::readDeclaration()
{
    XmlPiece unused;
    if (m_cursor->skip("<!--"))
        return m_cursor->skipComment();
    if (m_cursor->skip("<?"))
        return m_cursor->skipPast("?>");
    if (m_cursor->skip("<!ENTITY"))
        return readEntity();
    if (m_cursor->skip("<!ATTLIST"))
        return readAttributeList();
    return m_cursor->skip("<!") && readRest(&unused);
}

/// Reads to the end of a declaration, and adds to \a literals what stands in quotes.
bool DoctypeReader::readRest(XmlPiece* literals)
{
    qint64 open = 0;
    QString literal;
    while (!m_cursor->atEnd()) {
        if (isQuote(m_cursor->ahead())) {
            if (!m_cursor->takeLiteral(&literal))
                return false;
            literals->size += literal.size();
            ContentReader(literal, m_document, literals, false).read();
            continue;
        }
        const QChar ch = m_cursor->next();
        if (ch == QLatin1Char('>'))
            return true;
        if (ch == QLatin1Char('<'))
            return false;
        if (ch == QLatin1Char('('))
            m_document->parentheses = qMax(m_document->parentheses, ++open);
        if (ch == QLatin1Char(')') && open > 0)
            --open;
    }
    return false;
}

/// Reads the defaults of an element's attributes. Each element of the name may take them all, and
/// the parser takes them once by itself.
bool DoctypeReader::readAttributeList()
{
    m_cursor->skipSpace();
    const QString name = QLatin1String(defaultsMark) + m_cursor->takeName();
    XmlPiece defaults;
    if (!readRest(&defaults))
        return false;
    m_document->ledger.add(name, defaults);
    m_document->body.use(name, 0, 0);
    return true;
}

/// Reads the declaration of an entity. Of a parameter entity only the first one counts.
bool DoctypeReader::readEntity()
{
    m_cursor->skipSpace();
    const bool isParameter = m_cursor->skip("%");
    m_cursor->skipSpace();
    const QString name = m_cursor->takeName();
    m_cursor->skipSpace();
    QString literal;
    QString text;
    if (isQuote(m_cursor->ahead())) {
        if (!m_cursor->takeLiteral(&literal) || !expand(literal, m_level, &text))
            return false;
        // A parser that cannot find the parameter leaves it out. With markup that is another text.
        const bool isClear = !literal.contains(QLatin1Char('%')) ||
                             !(text.contains(QLatin1Char('<')) || text.contains(QLatin1Char('&')));
        if (!isParameter)
            declareEntity(m_document, name, text, isClear);
    }
    if (isParameter && !m_document->parameters.contains(name))
        m_document->parameters.insert(name, text);
    XmlPiece unused;
    return readRest(&unused);
}

/// Reads what the parameter entity, whose name stands here, has for declarations.
bool DoctypeReader::readParameter()
{
    QString text;
    if (!takeParameter(m_cursor, m_level, &text))
        return false;
    Cursor cursor(text);
    return DoctypeReader(&cursor, m_document, m_level + 1).readDeclarations() && cursor.atEnd();
}

/// The text of the parameter entity whose name stands at \a cursor.
bool DoctypeReader::takeParameter(Cursor* cursor, int level, QString* text)
{
    QString name;
    if (level >= maximumParameterLevel || !cursor->takeReference(&name))
        return false;
    *text = m_document->parameters.value(name);
    m_document->parameterText += text->size();
    return m_document->parameterText <= xmlguard::maximumExpansion;
}

/// Adds the character with the number at \a cursor to \a value. Parsers that know no numbers of
/// more than 16 bits take the lower ones.
bool DoctypeReader::takeCharacter(Cursor* cursor, QString* value)
{
    bool isNumber = false;
    QString digits;
    const int base = cursor->skip("x") ? 16 : 10;
    if (!cursor->takeReference(&digits))
        return false;
    value->append(QChar(static_cast<ushort>(digits.toUInt(&isNumber, base) & 0xFFFF)));
    return isNumber;
}

/// Gives what the \a literal of an entity stands for, with characters and parameters put in.
bool DoctypeReader::expand(const QString& literal, int level, QString* value)
{
    Cursor cursor(literal);
    QString text;
    while (!cursor.atEnd()) {
        if (cursor.skip("&#")) {
            if (!takeCharacter(&cursor, value))
                return false;
        } else if (cursor.skip("%")) {
            if (!takeParameter(&cursor, level, &text) || !expand(text, level + 1, value))
                return false;
        } else {
            value->append(cursor.next());
        }
    }
    return true;
}

// ---- content

ContentReader::ContentReader(const QString& text, Document* document, XmlPiece* piece, bool isBody)
    : m_cursor(text), m_document(document), m_piece(piece), m_isBody(isBody), m_level(0)
{
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('<') &&
            (i + 1 == text.size() || text.at(i + 1) != QLatin1Char('/')))
            ++piece->starts;
    }
}

void ContentReader::read()
{
    while (!m_cursor.atEnd() && !m_piece->torn) {
        const int place = m_cursor.place();
        const QChar ch = m_cursor.next();
        const bool understood = ch == QLatin1Char('<')   ? readMarkup()
                                : ch == QLatin1Char('&') ? readReference()
                                                         : true;
        if (understood)
            continue;
        m_cursor.goTo(place);
        readTorn();
    }
    if (m_piece->torn || (m_level > 0 && !m_isBody))
        m_piece->whole = false;
}

bool ContentReader::readMarkup()
{
    if (m_cursor.skip("/"))
        return readEndTag();
    if (m_cursor.skip("!--"))
        return m_cursor.skipComment();
    if (m_cursor.skip("![CDATA["))
        return m_cursor.skipPast("]]>");
    if (m_cursor.skip("?"))
        return m_cursor.skipPast("?>");
    if (m_isBody && m_cursor.skip("!DOCTYPE")) {
        m_document->understood = DoctypeReader(&m_cursor, m_document, 0).read();
        return m_document->understood;
    }
    return m_cursor.ahead() != QLatin1Char('!') && readStartTag();
}

bool ContentReader::readStartTag()
{
    ++m_level;
    m_piece->depth = qMax(m_piece->depth, m_level);
    if (!m_isBody || !m_document->ledger.isEmpty())
        use(QLatin1String(defaultsMark) + m_cursor.takeName(), 0);
    while (!m_cursor.atEnd()) {
        const QChar ch = m_cursor.next();
        if (ch == QLatin1Char('>'))
            return true;
        if (ch == QLatin1Char('<') || (isQuote(ch) && !readAttributeValue()))
            return false;
        if (ch == QLatin1Char('/') && m_cursor.skip(">")) {
            --m_level;
            return true;
        }
    }
    return false;
}

bool ContentReader::readEndTag()
{
    if (m_level > 0)
        --m_level;
    else
        m_piece->whole = m_isBody && m_piece->whole;
    return m_cursor.skipPast(">");
}

/// Reads to the quote that was passed just now.
bool ContentReader::readAttributeValue()
{
    const QChar quote = m_cursor.before();
    while (!m_cursor.atEnd()) {
        const QChar ch = m_cursor.next();
        if (ch == quote)
            return true;
        if (ch == QLatin1Char('<') || (ch == QLatin1Char('&') && !readReference()))
            return false;
    }
    return false;
}

bool ContentReader::readReference()
{
    QString name;
    m_cursor.skip("#");
    if (!m_cursor.takeReference(&name))
        return false;
    use(name, name.size() + 2); // with the ampersand and the semicolon
    return true;
}

/// Notes the references in all that follows something which cannot be understood.
void ContentReader::readTorn()
{
    m_piece->torn = true;
    while (!m_cursor.atEnd()) {
        if (m_cursor.next() == QLatin1Char('&'))
            readReference();
    }
}

/// Notes a use of \a name, for which \a written characters stand. What is not declared by the time
/// the body begins is none, and the body's own characters are not counted.
void ContentReader::use(const QString& name, qint64 written)
{
    if (!m_isBody)
        m_piece->use(name, m_level, written);
    else if (m_document->ledger.has(name))
        m_piece->use(name, m_level, 0);
}

/// \a text up to where parsers take the end of the document for.
QString untilEnd(const QString& text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i).unicode() >= 0xFFFE)
            return text.left(i);
    }
    return text;
}

} // namespace

/// What a tree of the document \a text costs. Takes time in proportion to the text.
xmlguard::Cost xmlguard::cost(const QString& text)
{
    const QString readable = untilEnd(text);
    Document document;
    ContentReader(readable, &document, &document.body, true).read();
    document.ledger.add(QString(), document.body);
    document.ledger.settle();
    const qint64 depth = document.ledger.piece(QString()).depth;
    const Cost needed = {qMax(depth, document.parentheses),
                         document.understood ? document.ledger.largestSize() : XmlLedger::Endless};
    return needed;
}

/// Whether a tree of the document \a text can be built without exhausting stack or memory.
bool xmlguard::isHarmless(const QString& text)
{
    const Cost needed = cost(text);
    return needed.depth <= maximumDepth && needed.expansion <= maximumExpansion;
}
