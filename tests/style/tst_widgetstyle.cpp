#include "stylereading.h"
#include "support/rows.h"

using testing::Messages;
using namespace stylereading;

class tst_widgetstyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tableIsEmptyAtStart();
    void anyRootName();
    void onlyWidgetChildrenOfTheRootCount();
    void nodeNamesAreCaseSensitive();
    void fieldsInTheOrderOfTheirNumbers();
    void onlyFirstFieldOfEachNameCounts();
    void fieldsOfGrandchildrenDoNotCount();
    void widgetWithoutFieldsIsStored();
    void instructionsOfThatNameAreSkipped();
    void laterOfEqualNamesWins();
    void absentNameIsStoredUnderTheEmptyOne();
    void secondFileAddsAndReplaces();
    void lookupByNameIsExactAndSilent();
    void lookupByTypeTakesTheFirstName();
    void lookupByTypeThatFindsNothingTellsSo();
    void okMayBeNull();
    void recordsAreCopies();
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
        const testing::InRow inRow(i);
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
