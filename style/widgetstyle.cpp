#include "style/widgetstyle.h"

#include "style/filerewrite_p.h"
#include "style/qtcompat.h"
#include "style/table_p.h"
#include "style/xmlguard_p.h"

#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QTextStream>

// Every application names its style file, so that this is in every program: what is static brings
// the pictures along only when somebody asks for them.
static int initPictures()
{
    Q_INIT_RESOURCE(cwidget);
    return 0;
}
static const int picturesAreThere = initPictures();

namespace
{

const char openFailed[] = "[ widget-style.xml ]: can not open.";
const char parseFailed[] = "[ widget-style.xml ]: can not parse.";
const char rewriteOpenFailed[] = "setWidgetStyle: [ widget-style.xml ]: can not open.";
const char rewriteParseFailed[] = "setWidgetStyle: [ widget-style.xml ]: can not parse.";
const char rewriteWriteFailed[] = "setWidgetStyle: [ widget-style.xml ]: can not open for write.";

const int defaultPixelSize = 9;
const int rewriteIndent = 4;

const struct {
    const char* element;
    Style::Field field;
} fieldElements[] = {
    {"FieldName", Style::FieldName},
    {"FieldValue", Style::FieldValue},
    {"FieldAll", Style::FieldAll},
};
static_assert(table::count(fieldElements) == Style::FieldAll + 1,
              "each Style::Field has an element");

QMap<QString, WidgetStyle> s_styleMap;

void setFlag(bool* flag, bool value)
{
    if (flag)
        *flag = value;
}

bool readFile(const QString& path, QByteArray* content)
{
    // A directory or a device node is no style file, even where it can be opened.
    if (!QFileInfo(path).isFile())
        return false;
    QFile file(path);
    // ReadOnly alone: together with Truncate, Qt 5 and later would empty the file.
    if (!file.open(QIODevice::ReadOnly))
        return false;
    *content = file.readAll();
    return true;
}

/// Whether the tree of \a content can be built. What else is wrong with it, the tree's parser
/// finds.
bool isHarmless(const QByteArray& content)
{
    return xmlguard::isHarmless(qtcompat::xmlText(content));
}

bool parse(const QByteArray& content, QDomDocument* document)
{
    return isHarmless(content) && document->setContent(content);
}

QDomElement nextWidget(QDomNode node)
{
    while (!node.isNull() && !(node.isElement() && node.nodeName() == QLatin1String("widget")))
        node = node.nextSibling();
    return node.toElement();
}

QDomElement fieldElement(const QDomElement& widget, int index)
{
    return widget.firstChildElement(QLatin1String(fieldElements[index].element));
}

QFont readFont(const QDomElement& element)
{
    bool isNumber = false;
    int size = element.attribute(QLatin1String("size")).toInt(&isNumber);
    if (!isNumber)
        size = defaultPixelSize;
    QFont font(element.attribute(QLatin1String("family")));
    if (size > 0) // Qt keeps a font's own size, but warns
        font.setPixelSize(size);
    const bool bold = element.attribute(QLatin1String("bold")) == QLatin1String("true");
    font.setWeight(bold ? QFont::Bold : QFont::Normal);
    return font;
}

QColor readColor(const QDomElement& element, const char* attribute)
{
    return qtcompat::namedColor(element.attribute(QLatin1String(attribute)));
}

WidgetStyle readWidget(const QDomElement& element)
{
    WidgetStyle style;
    style.type = static_cast<quint32>(element.attribute(QLatin1String("type")).toInt());
    style.name = element.attribute(QLatin1String("name"));
    for (int i = 0; i < table::count(fieldElements); ++i) {
        bool ok = false;
        const Style entry = getStyle(&ok, fieldElements[i].field, fieldElement(element, i));
        if (ok)
            style.styles.append(entry);
    }
    return style;
}

QByteArray written(const QDomDocument& document)
{
    QByteArray content;
    QTextStream stream(&content, QIODevice::WriteOnly);
    document.save(stream, rewriteIndent);
    stream.flush();
    return content;
}

/// Whether \a content can be read again. The parser of trees lets characters in that its writer
/// passes on as they are, and that no parser takes from there.
bool isReadable(const QByteArray& content)
{
    QDomDocument document;
    return parse(content, &document);
}

/// Gives every font of every field in \a document the family of \a font. False when there is none.
bool setFamily(const QDomDocument& document, const QFont& font)
{
    bool changed = false;
    QDomElement widget = nextWidget(document.documentElement().firstChild());
    for (; !widget.isNull(); widget = nextWidget(widget.nextSibling())) {
        for (int i = 0; i < table::count(fieldElements); ++i)
            changed |= CWidgetStyle::setStyle(fieldElement(widget, i), font);
    }
    return changed;
}

} // namespace

/// Reads one FieldName, FieldValue or FieldAll element.
///
/// Gives a record for \a field with the font of the first "font" child and the colours of the first
/// "color" child of \a element. A missing or unreadable size is 9 pixels; a size of 0 or less keeps
/// the font's own; an unreadable colour is invalid. \a ok, which may be null, tells whether
/// \a element was an element at all.
Style getStyle(bool* ok, Style::Field field, const QDomElement& element)
{
    Style style;
    setFlag(ok, !element.isNull());
    if (element.isNull())
        return style;
    style.field = field;
    const QDomElement font = element.firstChildElement(QLatin1String("font"));
    if (!font.isNull())
        style.font = readFont(font);
    const QDomElement color = element.firstChildElement(QLatin1String("color"));
    if (!color.isNull()) {
        style.foreground = readColor(color, "foreground-color");
        style.background = readColor(color, "background-color");
    }
    return style;
}

/// Reads the style file at \a path into the style table and returns whether that worked.
///
/// An application calls it before it constructs its first themed widget. Called again it adds
/// entries and replaces those of equal names; nothing is ever removed. When the file cannot be
/// opened or parsed, a message goes to the debug channel and the table stays as it is.
bool CWidgetStyle::initialize(const QString& path)
{
    QByteArray content;
    if (!readFile(path, &content)) {
        qDebug("%s", openFailed);
        return false;
    }
    QDomDocument document;
    if (!parse(content, &document)) {
        qDebug("%s", parseFailed);
        return false;
    }
    QDomElement widget = nextWidget(document.documentElement().firstChild());
    for (; !widget.isNull(); widget = nextWidget(widget.nextSibling())) {
        const WidgetStyle style = readWidget(widget);
        s_styleMap.insert(style.name, style);
    }
    return true;
}

/// The entry stored under \a name, compared exactly, or an empty record. \a ok, which may be null,
/// tells which.
WidgetStyle CWidgetStyle::getWidgetStyle(const QString& name, bool* ok)
{
    const QMap<QString, WidgetStyle>::const_iterator found = s_styleMap.constFind(name);
    setFlag(ok, found != s_styleMap.constEnd());
    return found != s_styleMap.constEnd() ? found.value() : WidgetStyle();
}

/// The first entry, in the order of names, with the type code \a type, or an empty record and a
/// message on the debug channel. \a ok, which may be null, tells which.
WidgetStyle CWidgetStyle::getWidgetStyle(unsigned int& type, bool* ok)
{
    setFlag(ok, false);
    QMap<QString, WidgetStyle>::const_iterator entry = s_styleMap.constBegin();
    for (; entry != s_styleMap.constEnd(); ++entry) {
        if (entry.value().type == type) {
            setFlag(ok, true);
            return entry.value();
        }
    }
    qDebug("\"[%u]: Configuration not found.\"", type);
    return WidgetStyle();
}

/// Rewrites the style file at \a path so that every font in it has the family of \a font; sizes,
/// weights and colours stay. Returns whether the file was rewritten.
///
/// The style table is not touched: the new family takes effect with the next initialize(). A file
/// without any font to change is left alone, and so is one that cannot be opened, parsed or opened
/// for writing, or that could not be parsed any more afterwards, which is told on the debug
/// channel. When writing fails halfway, for example on a full disk, the old content is put back.
///
/// When this returns true, the new file is on the disk. When the power fails before, the file is
/// the old one or the new one, whole; one with several names or extended attributes, or in a folder
/// where no other file can be made, may be empty or incomplete then.
bool CWidgetStyle::setWidgetStyle(const QString& path, const QFont& font)
{
    QByteArray content;
    if (!readFile(path, &content)) {
        qDebug("%s", rewriteOpenFailed);
        return false;
    }
    QDomDocument document;
    if (!parse(content, &document)) {
        qDebug("%s", rewriteParseFailed);
        return false;
    }
    if (!setFamily(document, font))
        return false;
    const QByteArray newContent = written(document);
    if (!isReadable(newContent)) {
        qDebug("%s", rewriteParseFailed);
        return false;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite)) { // emptied only when nothing better can be done
        qDebug("%s", rewriteWriteFailed);
        return false;
    }
    return filerewrite::rewrite(&file, newContent, content);
}

/// Gives the first "font" child of \a element the family of \a font. Returns false, and does
/// nothing, when \a element is null or has no such child.
bool CWidgetStyle::setStyle(const QDomElement& element, const QFont& font)
{
    QDomElement child = element.firstChildElement(QLatin1String("font"));
    if (child.isNull())
        return false;
    child.setAttribute(QLatin1String("family"), font.family());
    return true;
}
