#include "support/testing.h"

#include "nearest.h"
#include "stylechecker.h"

using testing::TemporaryFolder;

namespace
{

// What stands around the part of a file that a row is about. An @ marks the place of a finding; it
// is taken out before the file is checked.
const char* const wholeFile = "%1";
const char* const aroundWidget = "@<r>%1</r>";
const char* const aroundField = "<r>@<widget type=\"1\" name=\"CLabel\">%1</widget></r>";
const char* const aroundParmField = "<r><widget type=\"1\" name=\"CParmLabel\">%1</widget></r>";
const char* const aroundLeaf = "<r><widget type=\"1\" name=\"CLabel\">@<FieldAll>%1</FieldAll>"
                               "</widget></r>";
const char* const aroundColor = "<r><widget type=\"1\" name=\"CParmLabel\"><FieldName>"
                                "<font family=\"A\" size=\"9\"/>%1</FieldName></widget></r>";

const char* const font = "<font family=\"A\" size=\"9\"/>";

// Whether initialize() reads a file at all. On some files the releases of Qt differ.
enum Reading {
    IsRefused,
    IsRead,
    DependsOnQt
};

// The number of the mark, severity, kind; several separated by semicolons.
const struct Row {
    const char* name;
    const char* frame;
    const char* part;
    const char* expected;
    Reading reading;
} rows[] = {
    // clang-format off
    // not well-formed
    {"empty file",           wholeFile, "@", "1 error not-well-formed", IsRefused},
    {"blanks only",          wholeFile, "  \n @", "1 error not-well-formed", IsRefused},
    {"no xml",               wholeFile, "@size=14", "1 error not-well-formed", IsRefused},
    {"end is missing",       wholeFile, "<r>\n@<widget type=\"1\" name=\"CLabel\">", "1 error not-well-formed", IsRefused},
    {"wrong end",            wholeFile, "<r>\n@</s>", "1 error not-well-formed", IsRefused},
    {"two roots",            wholeFile, "@<r/>\n@<r/>", "1 warning no-widget;2 error not-well-formed", IsRefused},
    {"text after the root",  wholeFile, "@<r/>@x", "1 warning no-widget;2 error not-well-formed", IsRefused},
    {"attribute unquoted",   wholeFile, "<r>\n<widget type=@1/></r>", "1 error not-well-formed", IsRefused},
    {"attribute twice",      wholeFile, "<r>\n<widget type=\"1\" @type=\"2\"/></r>", "1 error not-well-formed", DependsOnQt},
    {"bare ampersand",       wholeFile, "<r>\na @& b</r>", "1 error not-well-formed", IsRefused},
    {"unknown entity",       wholeFile, "<r>\n<widget type=\"1\" name=\"@&who;\"/></r>", "1 error not-well-formed", DependsOnQt},
    {"bracket in a value",   wholeFile, "<r>\n<widget type=\"@<\"/></r>", "1 error not-well-formed", IsRefused},
    {"open comment",         wholeFile, "<r>\n@<!-- ", "1 error not-well-formed", IsRefused},
    {"cut in a tag",         wholeFile, "<r>\n<widget @ty", "1 error not-well-formed", IsRefused},
    {"a zero byte's entity", wholeFile, "<r>\n@&#0;</r>", "1 error not-well-formed", DependsOnQt},

    // elements that nobody reads
    {"root without widget",  wholeFile, "@<widget-style/>", "1 warning no-widget", IsRead},
    {"widget as the root",   wholeFile, "@<widget/>", "1 warning no-widget", IsRead},
    {"misspelt widget",      aroundWidget, "@<widgt/>", "1 warning no-widget;2 error unknown-element", IsRead},
    {"capital widget",       aroundWidget, "@<Widget/>", "1 warning no-widget;2 error unknown-element", IsRead},
    {"widget with prefix",   aroundWidget, "@<q:widget/>", "1 warning no-widget;2 error unknown-element", IsRead},
    {"widget too deep",      aroundWidget, "@<group><widget/></group>", "1 warning no-widget;2 error unknown-element", IsRead},
    {"misspelt field",       aroundField, "@<FieldAl/>", "1 warning no-field;2 error unknown-element", IsRead},
    {"lower-case field",     aroundField, "@<fieldall/>", "1 warning no-field;2 error unknown-element", IsRead},
    {"font beside field",    aroundField, "@<font size=\"9\"/>", "1 warning no-field;2 error unknown-element", IsRead},
    {"misspelt font",        aroundLeaf, "@<fnt/>", "1 warning no-font;2 error unknown-element", IsRead},
    {"misspelt color",       aroundLeaf, "<font family=\"A\" size=\"9\"/>@<colour/>", "2 error unknown-element", IsRead},
    {"element in a font",    aroundLeaf, "<font family=\"A\" size=\"9\">@<b/></font>", "2 error unknown-element", IsRead},
    {"element in a color",   aroundColor, "<color foreground-color=\"red\" background-color=\"red\">@<b/></color>", "1 error unknown-element", IsRead},
    {"size as an element",   aroundLeaf, "@<font family=\"A\">@<size>9</size></font>", "2 warning no-size;3 error unknown-element", IsRead},
    {"second font",          aroundLeaf, "<font family=\"A\" size=\"9\"/>@<font/>", "2 error second-element", IsRead},
    {"second color",         aroundColor, "<color foreground-color=\"red\" background-color=\"red\"/>@<color/>", "1 error second-element", IsRead},
    {"second field",         aroundField, "<FieldAll><font family=\"A\" size=\"9\"/></FieldAll>\n@<FieldAll/>", "2 error second-element", IsRead},

    // attributes that nobody reads
    {"attribute of root",    wholeFile, "@<r @version=\"1\"/>", "1 warning no-widget;2 error unknown-attribute", IsRead},
    {"misspelt type",        wholeFile, "<r>@<widget @typ=\"1\" name=\"CLabel\"/></r>", "1 warning no-type;1 warning no-field;2 error unknown-attribute", IsRead},
    {"misspelt name",        wholeFile, "<r>@<widget type=\"1\" @Name=\"CLabel\"/></r>", "1 error no-name;1 warning no-field;2 error unknown-attribute", IsRead},
    {"attribute of a field", aroundField, "<FieldAll @size=\"9\"><font family=\"A\" size=\"9\"/></FieldAll>", "2 error unknown-attribute", IsRead},
    {"weight",               aroundLeaf, "<font family=\"A\" size=\"9\" @weight=\"75\"/>", "2 error unknown-attribute", IsRead},
    {"foreground",           aroundColor, "@<color @foreground=\"red\" background-color=\"red\"/>", "1 warning no-color;2 error unknown-attribute", IsRead},
    {"in a later line",      aroundLeaf, "@<font family=\"A\"\n   @siz='9'/>", "2 warning no-size;3 error unknown-attribute", IsRead},
    {"name within a value",  aroundLeaf, "<font family=\" siz=1 \" size=\"9\" @siz='9'/>", "2 error unknown-attribute", IsRead},

    // values
    {"type in letters",      wholeFile, "<r>@<widget @type=\"label\" name=\"CLabel\"/></r>", "1 warning no-field;2 error bad-type", IsRead},
    {"type hexadecimal",     wholeFile, "<r>@<widget @type=\"0x10063\" name=\"CLabel\"/></r>", "1 warning no-field;2 error bad-type", IsRead},
    {"type empty",           wholeFile, "<r>@<widget @type=\"\" name=\"CLabel\"/></r>", "1 warning no-field;2 error bad-type", IsRead},
    {"type too large",       wholeFile, "<r>@<widget @type=\"4294967296\" name=\"CLabel\"/></r>", "1 warning no-field;2 error bad-type", IsRead},
    {"size in letters",      aroundLeaf, "<font family=\"A\" @size=\"abc\"/>", "2 error bad-size", IsRead},
    {"size with unit",       aroundLeaf, "<font family=\"A\" @size=\"14px\"/>", "2 error bad-size", IsRead},
    {"size with point",      aroundLeaf, "<font family=\"A\" @size=\"14.5\"/>", "2 error bad-size", IsRead},
    {"size empty",           aroundLeaf, "<font family=\"A\" @size=\"\"/>", "2 error bad-size", IsRead},
    {"size zero",            aroundLeaf, "<font family=\"A\" @size=\"0\"/>", "2 error bad-size", IsRead},
    {"size negative",        aroundLeaf, "<font family=\"A\" @size=\"-14\"/>", "2 error bad-size", IsRead},
    {"size too large",       aroundLeaf, "<font family=\"A\" @size=\"99999999999\"/>", "2 error bad-size", IsRead},
    {"bold with capital",    aroundLeaf, "<font family=\"A\" size=\"9\" @bold=\"True\"/>", "2 error bad-bold", IsRead},
    {"bold as a number",     aroundLeaf, "<font family=\"A\" size=\"9\" @bold=\"1\"/>", "2 error bad-bold", IsRead},
    {"bold with blank",      aroundLeaf, "<font family=\"A\" size=\"9\" @bold=\"true \"/>", "2 error bad-bold", IsRead},
    {"no such colour",       aroundColor, "<color @foreground-color=\"blu\" background-color=\"red\"/>", "1 error bad-color", IsRead},
    {"five digits",          aroundColor, "<color foreground-color=\"red\" @background-color=\"#12345\"/>", "1 error bad-color", IsRead},
    {"hash is missing",      aroundColor, "<color @foreground-color=\"635E80\" background-color=\"red\"/>", "1 error bad-color", IsRead},
    {"colour empty",         aroundColor, "<color @foreground-color=\"\" background-color=\"red\"/>", "1 error bad-color", IsRead},
    {"colour as rgb()",      aroundColor, "<color foreground-color=\"red\" @background-color=\"rgb(1,2,3)\"/>", "1 error bad-color", IsRead},

    // names
    {"name missing",         wholeFile, "<r>@<widget type=\"1\"/></r>", "1 error no-name;1 warning no-field", IsRead},
    {"name empty",           wholeFile, "<r>@<widget type=\"1\" name=\"\"/></r>", "1 error no-name;1 warning no-field", IsRead},
    {"name twice",           wholeFile, "<r>@<widget type=\"1\" name=\"CLabel\"/>\n@<widget type=\"1\" @name=\"CLabel\"/></r>", "1 warning no-field;2 warning no-field;3 error second-name", IsRead},
    {"misspelt class",       wholeFile, "<r>@<widget type=\"1\" @name=\"CLable\"/></r>", "1 warning no-field;2 warning unread-name", IsRead},
    {"class in lower case",  wholeFile, "<r>@<widget type=\"1\" @name=\"clabel\"/></r>", "1 warning no-field;2 warning unread-name", IsRead},
    {"class of Qt",          wholeFile, "<r>@<widget type=\"1\" @name=\"QLabel\"/></r>", "1 warning no-field;2 warning unread-name", IsRead},
    {"class without entry",  wholeFile, "<r>@<widget type=\"1\" @name=\"CKeyButton\"/></r>", "1 warning no-field;2 warning unread-name", IsRead},

    // what the class does not read
    {"name of a label",      aroundField, "@<FieldName><font family=\"A\" size=\"9\"/></FieldName>", "2 warning unread-field", IsRead},
    {"value of a label",     aroundField, "@<FieldValue><font family=\"A\" size=\"9\"/></FieldValue>", "2 warning unread-field", IsRead},
    {"all of a line edit",   wholeFile, "<r><widget type=\"1\" name=\"CParmLineEdit\">@<FieldAll><font family=\"A\" size=\"9\"/></FieldAll></widget></r>", "1 warning unread-field", IsRead},
    {"colours of a label",   aroundLeaf, "<font family=\"A\" size=\"9\"/><color @foreground-color=\"red\" @background-color=\"red\"/>", "2 warning unread-color;3 warning unread-color", IsRead},
    {"colour of a value",    aroundParmField, "<FieldValue><font family=\"A\" size=\"9\"/><color @foreground-color=\"red\"/></FieldValue>", "1 warning unread-color", IsRead},

    // what is left out
    {"type left out",        wholeFile, "<r>@<widget name=\"CLabel\"/></r>", "1 warning no-type;1 warning no-field", IsRead},
    {"empty field",          aroundField, "@<FieldAll/>", "2 warning no-font", IsRead},
    {"empty font",           aroundLeaf, "@<font/>", "2 warning no-family;2 warning no-size", IsRead},
    {"family left out",      aroundLeaf, "@<font size=\"9\"/>", "2 warning no-family", IsRead},
    {"size left out",        aroundLeaf, "@<font family=\"A\"/>", "2 warning no-size", IsRead},
    {"color left out",       aroundParmField, "@<FieldName><font family=\"A\" size=\"9\"/></FieldName>", "1 warning no-color", IsRead},
    {"background left out",  aroundColor, "@<color foreground-color=\"red\"/>", "1 warning no-color", IsRead},

    // text
    {"text in the root",     aroundWidget, " @14 ", "1 warning no-widget;2 error text", IsRead},
    {"text in a widget",     aroundField, "\n  @CLabel", "1 warning no-field;2 error text", IsRead},
    {"text in a font",       aroundLeaf, "<font family=\"A\" size=\"9\">@14</font>", "2 error text", IsRead},
    {"character data",       aroundWidget, "@<![CDATA[<widget/>]]>", "1 warning no-widget;2 error text", IsRead},
    // clang-format on
};

// Files without a finding.
const struct {
    const char* name;
    const char* content;
} faultless[] = {
    // clang-format off
    {"smallest",    "<r><widget type='1' name='CLabel'><FieldAll><font family='A' size='9'/></FieldAll></widget></r>"},
    {"bold",        "<r><widget type='1' name='CLabel'><FieldAll><font family='A' size='9' bold='true'/></FieldAll></widget></r>"},
    {"not bold",    "<r><widget type='1' name='CLabel'><FieldAll><font family='A' size='9' bold='false'/></FieldAll></widget></r>"},
    {"comments",    "<?xml version='1.0'?><!-- a --><r><!-- b --><widget type='1' name='CLabel'><!-- c --><FieldAll><!-- d --><font family='A' size='9'><!-- e --></font></FieldAll></widget></r><!-- f -->"},
    {"entity",      "<!DOCTYPE r [<!ENTITY f 'Ari'>]><r><widget type='1' name='CLabel'><FieldAll><font family='&f;al' size='9'/></FieldAll></widget></r>"},
    {"any order",   "<r><widget name='CParmLabel' type='1'><FieldValue><font size='9' family='A'/></FieldValue><FieldName><color background-color='#123' foreground-color='red'/><font size='9' family='A'/></FieldName></widget></r>"},
    {"blanks",      "<r>\n\t<widget  type = '1'\n\tname = 'CLabel' ><FieldAll >\n<font family='A' size='9' />\n</FieldAll >\n</widget >\n</r >\n"},
    // clang-format on
};

/// Where \a offset lies in \a content, as the checker tells places. Where exactly a parser gives up
/// differs between the releases of Qt: for such a finding the line will do.
QString placeOf(const QByteArray& content, int offset, bool lineOnly)
{
    const int line = content.left(offset).count('\n') + 1;
    const int column = offset - static_cast<int>(content.left(offset).lastIndexOf('\n'));
    return lineOnly ? QString::fromLatin1("%1:").arg(line)
                    : QString::fromLatin1("%1:%2").arg(line).arg(column);
}

/// Takes the marks out of \a content and puts their places for their numbers in \a expected.
QStringList placed(QByteArray* content, const QStringList& expected)
{
    QList<int> marks;
    for (int at = content->indexOf('@'); at >= 0; at = content->indexOf('@', at)) {
        content->remove(at, 1);
        marks.append(at);
    }
    QStringList all;
    for (int i = 0; i < expected.size(); ++i) {
        const int number = expected.at(i).section(QLatin1Char(' '), 0, 0).toInt();
        const bool lineOnly = expected.at(i).contains(QLatin1String("not-well-formed"));
        all.append(placeOf(*content, marks.at(number - 1), lineOnly) + QLatin1Char(' ') +
                   expected.at(i).section(QLatin1Char(' '), 1));
    }
    return all;
}

QStringList described(const Findings& findings)
{
    QStringList all;
    for (int i = 0; i < findings.size(); ++i) {
        const Finding& finding = findings.at(i);
        const bool lineOnly = qstrcmp(finding.id, "not-well-formed") == 0;
        all.append(QString::fromLatin1("%1:%2 %3 %4")
                       .arg(finding.line)
                       .arg(lineOnly ? QString() : QString::number(finding.column))
                       .arg(QLatin1String(finding.severity == Finding::Error ? "error" : "warning"))
                       .arg(QLatin1String(finding.id)));
    }
    return all;
}

QString textsOf(const Findings& findings)
{
    QStringList texts;
    for (int i = 0; i < findings.size(); ++i)
        texts.append(findings.at(i).text);
    return texts.join(QLatin1String(" | "));
}

Findings check(const QByteArray& content)
{
    return StyleChecker(StyleChecker::IgnoreFonts).check(content);
}

} // namespace

class tst_stylechecker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void brokenFiles_data();
    void brokenFiles();
    void faultlessFiles_data();
    void faultlessFiles();
    void theLibrarysOwnFile();
    void everyCharacterMissing();
    void nestingAndEntities_data();
    void nestingAndEntities();
    void encodings_data();
    void encodings();
    void missingFamiliesAreNamedOnce();
    void theNearestNameIsSuggested_data();
    void theNearestNameIsSuggested();
    void textsSayWhatIsTaken();

private:
    bool isReadByLibrary(const QByteArray& content);

    TemporaryFolder m_folder;
};

bool tst_stylechecker::isReadByLibrary(const QByteArray& content)
{
    testing::Messages messages; // the library tells what it cannot parse
    return CWidgetStyle::initialize(m_folder.write(QLatin1String("style.xml"), content));
}

void tst_stylechecker::brokenFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<int>("reading");
    int count = 0;
    for (const Row& row : rows) {
        QByteArray content = QByteArray(row.frame).replace("%1", row.part);
        const QStringList expected =
            placed(&content, QString::fromLatin1(row.expected).split(QLatin1Char(';')));
        QTest::newRow(row.name) << content << expected << static_cast<int>(row.reading);
        ++count;
    }
    QVERIFY(count >= 60);
}

void tst_stylechecker::brokenFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(QStringList, expected);
    QFETCH(int, reading);
    const Findings findings = check(content);
    QVERIFY2(described(findings) == expected,
             qPrintable(described(findings).join(QLatin1String(";")) + QLatin1String("   ") +
                        textsOf(findings)));
    const bool isRead = isReadByLibrary(content);
    if (reading == DependsOnQt)
        QCOMPARE(textsOf(findings).endsWith(QLatin1String("others refuse it)")), isRead);
    else
        QCOMPARE(isRead, reading == IsRead);
}

void tst_stylechecker::faultlessFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    for (const auto& row : faultless)
        QTest::newRow(row.name) << QByteArray(row.content);
}

void tst_stylechecker::faultlessFiles()
{
    QFETCH(QByteArray, content);
    QCOMPARE(described(check(content)), QStringList());
    QVERIFY(isReadByLibrary(content));
}

void tst_stylechecker::theLibrarysOwnFile()
{
    const QByteArray content =
        testing::contentOf(QLatin1String(CWIDGET_SOURCE_DIR "/style/widget-style.xml"));
    QVERIFY(!content.isEmpty());
    QCOMPARE(described(check(content)), QStringList());
}

/// Damage anywhere: what the library refuses is never well-formed, what else is not well-formed is
/// said to be read all the same, and findings lie within the file.
void tst_stylechecker::everyCharacterMissing()
{
    const QByteArray content =
        "<!DOCTYPE r [<!ENTITY e \"9\">]>\n<r><widget type=\"1\" name=\"CLabel\">"
        "<FieldAll><font family=\"A\" size=\"&e;\"/><!-- c --></FieldAll>"
        "</widget></r>";
    for (int i = 0; i < content.size(); ++i) {
        QByteArray damaged = content;
        damaged.remove(i, 1);
        const Findings findings = check(damaged);
        bool refused = false;
        const bool isRead = isReadByLibrary(damaged);
        for (int j = 0; j < findings.size(); ++j) {
            refused |= qstrcmp(findings.at(j).id, "not-well-formed") == 0 &&
                       !findings.at(j).text.endsWith(QLatin1String("others refuse it)"));
            QVERIFY2(findings.at(j).line >= 1 && findings.at(j).line <= 2, damaged.constData());
            QVERIFY2(findings.at(j).column >= 1 && findings.at(j).column <= content.size() + 1,
                     damaged.constData());
        }
        QVERIFY2(isRead == !refused, damaged.constData());
    }
}

void tst_stylechecker::nestingAndEntities_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("expected");
    const QByteArray open("<a>");
    const QByteArray close("</a>");
    QTest::newRow("5,000 levels") << "<r>\n" + open.repeated(4999) + close.repeated(4999) + "</r>"
                                  << QString();
    QTest::newRow("5,001 levels") << "<r>\n" + open.repeated(5000) + close.repeated(5000) + "</r>"
                                  << QString::fromLatin1("2:14998 error too-deep");
    QTest::newRow("a million levels")
        << "<r>\n" + open.repeated(1000000) << QString::fromLatin1("2:14998 error too-deep");
    const QByteArray head =
        "<!DOCTYPE r [\n  <!ENTITY a \"" + QByteArray("a").repeated(100000) + "\">]><r>";
    if (CWIDGET_QT_MAJOR < 6) // whose reader of trees stops at 4,096 characters from entities
        QTest::newRow("4 million characters")
            << head + QByteArray("&a;").repeated(40) + "</r>" << QString();
    QTest::newRow("5 million characters") << head + QByteArray("&a;").repeated(50) + "</r>"
                                          << QString::fromLatin1("2:3 error entity-too-large");
    QTest::newRow("2,000 million characters") << head + QByteArray("&a;").repeated(20000) + "</r>"
                                              << QString::fromLatin1("2:3 error entity-too-large");
}

/// What the library refuses, however well-formed it may be, is one finding.
void tst_stylechecker::nestingAndEntities()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, expected);
    const QStringList all = described(check(content));
    if (!expected.isEmpty())
        QCOMPARE(all, QStringList() << expected);
    QCOMPARE(all.filter(QLatin1String("too-")).isEmpty(), expected.isEmpty());
    QCOMPARE(isReadByLibrary(content), expected.isEmpty());
}

void tst_stylechecker::encodings_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray tail = "<r>\n<widget type='1' name='CLabel'><FieldAll><font\n"
                            "family='K%1ln' size='x'/></FieldAll></widget></r>";
    QByteArray utf8 = tail;
    utf8.replace("%1", "\xC3\xB6");
    QByteArray latin1 = tail;
    latin1.replace("%1", "\xF6");
    QTest::newRow("utf-8") << utf8;
    QTest::newRow("utf-8 with mark") << QByteArray("\xEF\xBB\xBF") + utf8;
    QTest::newRow("latin-1") << QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?>") + latin1;
    QByteArray utf16("\xFF\xFE", 2);
    const QString text = QString::fromUtf8(utf8);
    for (int i = 0; i < text.size(); ++i) {
        utf16.append(static_cast<char>(text.at(i).unicode() & 0xFF));
        utf16.append(static_cast<char>(text.at(i).unicode() >> 8));
    }
    QTest::newRow("utf-16") << utf16;
}

/// Columns count characters, whatever their bytes.
void tst_stylechecker::encodings()
{
    QFETCH(QByteArray, content);
    QCOMPARE(described(check(content)), QStringList() << QLatin1String("3:15 error bad-size"));
    QVERIFY(isReadByLibrary(content));
}

void tst_stylechecker::missingFamiliesAreNamedOnce()
{
    const QByteArray content = "<r><widget type='1' name='CLabel'><FieldAll>\n"
                               "<font family='No Such Family' size='9'/></FieldAll></widget>\n"
                               "<widget type='1' name='CLineEdit'><FieldAll>"
                               "<font family='No Such Family' size='9'/></FieldAll></widget>\n"
                               "<widget type='1' name='CCheckBox'><FieldAll>"
                               "<font family='liberation sans' size='9'/></FieldAll></widget>\n"
                               "<widget type='1' name='CComboBox'><FieldAll>"
                               "<font family='Nor This, DejaVu Sans' size='9'/></FieldAll></widget>"
                               "</r>";
    const Findings findings = StyleChecker(StyleChecker::CheckFonts).check(content);
    QCOMPARE(described(findings), QStringList() << QLatin1String("2:7 warning missing-family"));
    QVERIFY(findings.at(0).text.contains(QLatin1String("\"No Such Family\"")));
    QVERIFY(check(content).isEmpty());
}

void tst_stylechecker::theNearestNameIsSuggested_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("expected");
    const struct {
        const char* word;
        const char* expected;
    } names[] = {
        // clang-format off
        {"CLable",        "CLabel"},
        {"clabel",        "CLabel"},
        {"Label",         "CLabel"},
        {"CPushButon",    "CPushButton"},
        {"CParmLinedit",  "CParmLineEdit"},
        {"CComboBoxItem", "CComboBox"},
        {"QCheckBox",     "CCheckBox"},
        {"",              "CLabel"},
        // clang-format on
    };
    for (const auto& row : names)
        QTest::newRow(row.word) << QString::fromLatin1(row.word)
                                << QString::fromLatin1(row.expected);
}

void tst_stylechecker::theNearestNameIsSuggested()
{
    QFETCH(QString, word);
    QFETCH(QString, expected);
    QCOMPARE(nearest(word, stylereaders::names()),
             word.isEmpty() ? stylereaders::names().at(0) : expected);
    if (word.isEmpty())
        return;
    const Findings findings = check("<r><widget type='1' name='" + word.toLatin1() +
                                    "'><FieldAll>" + font + "</FieldAll></widget></r>");
    QCOMPARE(findings.size(), 1);
    QCOMPARE(findings.at(0).text,
             QString::fromLatin1("no class of the library reads \"%1\": the nearest name is \"%2\"")
                 .arg(word, expected));
}

void tst_stylechecker::textsSayWhatIsTaken()
{
    const QByteArray frame = QByteArray(aroundLeaf).replace('@', "");
    QCOMPARE(check(QByteArray(frame).replace("%1", "<font family='A' size='x'/>")).at(0).text,
             QString::fromLatin1("size \"x\" is no decimal number: 9 pixels are taken"));
    QCOMPARE(check(QByteArray(frame).replace("%1", "<font famly='A' size='9'/>")).at(1).text,
             QString::fromLatin1(
                 "unknown attribute \"famly\": the nearest one that is read is \"family\""));
    QCOMPARE(
        check("<r><widget type='1' name='CParmLineEdit'><FieldAll><font family='A' "
              "size='9'/></FieldAll></widget></r>")
            .at(0)
            .text,
        QString::fromLatin1("CParmLineEdit does not read FieldAll, only FieldName and FieldValue"));
}

QTEST_MAIN(tst_stylechecker)
#include "tst_stylechecker.moc"
