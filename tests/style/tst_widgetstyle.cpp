#include "support/testing.h"

#include <QApplication>
#include <QDomDocument>

using testing::Messages;
using testing::TemporaryFolder;

namespace
{

// ---- values of attributes, each in an otherwise plain font or color element

struct FontRow {
    const char* name;
    const char* attributes;
    const char* family;
    int pixelSize; // -1: the size of a default font in points
    bool bold;
};

const FontRow fontRows[] = {
    // clang-format off
    {"all",              "family=\"Arial\" size=\"14\" bold=\"true\"", "Arial", 14, true},
    {"none",             "",                                           "",       9, false},
    {"no size",          "family=\"Arial\" bold=\"true\"",             "Arial",  9, true},
    {"size abc",         "family=\"Arial\" size=\"abc\"",              "Arial",  9, false},
    {"size empty",       "family=\"Arial\" size=\"\"",                 "Arial",  9, false},
    {"size with unit",   "family=\"Arial\" size=\"14px\"",             "Arial",  9, false},
    {"size hexadecimal", "family=\"Arial\" size=\"0x10\"",             "Arial",  9, false},
    {"size fraction",    "family=\"Arial\" size=\"12.5\"",             "Arial",  9, false},
    {"size huge",        "family=\"Arial\" size=\"99999999999\"",      "Arial",  9, false},
    {"size zero",        "family=\"Arial\" size=\"0\"",                "Arial", -1, false},
    {"size negative",    "family=\"Arial\" size=\"-3\"",               "Arial", -1, false},
    {"size one",         "family=\"Arial\" size=\"1\"",                "Arial",  1, false},
    {"bold capital",     "family=\"Arial\" size=\"14\" bold=\"True\"", "Arial", 14, false},
    {"bold upper case",  "family=\"Arial\" size=\"14\" bold=\"TRUE\"", "Arial", 14, false},
    {"bold one",         "family=\"Arial\" size=\"14\" bold=\"1\"",    "Arial", 14, false},
    {"bold false",       "family=\"Arial\" size=\"14\" bold=\"false\"", "Arial", 14, false},
    {"family unknown",   "family=\"No Such Family\" size=\"14\"",      "No Such Family", 14, false},
    {"family escaped",   "family=\"A &amp; B\" size=\"14\"",           "A & B", 14, false},
    // clang-format on
};

struct ColorRow {
    const char* name;
    const char* text; // null: no attribute
    bool valid;
    QRgb rgb;
};

const ColorRow colorRows[] = {
    // clang-format off
    {"six digits",     "#635E80",     true,  0xFF635E80},
    {"lower case",     "#635e80",     true,  0xFF635E80},
    {"three digits",   "#F0A",        true,  0xFFFF00AA},
    {"white",          "#ffffff",     true,  0xFFFFFFFF},
    {"black",          "#000000",     true,  0xFF000000},
    {"name",           "steelblue",   true,  0xFF4682B4},
    {"unknown name",   "no colour",   false, 0},
    {"empty",          "",            false, 0},
    {"absent",         nullptr,       false, 0},
    {"no hash sign",   "635E80",      false, 0},
    {"wrong digits",   "#GGGGGG",     false, 0},
    {"number",         "12",          false, 0},
    // clang-format on
};

struct TypeRow {
    const char* attribute;
    quint32 type;
};

const TypeRow typeRows[] = {
    // clang-format off
    {"type=\"65635\"",       65635},
    {"type=\"0\"",           0},
    {"type=\"-1\"",          4294967295u},
    {"type=\"abc\"",         0},
    {"type=\"\"",            0},
    {"type=\"0x10063\"",     0},
    {"type=\"12.5\"",        0},
    {"type=\"4294967296\"",  0},
    {"",                     0},
    // clang-format on
};

QByteArray file(const QByteArray& widgets)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<root>" + widgets + "</root>\n";
}

QByteArray widget(const QByteArray& name, const QByteArray& content)
{
    return "<widget type=\"65635\" name=\"" + name + "\">" + content + "</widget>";
}

bool read(const QByteArray& content)
{
    const TemporaryFolder folder;
    return CWidgetStyle::initialize(folder.write(QLatin1String("style.xml"), content));
}

WidgetStyle entry(const char* name, bool* ok = nullptr)
{
    return CWidgetStyle::getWidgetStyle(QString::fromLatin1(name), ok);
}

bool isDefault(const QFont& font)
{
    return font == QFont() && font.toString() == QFont().toString();
}

} // namespace

class tst_widgetstyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tableIsEmptyAtStart();
    void fontAttributes();
    void fontAttributesPrintNoWarnings();
    void colorAttributes();
    void typeAttribute();
    void anyRootName();
    void onlyWidgetChildrenOfTheRootCount();
    void nodeNamesAreCaseSensitive();
    void fieldsInTheOrderOfTheirNumbers();
    void onlyFirstFieldOfEachNameCounts();
    void onlyFirstFontAndColorCount();
    void fieldsOfGrandchildrenDoNotCount();
    void widgetWithoutFieldsIsStored();
    void emptyFieldHasDefaultFontAndInvalidColors();
    void instructionsOfThatNameAreSkipped();
    void laterOfEqualNamesWins();
    void absentNameIsStoredUnderTheEmptyOne();
    void secondFileAddsAndReplaces();
    void lookupByNameIsExactAndSilent();
    void lookupByTypeTakesTheFirstName();
    void lookupByTypeThatFindsNothingTellsSo();
    void okMayBeNull();
    void recordsAreCopies();
    void getStyleOfNullElement();
    void getStyleOfElement();
    void getStyleAcceptsANullFlag();
    void exampleFile();
    void shippedFileStylesEveryThemedClass();
};

void tst_widgetstyle::tableIsEmptyAtStart()
{
    bool ok = true;
    const WidgetStyle style = entry("CWidget", &ok);
    QVERIFY(!ok);
    QCOMPARE(style.type, 0u);
    QVERIFY(style.name.isEmpty());
    QVERIFY(style.styles.isEmpty());
}

void tst_widgetstyle::fontAttributes()
{
    for (size_t i = 0; i < sizeof fontRows / sizeof fontRows[0]; ++i) {
        const FontRow& row = fontRows[i];
        const QByteArray font = QByteArray("<font ") + row.attributes + "/>";
        QVERIFY2(read(file(widget("Font", "<FieldAll>" + font + "</FieldAll>"))), row.name);
        const QList<Style> styles = entry("Font").styles;
        QCOMPARE(styles.size(), 1);
        QVERIFY2(styles.at(0).font.family() == QString::fromLatin1(row.family), row.name);
        QVERIFY2(styles.at(0).font.pixelSize() == row.pixelSize, row.name);
        QVERIFY2(styles.at(0).font.weight() == (row.bold ? QFont::Bold : QFont::Normal), row.name);
        QVERIFY(!styles.at(0).foreground.isValid());
        QVERIFY(!styles.at(0).background.isValid());
    }
}

void tst_widgetstyle::fontAttributesPrintNoWarnings()
{
    Messages messages;
    for (size_t i = 0; i < sizeof fontRows / sizeof fontRows[0]; ++i)
        read(file(widget("Font", QByteArray("<FieldAll><font ") + fontRows[i].attributes +
                                     "/></FieldAll>")));
    QCOMPARE(messages.warnings(), QStringList());
    QCOMPARE(messages.debugs(), QStringList());
}

void tst_widgetstyle::colorAttributes()
{
    Messages messages;
    for (size_t i = 0; i < sizeof colorRows / sizeof colorRows[0]; ++i) {
        const ColorRow& row = colorRows[i];
        const QByteArray value = QByteArray("=\"") + row.text + "\" ";
        const QByteArray foreground = row.text ? "foreground-color" + value : QByteArray();
        const QByteArray background = row.text ? "background-color" + value : QByteArray();
        QVERIFY(read(file(widget("Fore", "<FieldAll><color " + foreground + "/></FieldAll>") +
                          widget("Back", "<FieldAll><color " + background + "/></FieldAll>"))));
        const Style fore = entry("Fore").styles.at(0);
        const Style back = entry("Back").styles.at(0);
        QVERIFY2(fore.foreground.isValid() == row.valid, row.name);
        QVERIFY2(back.background.isValid() == row.valid, row.name);
        QVERIFY(!fore.background.isValid());
        QVERIFY(!back.foreground.isValid());
        QVERIFY(!fore.reservedColor.isValid());
        if (row.valid) {
            QVERIFY2(fore.foreground.rgba() == row.rgb, row.name);
            QVERIFY2(back.background.rgba() == row.rgb, row.name);
        }
        QVERIFY(isDefault(fore.font));
    }
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_widgetstyle::typeAttribute()
{
    for (size_t i = 0; i < sizeof typeRows / sizeof typeRows[0]; ++i) {
        QVERIFY(read(
            file(QByteArray("<widget ") + typeRows[i].attribute + " name=\"Typed\"></widget>")));
        QVERIFY2(entry("Typed").type == typeRows[i].type, typeRows[i].attribute);
    }
}

void tst_widgetstyle::anyRootName()
{
    QVERIFY(read("<anything>" + widget("Rooted", "") + "</anything>"));
    bool ok = false;
    entry("Rooted", &ok);
    QVERIFY(ok);
    QVERIFY(read("<widget name=\"IsRoot\"><widget name=\"InWidget\"/></widget>"));
    entry("IsRoot", &ok);
    QVERIFY(!ok);
    entry("InWidget", &ok);
    QVERIFY(ok);
}

void tst_widgetstyle::onlyWidgetChildrenOfTheRootCount()
{
    QVERIFY(read(file("text<!-- " + widget("InComment", "") + " --><group>" +
                      widget("InGroup", "") + "</group><?pi x?><![CDATA[" + widget("InData", "") +
                      "]]>" + widget("Direct", "<FieldAll/>" + widget("Nested", "")))));
    bool ok = false;
    const char* const unseen[] = {"InComment", "InGroup", "InData", "Nested"};
    for (size_t i = 0; i < sizeof unseen / sizeof unseen[0]; ++i) {
        entry(unseen[i], &ok);
        QVERIFY2(!ok, unseen[i]);
    }
    entry("Direct", &ok);
    QVERIFY(ok);
}

void tst_widgetstyle::nodeNamesAreCaseSensitive()
{
    QVERIFY(read(file("<Widget name=\"Capital\"/><WIDGET name=\"Capitals\"/><widgets "
                      "name=\"Plural\"/>" +
                      widget("Fields", "<fieldall/><Fieldall/><FIELDALL/>"))));
    bool ok = false;
    const char* const unseen[] = {"Capital", "Capitals", "Plural"};
    for (size_t i = 0; i < sizeof unseen / sizeof unseen[0]; ++i) {
        entry(unseen[i], &ok);
        QVERIFY2(!ok, unseen[i]);
    }
    QVERIFY(entry("Fields", &ok).styles.isEmpty());
    QVERIFY(ok);
}

void tst_widgetstyle::fieldsInTheOrderOfTheirNumbers()
{
    const QByteArray all = "<FieldAll><font size=\"3\"/></FieldAll>";
    const QByteArray name = "<FieldName><font size=\"1\"/></FieldName>";
    const QByteArray value = "<FieldValue><font size=\"2\"/></FieldValue>";
    const QByteArray orders[] = {name + value + all, all + value + name, value + all + name};
    for (size_t i = 0; i < sizeof orders / sizeof orders[0]; ++i) {
        QVERIFY(read(file(widget("Fields", orders[i]))));
        const QList<Style> styles = entry("Fields").styles;
        QCOMPARE(styles.size(), 3);
        for (int field = 0; field < 3; ++field) {
            QCOMPARE(static_cast<int>(styles.at(field).field), field);
            QCOMPARE(styles.at(field).font.pixelSize(), field + 1);
        }
    }
    QVERIFY(read(file(widget("Fields", all + name))));
    QCOMPARE(entry("Fields").styles.size(), 2);
    QCOMPARE(entry("Fields").styles.at(0).field, Style::FieldName);
    QCOMPARE(entry("Fields").styles.at(1).field, Style::FieldAll);
}

void tst_widgetstyle::onlyFirstFieldOfEachNameCounts()
{
    QVERIFY(read(file(widget("Fields", "<FieldAll><font size=\"11\"/></FieldAll>"
                                       "<FieldAll><font size=\"22\"/></FieldAll>"))));
    QCOMPARE(entry("Fields").styles.size(), 1);
    QCOMPARE(entry("Fields").styles.at(0).font.pixelSize(), 11);
}

void tst_widgetstyle::onlyFirstFontAndColorCount()
{
    QVERIFY(read(file(widget("Firsts", "<FieldAll><font size=\"11\"/><font size=\"22\"/>"
                                       "<color foreground-color=\"#ff0000\"/>"
                                       "<color foreground-color=\"#00ff00\" "
                                       "background-color=\"#0000ff\"/></FieldAll>"))));
    const Style style = entry("Firsts").styles.at(0);
    QCOMPARE(style.font.pixelSize(), 11);
    QCOMPARE(style.foreground, QColor(Qt::red));
    QVERIFY(!style.background.isValid());
}

void tst_widgetstyle::fieldsOfGrandchildrenDoNotCount()
{
    QVERIFY(read(file(widget("Deep", "<group><FieldAll/></group>"
                                     "<FieldName><group><font size=\"5\"/></group></FieldName>"))));
    const QList<Style> styles = entry("Deep").styles;
    QCOMPARE(styles.size(), 1);
    QCOMPARE(styles.at(0).field, Style::FieldName);
    QVERIFY(isDefault(styles.at(0).font));
}

void tst_widgetstyle::widgetWithoutFieldsIsStored()
{
    QVERIFY(read(file(widget("Empty", "<other/>"))));
    bool ok = false;
    const WidgetStyle style = entry("Empty", &ok);
    QVERIFY(ok);
    QCOMPARE(style.type, 65635u);
    QCOMPARE(style.name, QString::fromLatin1("Empty"));
    QVERIFY(style.styles.isEmpty());
}

void tst_widgetstyle::emptyFieldHasDefaultFontAndInvalidColors()
{
    QVERIFY(read(file(widget("Blank", "<FieldAll/>"))));
    const QList<Style> styles = entry("Blank").styles;
    QCOMPARE(styles.size(), 1);
    QCOMPARE(styles.at(0).field, Style::FieldAll);
    QVERIFY(isDefault(styles.at(0).font));
    QVERIFY(styles.at(0).font.pixelSize() != 9);
    QVERIFY(!styles.at(0).foreground.isValid());
    QVERIFY(!styles.at(0).background.isValid());
    QVERIFY(!styles.at(0).reservedColor.isValid());
}

void tst_widgetstyle::instructionsOfThatNameAreSkipped()
{
    QVERIFY(read(file(widget("Before", "") + "<?widget name=\"Not\"?>widget<!--widget-->" +
                      "<![CDATA[widget]]>" + widget("Behind", ""))));
    bool ok = false;
    entry("Before", &ok);
    QVERIFY(ok);
    entry("Behind", &ok);
    QVERIFY(ok);
    entry("Not", &ok);
    QVERIFY(!ok);
}

void tst_widgetstyle::laterOfEqualNamesWins()
{
    QVERIFY(read(file("<widget type=\"1\" name=\"Twice\"><FieldAll/></widget>"
                      "<widget type=\"2\" name=\"Twice\"/>")));
    QCOMPARE(entry("Twice").type, 2u);
    QVERIFY(entry("Twice").styles.isEmpty());
}

void tst_widgetstyle::absentNameIsStoredUnderTheEmptyOne()
{
    bool ok = true;
    entry("", &ok);
    QVERIFY(!ok);
    QVERIFY(read(file("<widget type=\"77\"><FieldAll/></widget>")));
    const WidgetStyle style = entry("", &ok);
    QVERIFY(ok);
    QCOMPARE(style.type, 77u);
    QCOMPARE(style.styles.size(), 1);
}

void tst_widgetstyle::secondFileAddsAndReplaces()
{
    QVERIFY(read(file(widget("Kept", "<FieldAll/>") + widget("Replaced", "<FieldAll/>"))));
    QVERIFY(read(file(widget("Added", "") + widget("Replaced", ""))));
    bool ok = false;
    QCOMPARE(entry("Kept", &ok).styles.size(), 1);
    QVERIFY(ok);
    QCOMPARE(entry("Replaced", &ok).styles.size(), 0);
    QVERIFY(ok);
    entry("Added", &ok);
    QVERIFY(ok);
}

void tst_widgetstyle::lookupByNameIsExactAndSilent()
{
    QVERIFY(read(file(widget("Exact", ""))));
    Messages messages;
    const char* const others[] = {"exact", "EXACT", "Exact ", "Exac", "Exactly"};
    for (size_t i = 0; i < sizeof others / sizeof others[0]; ++i) {
        bool ok = true;
        QVERIFY(entry(others[i], &ok).name.isEmpty());
        QVERIFY2(!ok, others[i]);
    }
    QCOMPARE(messages.debugs(), QStringList());
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_widgetstyle::lookupByTypeTakesTheFirstName()
{
    QVERIFY(read(file("<widget type=\"4711\" name=\"Zebra\"/><widget type=\"4711\" name=\"Ant\"/>"
                      "<widget type=\"4711\" name=\"ant\"/>")));
    unsigned int type = 4711;
    bool ok = false;
    QCOMPARE(CWidgetStyle::getWidgetStyle(type, &ok).name, QString::fromLatin1("Ant"));
    QVERIFY(ok);
    QCOMPARE(type, 4711u);
}

void tst_widgetstyle::lookupByTypeThatFindsNothingTellsSo()
{
    Messages messages;
    unsigned int type = 123456;
    bool ok = true;
    const WidgetStyle style = CWidgetStyle::getWidgetStyle(type, &ok);
    QVERIFY(!ok);
    QCOMPARE(style.type, 0u);
    QVERIFY(style.name.isEmpty());
    QVERIFY(style.styles.isEmpty());
    type = 4294967295u;
    CWidgetStyle::getWidgetStyle(type, &ok);
    QCOMPARE(messages.debugs(), QStringList()
                                    << QLatin1String("\"[123456]: Configuration not found.\"")
                                    << QLatin1String("\"[4294967295]: Configuration not found.\""));
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_widgetstyle::okMayBeNull()
{
    QVERIFY(read(file("<widget type=\"815\" name=\"Nullable\"/>")));
    Messages messages;
    QCOMPARE(CWidgetStyle::getWidgetStyle(QLatin1String("Nullable"), nullptr).type, 815u);
    QCOMPARE(CWidgetStyle::getWidgetStyle(QLatin1String("Missing"), nullptr).type, 0u);
    unsigned int type = 815;
    QCOMPARE(CWidgetStyle::getWidgetStyle(type, nullptr).name, QString::fromLatin1("Nullable"));
    type = 816;
    QVERIFY(CWidgetStyle::getWidgetStyle(type, nullptr).name.isEmpty());
}

void tst_widgetstyle::recordsAreCopies()
{
    QVERIFY(read(file(widget("Shared", "<FieldAll/>"))));
    WidgetStyle style = entry("Shared");
    style.styles[0].reservedColor = Qt::green;
    const WidgetStyle copy = style;
    QCOMPARE(copy.styles.at(0).reservedColor, QColor(Qt::green));
    QVERIFY(!entry("Shared").styles.at(0).reservedColor.isValid());
}

void tst_widgetstyle::getStyleOfNullElement()
{
    bool ok = true;
    const Style style = getStyle(&ok, Style::FieldValue, QDomElement());
    QVERIFY(!ok);
    QCOMPARE(style.field, Style::FieldName); // not the one asked for
    QVERIFY(isDefault(style.font));
    QVERIFY(!style.foreground.isValid());
    QVERIFY(!style.background.isValid());
    QVERIFY(!style.reservedColor.isValid());
}

void tst_widgetstyle::getStyleOfElement()
{
    QDomDocument document;
    QVERIFY(document.setContent(QByteArray("<Whatever><font family=\"Arial\" size=\"20\"/>"
                                           "<color background-color=\"red\"/></Whatever>")));
    bool ok = false;
    const Style style = getStyle(&ok, Style::FieldValue, document.documentElement());
    QVERIFY(ok);
    QCOMPARE(style.field, Style::FieldValue);
    QCOMPARE(style.font.pixelSize(), 20);
    QCOMPARE(style.font.family(), QString::fromLatin1("Arial"));
    QCOMPARE(style.background, QColor(Qt::red));
    QVERIFY(!style.foreground.isValid());
}

void tst_widgetstyle::getStyleAcceptsANullFlag()
{
    QDomDocument document;
    QVERIFY(document.setContent(QByteArray("<FieldAll/>")));
    QCOMPARE(getStyle(nullptr, Style::FieldAll, document.documentElement()).field, Style::FieldAll);
    QVERIFY(isDefault(getStyle(nullptr, Style::FieldAll, QDomElement()).font));
}

void tst_widgetstyle::exampleFile()
{
    QVERIFY(read("<style><widget type=\"65635\" name=\"CWidget\"><FieldAll>"
                 "<font family=\"Arial\" size=\"14\" bold=\"true\"/>"
                 "<color foreground-color=\"#ffffff\" background-color=\"#000000\"/>"
                 "</FieldAll></widget></style>"));
    const WidgetStyle style = entry("CWidget");
    QCOMPARE(style.type, 65635u);
    QCOMPARE(style.name, QString::fromLatin1("CWidget"));
    QCOMPARE(style.styles.size(), 1);
    QCOMPARE(style.styles.at(0).field, Style::FieldAll);
    QCOMPARE(style.styles.at(0).font.pixelSize(), 14);
    QVERIFY(style.styles.at(0).font.bold());
    QCOMPARE(style.styles.at(0).foreground, QColor(Qt::white));
    QCOMPARE(style.styles.at(0).background, QColor(Qt::black));
}

void tst_widgetstyle::shippedFileStylesEveryThemedClass()
{
    const char* const classes[] = {
        "CWidget",       "CLabel",        "CPushButton",   "CCheckBox",   "CLineEdit",
        "CComboBox",     "CTopTitleArea", "CPageBar",      "CPageWidget", "CParmLabel",
        "CParmLineEdit", "CParmComboBox", "CParmCheckBox",
    };
    Messages messages;
    QVERIFY(CWidgetStyle::initialize(
        QString::fromLatin1(CWIDGET_SOURCE_DIR "/style/widget-style.xml")));
    for (size_t i = 0; i < sizeof classes / sizeof classes[0]; ++i) {
        bool ok = false;
        const WidgetStyle style = entry(classes[i], &ok);
        QVERIFY2(ok, classes[i]);
        QCOMPARE(style.type, 65635u);
        QVERIFY2(!style.styles.isEmpty(), classes[i]);
        for (int j = 0; j < style.styles.size(); ++j) {
            QCOMPARE(style.styles.at(j).font.family(), QString::fromLatin1("Arial"));
            QVERIFY2(style.styles.at(j).font.pixelSize() >= 12, classes[i]);
        }
    }
    QCOMPARE(messages.warnings(), QStringList());
}

QTEST_MAIN(tst_widgetstyle)
#include "tst_widgetstyle.moc"
