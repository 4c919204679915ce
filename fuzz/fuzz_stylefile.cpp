// A style file with anything in it: it is read or refused, never half of it, and it never takes the
// process down; what was read can be put on widgets and painted. What Qt's own tree accepts is
// read, unless it costs too much, and no tree is deeper than it was judged beforehand.

#include "fuzzing.h"

#include "style/qtcompat.h"
#include "style/widgetstyle.h"
#include "style/xmlguard_p.h"
#include "widgets/label.h"
#include "widgets/pushbutton.h"

#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>

namespace
{

const char good[] = "<root><widget type=\"1\" name=\"Known\"><FieldAll><font size=\"10\"/>"
                    "</FieldAll></widget></root>";

const char* const names[] = {"CWidget", "CLabel", "CPushButton", "CComboBox", "Known", "a", ""};

QString path()
{
    static const QTemporaryDir folder;
    static const QString file = folder.filePath(QString::fromLatin1("style.xml"));
    return file;
}

void write(const QByteArray& content)
{
    QFile file(path());
    fuzzing::require(file.open(QIODevice::WriteOnly | QIODevice::Truncate), "the file can be made");
    file.write(content);
}

QByteArray content()
{
    QFile file(path());
    fuzzing::require(file.open(QIODevice::ReadOnly), "the file is there");
    return file.readAll();
}

template <typename Widget>
void paint(const WidgetStyle& style)
{
    Widget widget;
    widget.setWidgetStyle(style);
    widget.setText(QString::fromLatin1("Text 1"));
    widget.resize(80, 30);
    fuzzing::render(&widget);
}

void paintAll()
{
    for (size_t i = 0; i < sizeof names / sizeof names[0]; ++i) {
        const WidgetStyle style = CWidgetStyle::getWidgetStyle(QString::fromLatin1(names[i]));
        paint<CLabel>(style);
        paint<CPushButton>(style);
    }
}

bool isKnown()
{
    bool ok = false;
    const WidgetStyle style = CWidgetStyle::getWidgetStyle(QString::fromLatin1("Known"), &ok);
    return ok && style.type == 1 && style.styles.size() == 1;
}

/// The node behind \a node in document order; \a depth follows the levels of elements.
QDomNode nextNode(QDomNode node, qint64* depth)
{
    if (node.hasChildNodes()) {
        *depth += node.firstChild().isElement() ? 1 : 0;
        return node.firstChild();
    }
    while (!node.isNull()) {
        *depth -= node.isElement() ? 1 : 0;
        if (!node.nextSibling().isNull()) {
            *depth += node.nextSibling().isElement() ? 1 : 0;
            return node.nextSibling();
        }
        node = node.parentNode();
    }
    return node;
}

qint64 depthOf(const QDomDocument& document)
{
    qint64 depth = 0;
    qint64 deepest = 0;
    for (QDomNode node = document; !node.isNull(); node = nextNode(node, &depth))
        deepest = qMax(deepest, depth);
    return deepest;
}

/// Whether a tree of \a bytes, which is too dear to be a style file, can be built all the same:
/// nothing that is short and declares nothing costs much.
bool isShortAndPlain(const QByteArray& bytes, const QString& text)
{
    return bytes.size() < xmlguard::maximumDepth && !text.contains(QLatin1String("<!ENTITY")) &&
           !text.contains(QLatin1String("<!ATTLIST"));
}

void compareWithTree(const QByteArray& bytes, bool read)
{
    const QString text = qtcompat::xmlText(bytes);
    const xmlguard::Cost cost = xmlguard::cost(text);
    const bool harmless = xmlguard::isHarmless(text);
    if (!harmless && !isShortAndPlain(bytes, text)) {
        fuzzing::require(!read, "what costs too much is refused");
        return;
    }
    QDomDocument document;
    const bool accepted = document.setContent(bytes);
    fuzzing::require(accepted == read, "what the tree accepts is read");
    fuzzing::require(depthOf(document) <= cost.depth, "no tree is deeper than it was judged");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    write(good);
    fuzzing::require(CWidgetStyle::initialize(path()), "a good file is read");

    write(bytes);
    const bool read = CWidgetStyle::initialize(path());
    fuzzing::require(content() == bytes, "reading leaves the file alone");
    fuzzing::require(read || isKnown(), "a refused file changes nothing");
    compareWithTree(bytes, read);
    paintAll();

    QFont font(QString::fromLatin1("Courier"));
    font.setPixelSize(12);
    const bool rewritten = CWidgetStyle::setWidgetStyle(path(), font);
    fuzzing::require(rewritten || content() == bytes, "a file that is not rewritten stays");
    fuzzing::require(!rewritten || CWidgetStyle::initialize(path()), "a rewritten file is read");
    if (rewritten)
        paintAll();
    return 0;
}
