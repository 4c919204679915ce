#include "stylereading.h"
#include "support/rows.h"

#include <QDomDocument>

using testing::Messages;
using namespace stylereading;

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

} // namespace

class tst_widgetstyle_attributes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fontAttributes();
    void fontAttributesPrintNoWarnings();
    void colorAttributes();
    void typeAttribute();
    void onlyFirstFontAndColorCount();
    void emptyFieldHasDefaultFontAndInvalidColors();
    void getStyleOfNullElement();
    void getStyleOfElement();
    void getStyleAcceptsANullFlag();
    void exampleFile();
};

void tst_widgetstyle_attributes::fontAttributes()
{
    for (size_t i = 0; i < sizeof fontRows / sizeof fontRows[0]; ++i) {
        const testing::InRow inRow(fontRows[i].name);
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

void tst_widgetstyle_attributes::fontAttributesPrintNoWarnings()
{
    Messages messages;
    for (size_t i = 0; i < sizeof fontRows / sizeof fontRows[0]; ++i)
        read(file(widget("Font", QByteArray("<FieldAll><font ") + fontRows[i].attributes +
                                     "/></FieldAll>")));
    QCOMPARE(messages.warnings(), QStringList());
    QCOMPARE(messages.debugs(), QStringList());
}

void tst_widgetstyle_attributes::colorAttributes()
{
    Messages messages;
    for (size_t i = 0; i < sizeof colorRows / sizeof colorRows[0]; ++i) {
        const testing::InRow inRow(colorRows[i].name);
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

void tst_widgetstyle_attributes::typeAttribute()
{
    for (size_t i = 0; i < sizeof typeRows / sizeof typeRows[0]; ++i) {
        QVERIFY(read(
            file(QByteArray("<widget ") + typeRows[i].attribute + " name=\"Typed\"></widget>")));
        QVERIFY2(entry("Typed").type == typeRows[i].type, typeRows[i].attribute);
    }
}

void tst_widgetstyle_attributes::onlyFirstFontAndColorCount()
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

void tst_widgetstyle_attributes::emptyFieldHasDefaultFontAndInvalidColors()
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

void tst_widgetstyle_attributes::getStyleOfNullElement()
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

void tst_widgetstyle_attributes::getStyleOfElement()
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

void tst_widgetstyle_attributes::getStyleAcceptsANullFlag()
{
    QDomDocument document;
    QVERIFY(document.setContent(QByteArray("<FieldAll/>")));
    QCOMPARE(getStyle(nullptr, Style::FieldAll, document.documentElement()).field, Style::FieldAll);
    QVERIFY(isDefault(getStyle(nullptr, Style::FieldAll, QDomElement()).font));
}

void tst_widgetstyle_attributes::exampleFile()
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

QTEST_MAIN(tst_widgetstyle_attributes)
#include "tst_widgetstyle_attributes.moc"
