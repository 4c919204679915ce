#include "stylechecker.h"

#include "nearest.h"

#include "style/qtcompat.h"
#include "style/xmlguard_p.h"

#include <QDomDocument>
#include <QFontInfo>

#include <algorithm>

namespace
{

const Style::Field fields[] = {Style::FieldName, Style::FieldValue, Style::FieldAll};

QStringList words(const char* blankSeparated)
{
    return QString::fromLatin1(blankSeparated).split(QLatin1Char(' '));
}

QStringList fieldNames()
{
    QStringList all;
    for (const Style::Field field : fields)
        all.append(stylereaders::elementOf(field));
    return all;
}

Style::Field fieldOf(const QString& element)
{
    return fields[fieldNames().indexOf(element)];
}

QString quoted(const QString& text)
{
    const int longest = 60;
    QString oneLine = text;
    for (int i = 0; i < oneLine.size(); ++i) {
        if (!oneLine.at(i).isPrint())
            oneLine[i] = QLatin1Char(' ');
    }
    return QLatin1Char('"') +
           (oneLine.size() > longest ? oneLine.left(longest) + QLatin1String("...") : oneLine) +
           QLatin1Char('"');
}

QString readAllTheSame()
{
    return QLatin1String(" (the Qt of this machine reads the file all the same, others refuse it)");
}

/// Where the first entity is declared, or else the document type begins.
int entityIn(const QString& text)
{
    const int declaration = static_cast<int>(text.indexOf(QLatin1String("<!ENTITY")));
    return qMax(0, declaration >= 0 ? declaration
                                    : static_cast<int>(text.indexOf(QLatin1String("<!DOCTYPE"))));
}

/// What is wrong up to the end of the document type in \a text; empty when nothing is.
QString errorInDoctype(const QString& text)
{
    QXmlStreamReader reader(text);
    while (!reader.atEnd() && reader.tokenType() != QXmlStreamReader::DTD)
        reader.readNext();
    return reader.hasError() ? reader.errorString() : QString();
}

/// The end of the first tag that goes deeper than the library does; 0 when no element does.
int tooDeepIn(const QString& text)
{
    QXmlStreamReader reader(text);
    for (int depth = 0; !reader.atEnd();) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement && ++depth > xmlguard::maximumDepth)
            return static_cast<int>(reader.characterOffset());
        if (token == QXmlStreamReader::EndElement)
            --depth;
    }
    return 0;
}

bool earlier(const Finding& a, const Finding& b)
{
    return a.line != b.line ? a.line < b.line : a.column < b.column;
}

/// A family may be followed by others, separated by commas, that stand in for it.
bool machineHas(const QString& family)
{
    const QStringList present = qtcompat::fontFamilies();
    const QStringList wanted = family.split(QLatin1Char(','));
    for (int i = 0; i < wanted.size(); ++i) {
        for (int j = 0; j < present.size(); ++j) {
            const QString plain = present.at(j).section(QLatin1String(" ["), 0, 0); // no foundry
            if (plain.compare(wanted.at(i).trimmed(), Qt::CaseInsensitive) == 0)
                return true;
        }
    }
    return false;
}

} // namespace

StyleChecker::StyleChecker(Fonts fonts)
    : m_fonts(fonts), m_positions(QString()), m_tag(0), m_widget(nullptr)
{
}

Findings StyleChecker::check(const QByteArray& content)
{
    m_findings.clear();
    m_widgets.clear();
    m_families.clear();
    const QString text = qtcompat::xmlText(content);
    m_positions = Positions(text);
    if (isRefused(text))
        return m_findings;
    readDocument(text);
    checkTree(content);
    std::stable_sort(m_findings.begin(), m_findings.end(), earlier);
    return m_findings;
}

/// Notes why the library refuses \a text unread, if it does. Of a document type that is torn it
/// assumes the dearest; then that is what to say.
bool StyleChecker::isRefused(const QString& text)
{
    const xmlguard::Cost cost = xmlguard::cost(text);
    const bool isTooLarge = cost.expansion > xmlguard::maximumExpansion;
    const QString torn = isTooLarge ? errorInDoctype(text) : QString();
    if (isTooLarge && torn.isEmpty())
        add(entityIn(text), Finding::Error, "entity-too-large",
            QLatin1String("entity too large: more than 4 Mi characters would come of entities, so "
                          "the library refuses the file"));
    else if (isTooLarge)
        add(entityIn(text), Finding::Error, "not-well-formed",
            QString::fromLatin1("not well-formed: %1").arg(torn));
    else if (cost.depth > xmlguard::maximumDepth)
        add(m_positions.tagBefore(tooDeepIn(text)), Finding::Error, "too-deep",
            QLatin1String("too deep: beyond 5,000 levels the library refuses the file"));
    return !m_findings.isEmpty();
}

void StyleChecker::readDocument(const QString& text)
{
    m_reader.clear();
    m_reader.setNamespaceProcessing(false);
    m_reader.addData(text);
    if (m_reader.readNextStartElement())
        readRoot();
    while (!m_reader.atEnd())
        m_reader.readNext();
}

void StyleChecker::readRoot()
{
    const QString root = element();
    m_tag = m_positions.tagBefore(static_cast<int>(m_reader.characterOffset()));
    const int tag = m_tag;
    checkAttributes(QStringList());
    bool empty = true;
    while (nextChild(root)) {
        if (element() != QLatin1String("widget")) {
            skipUnknown(words("widget"));
            continue;
        }
        empty = false;
        readWidget();
    }
    if (empty && !m_reader.hasError())
        add(tag, Finding::Warning, "no-widget",
            QString::fromLatin1("%1 holds no \"widget\": nothing is styled").arg(quoted(root)));
}

void StyleChecker::readWidget()
{
    const int tag = m_tag;
    checkAttributes(words("type name"));
    checkType();
    checkName();
    QSet<QString> seen;
    while (nextChild(QLatin1String("widget"))) {
        if (!fieldNames().contains(element()))
            skipUnknown(fieldNames());
        else if (isFirst(&seen, element()))
            readField(fieldOf(element()));
    }
    if (seen.isEmpty() && !m_reader.hasError())
        add(tag, Finding::Warning, "no-field",
            QString::fromLatin1("%1 holds no field: it styles nothing").arg(quoted(m_widgetName)));
}

void StyleChecker::readField(Style::Field field)
{
    const QString name = element();
    const int tag = m_tag;
    checkAttributes(QStringList());
    checkFieldIsRead(field);
    QSet<QString> seen;
    while (nextChild(name)) {
        if (element() != QLatin1String("font") && element() != QLatin1String("color"))
            skipUnknown(words("font color"));
        else if (!isFirst(&seen, element()))
            continue;
        else if (element() == QLatin1String("font"))
            readFont(field);
        else
            readColor(field);
    }
    if (m_reader.hasError())
        return;
    if (!seen.contains(QLatin1String("font")))
        add(tag, Finding::Warning, "no-font",
            QString::fromLatin1("%1 has no \"font\": the default font replaces the widget's own")
                .arg(quoted(name)));
    if (!seen.contains(QLatin1String("color")) && takes(field, stylereaders::Background))
        add(tag, Finding::Warning, "no-color",
            QString::fromLatin1("%1 has no \"color\": %2 then draws its name without a background "
                                "and in black")
                .arg(quoted(name), m_widgetName));
}

void StyleChecker::readFont(Style::Field field)
{
    Q_UNUSED(field);
    checkAttributes(words("family size bold"));
    checkFamily();
    checkSize();
    checkBold();
    while (nextChild(QLatin1String("font")))
        skipUnknown(QStringList());
}

void StyleChecker::readColor(Style::Field field)
{
    checkAttributes(words("foreground-color background-color"));
    checkColor(field, "foreground-color", stylereaders::Foreground);
    checkColor(field, "background-color", stylereaders::Background);
    while (nextChild(QLatin1String("color")))
        skipUnknown(QStringList());
}

/// Goes on to the next child element of \a parent; false at its end. Skips text, which nothing
/// reads.
bool StyleChecker::nextChild(const QString& parent)
{
    while (!m_reader.atEnd()) {
        const int begin = static_cast<int>(m_reader.characterOffset());
        const QXmlStreamReader::TokenType token = m_reader.readNext();
        if (token == QXmlStreamReader::EndElement)
            return false;
        if (token == QXmlStreamReader::StartElement) {
            m_tag = m_positions.tagBefore(static_cast<int>(m_reader.characterOffset()));
            return true;
        }
        if ((token == QXmlStreamReader::Characters && !m_reader.isWhitespace()) ||
            token == QXmlStreamReader::EntityReference)
            add(m_positions.firstCharacter(begin), Finding::Error, "text",
                QString::fromLatin1("text in %1 is not read").arg(quoted(parent)));
    }
    return false;
}

/// Notes \a element in \a seen. Only the first of its kind counts; another one is skipped.
bool StyleChecker::isFirst(QSet<QString>* seen, const QString& element)
{
    if (!seen->contains(element)) {
        seen->insert(element);
        return true;
    }
    addToTag(Finding::Error, "second-element",
             QString::fromLatin1("another %1: only the first one counts").arg(quoted(element)));
    m_reader.skipCurrentElement();
    return false;
}

/// Skips the current element with all that is in it.
void StyleChecker::skipUnknown(const QStringList& known)
{
    const QString hint = known.isEmpty() ? QString::fromLatin1("nothing belongs here")
                                         : QString::fromLatin1("the nearest one that is read is %1")
                                               .arg(quoted(nearest(element(), known)));
    addToTag(Finding::Error, "unknown-element",
             QString::fromLatin1("unknown element %1: %2").arg(quoted(element()), hint));
    m_reader.skipCurrentElement();
}

void StyleChecker::checkAttributes(const QStringList& known)
{
    const QXmlStreamAttributes attributes = m_reader.attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        const QString name = attributes.at(i).qualifiedName().toString();
        if (known.contains(name))
            continue;
        const QString hint = known.isEmpty()
                                 ? QString::fromLatin1("%1 has none").arg(quoted(element()))
                                 : QString::fromLatin1("the nearest one that is read is %1")
                                       .arg(quoted(nearest(name, known)));
        addToAttribute(Finding::Error, "unknown-attribute", name.toUtf8().constData(),
                       QString::fromLatin1("unknown attribute %1: %2").arg(quoted(name), hint));
    }
}

void StyleChecker::checkType()
{
    bool isNumber = false;
    value("type").toInt(&isNumber);
    if (!has("type"))
        addToTag(Finding::Warning, "no-type",
                 QLatin1String("\"widget\" has no \"type\": it is stored with type 0"));
    else if (!isNumber)
        addToAttribute(Finding::Error, "bad-type", "type",
                       QString::fromLatin1("type %1 is no decimal number: 0 is taken")
                           .arg(quoted(value("type"))));
}

void StyleChecker::checkName()
{
    m_widgetName = value("name");
    m_widget = stylereaders::find(m_widgetName);
    const int line = m_positions.lineOf(m_tag);
    if (m_widgetName.isEmpty()) {
        addToTag(Finding::Error, "no-name",
                 QLatin1String("\"widget\" has no \"name\": no widget finds it"));
    } else if (!m_widget) {
        const QString nearestName = nearest(m_widgetName, stylereaders::names());
        addToAttribute(
            Finding::Warning, "unread-name", "name",
            QString::fromLatin1("no class of the library reads %1: the nearest name is %2")
                .arg(quoted(m_widgetName), quoted(nearestName)));
    }
    if (m_widgets.contains(m_widgetName))
        addToAttribute(Finding::Error, "second-name", "name",
                       QString::fromLatin1("%1 is in line %2 already: this one replaces it")
                           .arg(quoted(m_widgetName))
                           .arg(m_widgets.value(m_widgetName)));
    m_widgets.insert(m_widgetName, line);
}

void StyleChecker::checkFieldIsRead(Style::Field field)
{
    if (!m_widget || takes(field, stylereaders::All))
        return;
    const QString taken = stylereaders::fieldsOf(*m_widget).join(QLatin1String(" and "));
    addToTag(Finding::Warning, "unread-field",
             QString::fromLatin1("%1 does not read %2, only %3")
                 .arg(m_widgetName, stylereaders::elementOf(field), taken));
}

/// A family that is missing is named once, where it is first asked for.
void StyleChecker::checkFamily()
{
    const QString family = value("family");
    if (family.isEmpty()) {
        addToTag(Finding::Warning, "no-family",
                 QLatin1String("\"font\" has no \"family\": the font system chooses one"));
    } else if (m_fonts == CheckFonts && !m_families.contains(family) && !machineHas(family)) {
        m_families.insert(family);
        addToAttribute(Finding::Warning, "missing-family", "family",
                       QString::fromLatin1("this machine has no font family %1: %2 stands in")
                           .arg(quoted(family), quoted(QFontInfo(QFont(family)).family())));
    }
}

void StyleChecker::checkSize()
{
    bool isNumber = false;
    const int size = value("size").toInt(&isNumber);
    if (!has("size"))
        addToTag(Finding::Warning, "no-size",
                 QLatin1String("\"font\" has no \"size\": 9 pixels are taken"));
    else if (!isNumber)
        addToAttribute(Finding::Error, "bad-size", "size",
                       QString::fromLatin1("size %1 is no decimal number: 9 pixels are taken")
                           .arg(quoted(value("size"))));
    else if (size <= 0)
        addToAttribute(Finding::Error, "bad-size", "size",
                       QString::fromLatin1("size %1 is not above 0: the font keeps its own size")
                           .arg(quoted(value("size"))));
}

/// Leaving "bold" out is the plain way to write a normal weight, and no finding.
void StyleChecker::checkBold()
{
    const QString bold = value("bold");
    if (has("bold") && bold != QLatin1String("true") && bold != QLatin1String("false"))
        addToAttribute(
            Finding::Error, "bad-bold", "bold",
            QString::fromLatin1("bold %1 is neither \"true\" nor \"false\": normal is taken")
                .arg(quoted(bold)));
}

void StyleChecker::checkColor(Style::Field field, const char* name, stylereaders::Part part)
{
    const QString attribute = QLatin1String(name);
    if (!has(name)) {
        if (takes(field, part))
            addToTag(Finding::Warning, "no-color",
                     QString::fromLatin1("\"color\" has no %1: %2 takes it as no colour")
                         .arg(quoted(attribute), m_widgetName));
        return;
    }
    if (!qtcompat::namedColor(value(name)).isValid())
        addToAttribute(Finding::Error, "bad-color", name,
                       QString::fromLatin1("%1 %2 is no colour: none is taken")
                           .arg(attribute, quoted(value(name))));
    else if (m_widget && takes(field, stylereaders::All) && !takes(field, part))
        addToAttribute(Finding::Warning, "unread-color", name,
                       QString::fromLatin1("%1 does not read the %2 of %3")
                           .arg(m_widgetName, attribute, stylereaders::elementOf(field)));
}

/// The library reads the file into a tree, and the tree's parser of some releases of Qt lets pass
/// what the stream's refuses, or the other way round.
void StyleChecker::checkTree(const QByteArray& content)
{
    QDomDocument document;
    QString message;
    int line = 0;
    int column = 0;
    const bool isRead = document.setContent(content, &message, &line, &column);
    const QString text = QString::fromLatin1("not well-formed: %1%2");
    if (m_reader.hasError())
        add(static_cast<int>(m_reader.characterOffset()), Finding::Error, "not-well-formed",
            text.arg(m_reader.errorString(), isRead ? readAllTheSame() : QString()));
    else if (!isRead)
        m_findings.append(
            Finding(line, column, Finding::Error, "not-well-formed", text.arg(message, QString())));
}

QString StyleChecker::element() const
{
    return m_reader.qualifiedName().toString();
}

bool StyleChecker::has(const char* attribute) const
{
    return m_reader.attributes().hasAttribute(QLatin1String(attribute));
}

QString StyleChecker::value(const char* attribute) const
{
    return m_reader.attributes().value(QLatin1String(attribute)).toString();
}

/// Whether the class of the current widget takes one of \a parts of \a field.
bool StyleChecker::takes(Style::Field field, int parts) const
{
    return m_widget && (stylereaders::partsOf(*m_widget, field) & parts) != 0;
}

void StyleChecker::add(int offset, Finding::Severity severity, const char* id, const QString& text)
{
    m_findings.append(
        Finding(m_positions.lineOf(offset), m_positions.columnOf(offset), severity, id, text));
}

void StyleChecker::addToTag(Finding::Severity severity, const char* id, const QString& text)
{
    add(m_tag, severity, id, text);
}

void StyleChecker::addToAttribute(Finding::Severity severity, const char* id, const char* attribute,
                                  const QString& text)
{
    add(m_positions.attributeIn(m_tag, QString::fromUtf8(attribute)), severity, id, text);
}
