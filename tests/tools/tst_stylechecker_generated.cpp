#include "support/testing.h"

#include "stylechecker.h"
#include "stylereaders.h"

#include <QDomDocument>

using testing::TemporaryFolder;

// Style files thought up by the test, half of them with a fault. What is in a file and what the
// library's table holds afterwards are both written down as facts, by code that knows nothing of
// the checker. A file is read without a default exactly when the facts are the same.

namespace
{

const int fileCount = 4000;

/// Numbers that look random and are the same in every run.
class Dice
{
public:
    explicit Dice(quint32 seed) : m_state(seed * 2654435761u + 1)
    {
    }

    int below(int limit)
    {
        m_state = m_state * 1664525u + 1013904223u;
        return static_cast<int>((m_state >> 8) % static_cast<quint32>(limit));
    }

private:
    quint32 m_state;
};

const Style::Field fields[] = {Style::FieldName, Style::FieldValue, Style::FieldAll};

QByteArray hexColor(Dice* dice)
{
    return '#' + QByteArray::number(0x100000 + dice->below(0xeffff0), 16);
}

QByteArray fontElement(Dice* dice)
{
    const char* const families[] = {"Liberation Sans", "DejaVu Sans", "Any &amp; Sons"};
    const char* const weights[] = {"", " bold=\"true\"", " bold=\"false\""};
    return "<font family=\"" + QByteArray(families[dice->below(3)]) + "\" size=\"" +
           QByteArray::number(1 + dice->below(90)) + "\"" + weights[dice->below(3)] + "/>";
}

QByteArray colorElement(Dice* dice)
{
    return "<color foreground-color=\"" + hexColor(dice) + "\" background-color=\"" +
           hexColor(dice) + "\"/>";
}

QByteArray fieldElement(Dice* dice, const stylereaders::Reader& reader, Style::Field field)
{
    const QByteArray name = stylereaders::elementOf(field).toLatin1();
    const bool colors = (stylereaders::partsOf(reader, field) & stylereaders::Background) != 0;
    return "    <" + name + ">" + fontElement(dice) + (colors ? colorElement(dice) : QByteArray()) +
           "</" + name + ">\n";
}

/// A file that says something to a few classes, and nothing that they do not read.
QByteArray goodFile(Dice* dice)
{
    QStringList names = stylereaders::names();
    QByteArray content = dice->below(2) ? "<?xml version=\"1.0\"?>\n<style>\n" : "<style>\n";
    for (int i = 1 + dice->below(5); i > 0; --i) {
        const QString name = names.takeAt(dice->below(names.size()));
        const stylereaders::Reader* const reader = stylereaders::find(name);
        content += "  <widget type=\"" + QByteArray::number(dice->below(70000)) + "\" name=\"" +
                   name.toLatin1() + "\">\n";
        for (const Style::Field field : fields) {
            if (stylereaders::partsOf(*reader, field) != stylereaders::Nothing)
                content += fieldElement(dice, *reader, field);
        }
        content += "  </widget>\n";
    }
    return content + "</style>\n";
}

// One of the places where the first text is found gets the second in its stead. Some of them change
// nothing that matters.
const struct {
    const char* from;
    const char* to;
} changes[] = {
    // clang-format off
    {"<widget",          "<Widget"},
    {"<widget ",         "<widget typo=\"1\" "},
    {"<widget type=\"",  "<widget type=\"x"},
    {" type=\"",         " tipe=\""},
    {" name=\"",         " nam=\""},
    {" name=\"C",        " name=\"\" was=\"C"},
    {"  </widget>\n",    "  </widget>\n  <widget/>\n"},
    {"  </widget>\n",    "  </widget>\n  <widget type=\"1\" name=\"CWidget\"/>\n"},
    {"  </widget>\n",    "    <FieldAll/></widget>\n"},
    {"  </widget>\n",    "    text</widget>\n"},
    {"  </widget>\n",    "    <!-- no text --></widget>\n"},
    {"</style>",         ""},
    {"<style>",          "<style one=\"1\">"},
    {"<style>",          "<style><group>"},
    {"<font",            "<Font"},
    {"<font",            "<font/><font"},
    {"<font",            "<font weight=\"1\""},
    {"<font ",           "<font\n\t  "},
    {" family=\"",       " family=\"\" was=\""},
    {" family=\"",       " Family=\""},
    {" size=\"",         " size=\"x"},
    {" size=\"",         " size=\"-"},
    {" size=\"",         " size=\"1"},
    {" size=\"",         " pixels=\""},
    {" size=\"",         " size=\"0\" was=\""},
    {" bold=\"true\"",   " bold=\"True\""},
    {" bold=\"true\"",   " bold=\"1\""},
    {" bold=\"false\"",  " bold=\"\""},
    {" bold=\"false\"",  ""},
    {"<color",           "<colour"},
    {"<color",           "<color/><color"},
    {"ground-color=\"#", "ground-color=\""},
    {"ground-color=\"#", "ground-color=\"#z"},
    {"ground-color",     "ground-colour"},
    {"background-color", "back-color"},
    {"FieldName>",       "FieldNam>"},
    {"</Field",          "</field"},
    {"\"/>",             "\">text</color>"},
    {"&amp;",            "&"},
    // clang-format on
};

/// \a content with one change, if there is a place for it.
QByteArray changed(QByteArray content, Dice* dice)
{
    const auto& change = changes[dice->below(sizeof changes / sizeof changes[0])];
    const int places = content.count(change.from);
    if (places == 0)
        return content;
    int at = -1;
    for (int i = dice->below(places); i >= 0; --i)
        at = content.indexOf(change.from, at + 1);
    return content.replace(at, static_cast<int>(qstrlen(change.from)), change.to);
}

/// Everything in \a node and below it, each with its path. Not being bold needs no saying, and the
/// root may have any name.
void addFacts(QStringList* facts, const QDomNode& node, const QString& path)
{
    const QDomNamedNodeMap attributes = node.attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        const QString fact = attribute.name() + QLatin1Char('=') + attribute.value();
        if (fact != QLatin1String("bold=false"))
            facts->append(path + fact);
    }
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isText())
            facts->append(path + QLatin1String("text"));
        if (!child.isElement())
            continue;
        QString below = path + child.nodeName() + QLatin1Char('/');
        if (below == QLatin1String("widget/"))
            below = child.toElement().attribute(QLatin1String("name")) + QLatin1Char('/');
        facts->append(below);
        addFacts(facts, child, below);
    }
}

QStringList factsOf(const QDomDocument& document)
{
    QStringList facts;
    addFacts(&facts, document.documentElement(), QString());
    facts.sort();
    return facts;
}

void addColor(QStringList* facts, const QString& path, const QColor& color)
{
    facts->append(path + (color.isValid() ? color.name() : QString::fromLatin1("none")));
}

void addTableFacts(QStringList* facts, const QString& name, const Style& entry)
{
    const QString path =
        name + QLatin1Char('/') + stylereaders::elementOf(entry.field) + QLatin1Char('/');
    const QString font = path + QLatin1String("font/");
    *facts << path << font << font + QLatin1String("family=") + entry.font.family()
           << font + QLatin1String("size=") + QString::number(entry.font.pixelSize());
    if (entry.font.bold())
        facts->append(font + QLatin1String("bold=true"));
    // Parameter fields take the colours of their name's part, whether there are any or not.
    const bool takesColors =
        name.startsWith(QLatin1String("CParm")) &&
        (entry.field == Style::FieldName ||
         (entry.field == Style::FieldAll && name == QLatin1String("CParmLabel")));
    if (!takesColors && !entry.foreground.isValid() && !entry.background.isValid())
        return;
    const QString color = path + QLatin1String("color/");
    facts->append(color);
    addColor(facts, color + QLatin1String("foreground-color="), entry.foreground);
    addColor(facts, color + QLatin1String("background-color="), entry.background);
}

/// What the library's table holds for the names in \a document.
QStringList tableFacts(const QDomDocument& document)
{
    QStringList names;
    QDomElement widget = document.documentElement().firstChildElement(QLatin1String("widget"));
    for (; !widget.isNull(); widget = widget.nextSiblingElement(QLatin1String("widget")))
        names.append(widget.attribute(QLatin1String("name")));
    names.removeDuplicates();
    QStringList facts;
    for (int i = 0; i < names.size(); ++i) {
        const QString path = names.at(i) + QLatin1Char('/');
        const WidgetStyle style = CWidgetStyle::getWidgetStyle(names.at(i));
        facts << path << path + QLatin1String("type=") + QString::number(style.type)
              << path + QLatin1String("name=") + style.name;
        for (int j = 0; j < style.styles.size(); ++j)
            addTableFacts(&facts, names.at(i), style.styles.at(j));
        if (style.styles.isEmpty())
            facts.append(QLatin1String("nothing is styled"));
    }
    facts.sort();
    return facts;
}

} // namespace

class tst_stylechecker_generated : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void faultlessIsReadWithoutADefault();

private:
    bool isReadAsWritten(const QByteArray& content);

    TemporaryFolder m_folder;
};

bool tst_stylechecker_generated::isReadAsWritten(const QByteArray& content)
{
    testing::Messages messages;
    if (!CWidgetStyle::initialize(m_folder.write(QLatin1String("style.xml"), content)))
        return false;
    QDomDocument document;
    document.setContent(content);
    return factsOf(document) == tableFacts(document);
}

void tst_stylechecker_generated::faultlessIsReadWithoutADefault()
{
    int faultlessFiles = 0;
    int faultyFiles = 0;
    for (int i = 0; i < fileCount; ++i) {
        Dice dice(i);
        QByteArray content = goodFile(&dice);
        if (i % 2)
            content = changed(content, &dice);
        const Findings findings = StyleChecker(StyleChecker::IgnoreFonts).check(content);
        const bool asWritten = isReadAsWritten(content);
        const QByteArray said = findings.isEmpty() ? "nothing" : findings.at(0).text.toLatin1();
        QVERIFY2(findings.isEmpty() == asWritten, (said + " is said of\n" + content).constData());
        ++(asWritten ? faultlessFiles : faultyFiles);
    }
    // Neither side is empty.
    QVERIFY(faultlessFiles > fileCount / 2);
    QVERIFY(faultyFiles > fileCount / 4);
}

QTEST_MAIN(tst_stylechecker_generated)
#include "tst_stylechecker_generated.moc"
