#include "support/testing.h"

#include <QApplication>
#include <QDomDocument>
#include <QFile>

#include <ctime>

#include <sys/stat.h>
#include <unistd.h>

using testing::contentOf;
using testing::Messages;
using testing::TemporaryFolder;

namespace
{

const char openFailed[] = "[ widget-style.xml ]: can not open.";
const char parseFailed[] = "[ widget-style.xml ]: can not parse.";

const char good[] = "<root><widget type=\"1\" name=\"Known\"><FieldAll><font size=\"10\"/>"
                    "</FieldAll></widget></root>";

/// Would replace the known entry and add a stray one, if anything of it came through.
QByteArray bad(const QByteArray& tail, const QByteArray& head = QByteArray())
{
    return head + "<root><widget type=\"2\" name=\"Known\"/><widget name=\"Stray\"/>" + tail;
}

QByteArray nested(int depth)
{
    return "<root>" + QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth) +
           "<widget name=\"Deep\"/></root>";
}

/// Nine levels of ten references each: a thousand million times "lol" when expanded.
QByteArray entityBomb()
{
    QByteArray content = "<?xml version=\"1.0\"?>\n<!DOCTYPE root [\n<!ENTITY e0 \"lol\">\n";
    for (int i = 1; i <= 9; ++i) {
        const QByteArray reference = "&e" + QByteArray::number(i - 1) + ";";
        content += "<!ENTITY e" + QByteArray::number(i) + " \"" + reference.repeated(10) + "\">\n";
    }
    return content + "]>\n<root>&e9;<widget name=\"Stray\"/></root>";
}

/// One long entity, used often.
QByteArray wideEntityBomb()
{
    return "<!DOCTYPE root [<!ENTITY a \"" + QByteArray("a").repeated(100000) + "\">]><root>" +
           QByteArray("&a;").repeated(20000) + "<widget name=\"Stray\"/></root>";
}

/// The same within the document type that a stricter parser trips over.
QByteArray crookedEntityBomb()
{
    return wideEntityBomb().replace("]>", "<!CROOKED>]>");
}

/// As many entities, each of which opens an element around the next one.
QByteArray deepEntities(int count)
{
    QByteArray content = "<!DOCTYPE r [";
    for (int i = 0; i < count; ++i) {
        const QByteArray next = QByteArray::number(i + 1);
        content += "<!ENTITY e" + QByteArray::number(i) + " \"<a>&e" + next + ";</a>\">";
    }
    return content + "]><r>&e0;</r>";
}

/// A figure of the process in kB, as the kernel tells it.
int kiloBytes(const char* figure)
{
    const QByteArray status = contentOf(QLatin1String("/proc/self/status"));
    const int at = status.indexOf(figure) + static_cast<int>(qstrlen(figure)) + 1;
    return status.mid(at, 20).split('k').at(0).trimmed().toInt();
}

QByteArray toUtf16(const QString& text, bool bigEndian, bool mark)
{
    QByteArray bytes;
    const QString all = (mark ? QString(QChar(0xFEFF)) : QString()) + text;
    for (int i = 0; i < all.size(); ++i) {
        const char high = static_cast<char>(all.at(i).unicode() >> 8);
        const char low = static_cast<char>(all.at(i).unicode() & 0xFF);
        bytes.append(bigEndian ? high : low);
        bytes.append(bigEndian ? low : high);
    }
    return bytes;
}

} // namespace

class tst_widgetstyle_badfiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void missingFile();
    void emptyPath();
    void directory();
    void devicesAndPipes();
    void unreadableFile();
    void emptyFile();
    void noXml_data();
    void noXml();
    void truncatedAnywhere();
    void tenMegabytes();
    void tenMegabytesOfText();
    void nestedFiveThousandDeepIsTheLimit();
    void fewEntitiesAreWelcome();
    void whatTheTreeTakesIsRead_data();
    void whatTheTreeTakesIsRead();
    void bombs_data();
    void bombs();
    void externalEntitiesAreNotRead();
    void utf16();
    void latin1();
    void utf8WithMark();
    void randomDamage();

private:
    void refuses(const QByteArray& content);
    void knowsOnlyTheKnown();
    bool has(const char* name);

    TemporaryFolder m_folder;
};

void tst_widgetstyle_badfiles::init()
{
    QVERIFY(CWidgetStyle::initialize(m_folder.write(QLatin1String("good.xml"), good)));
}

bool tst_widgetstyle_badfiles::has(const char* name)
{
    bool ok = false;
    CWidgetStyle::getWidgetStyle(QString::fromLatin1(name), &ok);
    return ok;
}

void tst_widgetstyle_badfiles::knowsOnlyTheKnown()
{
    QVERIFY(!has("Stray"));
    const WidgetStyle known = CWidgetStyle::getWidgetStyle(QLatin1String("Known"));
    QCOMPARE(known.type, 1u);
    QCOMPARE(known.styles.size(), 1);
    QCOMPARE(known.styles.at(0).font.pixelSize(), 10);
}

void tst_widgetstyle_badfiles::refuses(const QByteArray& content)
{
    const QString path = m_folder.write(QLatin1String("bad.xml"), content);
    Messages messages;
    QVERIFY(!CWidgetStyle::initialize(path));
    QCOMPARE(messages.debugs(), QStringList() << QLatin1String(parseFailed));
    QVERIFY(!CWidgetStyle::setWidgetStyle(path, QFont(QLatin1String("Courier"))));
    QCOMPARE(messages.debugs().size(), 2);
    QCOMPARE(messages.debugs().at(1),
             QLatin1String("setWidgetStyle: ") + QLatin1String(parseFailed));
    QCOMPARE(messages.warnings(), QStringList());
    QCOMPARE(contentOf(path), content);
    knowsOnlyTheKnown();
}

void tst_widgetstyle_badfiles::missingFile()
{
    Messages messages;
    QVERIFY(!CWidgetStyle::initialize(m_folder.path() + QLatin1String("/none.xml")));
    QCOMPARE(messages.debugs(), QStringList() << QLatin1String(openFailed));
    QCOMPARE(messages.warnings(), QStringList());
    QVERIFY(!QFile::exists(m_folder.path() + QLatin1String("/none.xml")));
    knowsOnlyTheKnown();
}

void tst_widgetstyle_badfiles::emptyPath()
{
    Messages messages;
    QVERIFY(!CWidgetStyle::initialize(QString()));
    QCOMPARE(messages.debugs(), QStringList() << QLatin1String(openFailed));
    QCOMPARE(messages.warnings(), QStringList());
    knowsOnlyTheKnown();
}

void tst_widgetstyle_badfiles::directory()
{
    Messages messages;
    QVERIFY(!CWidgetStyle::initialize(m_folder.path()));
    QVERIFY(!CWidgetStyle::setWidgetStyle(m_folder.path(), QFont()));
    QCOMPARE(messages.debugs(),
             QStringList() << QLatin1String(openFailed)
                           << QLatin1String("setWidgetStyle: ") + QLatin1String(openFailed));
    QCOMPARE(messages.warnings(), QStringList());
    knowsOnlyTheKnown();
}

void tst_widgetstyle_badfiles::devicesAndPipes()
{
    const QString pipe = m_folder.path() + QLatin1String("/pipe");
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    Messages messages;
    QVERIFY(!CWidgetStyle::initialize(pipe)); // nobody writes into it: reading would never end
    QVERIFY(!CWidgetStyle::initialize(QLatin1String("/dev/zero")));
    QVERIFY(!CWidgetStyle::initialize(QLatin1String("/dev/null")));
    QCOMPARE(messages.debugs().size(), 3);
    QCOMPARE(messages.debugs().count(QLatin1String(openFailed)), 3);
    knowsOnlyTheKnown();
}

void tst_widgetstyle_badfiles::unreadableFile()
{
    const QByteArray content = bad("</root>");
    const QString path = m_folder.write(QLatin1String("secret.xml"), content);
    QVERIFY(QFile::setPermissions(path, QFile::Permissions()));
    const uid_t user = geteuid();
    if (user == 0)
        QCOMPARE(seteuid(65534), 0); // root may read every file
    Messages messages;
    const bool read = CWidgetStyle::initialize(path);
    const bool rewritten = CWidgetStyle::setWidgetStyle(path, QFont());
    if (user == 0)
        QCOMPARE(seteuid(user), 0);
    QVERIFY(!read);
    QVERIFY(!rewritten);
    QCOMPARE(messages.debugs(),
             QStringList() << QLatin1String(openFailed)
                           << QLatin1String("setWidgetStyle: ") + QLatin1String(openFailed));
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
    QCOMPARE(contentOf(path), content);
    knowsOnlyTheKnown();
}

void tst_widgetstyle_badfiles::emptyFile()
{
    refuses(QByteArray());
}

void tst_widgetstyle_badfiles::noXml_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("text") << QByteArray("font = Arial\nsize = 14\n");
    QTest::newRow("blanks") << QByteArray("   \n\t\n");
    QTest::newRow("JSON") << QByteArray("{ \"widget\": [] }");
    QTest::newRow("declaration only") << QByteArray("<?xml version=\"1.0\"?>");
    QTest::newRow("comment only") << QByteArray("<!-- nothing -->");
    QTest::newRow("NUL bytes") << QByteArray(1000, '\0');
    QTest::newRow("binary") << QByteArray("\x7F\x45\x4C\x46\x02\x01\x01\x00\xFF\xFE\xFD", 11);
    QTest::newRow("unquoted attribute") << bad("<widget name=x/></root>");
    QTest::newRow("wrong end") << bad("</r00t>");
    QTest::newRow("overlapping") << bad("<a><b></a></b></root>");
    QTest::newRow("lone ampersand") << bad("a & b</root>");
    QTest::newRow("second root") << bad("</root><root/>");
    QTest::newRow("text after root") << bad("</root>more");
}

void tst_widgetstyle_badfiles::noXml()
{
    QFETCH(QByteArray, content);
    refuses(content);
}

void tst_widgetstyle_badfiles::truncatedAnywhere()
{
    const QByteArray whole = bad("<widget name=\"Stray\"><FieldAll><font family=\"Arial\"/>"
                                 "</FieldAll></widget></root>");
    for (int size = 0; size < whole.size(); ++size)
        refuses(whole.left(size));
}

void tst_widgetstyle_badfiles::tenMegabytes()
{
    QByteArray content = "<root>";
    for (int i = 0; content.size() < 10 * 1024 * 1024; ++i)
        content += "<widget type=\"3\" name=\"Large" + QByteArray::number(i % 1000) +
                   "\"><FieldAll><font family=\"Arial\" size=\"14\"/></FieldAll></widget>\n";
    content += "<widget type=\"4\" name=\"LargeLast\"/></root>";
    const QString path = m_folder.write(QLatin1String("large.xml"), content);
    QVERIFY(CWidgetStyle::initialize(path));
    QVERIFY(has("Large0"));
    QVERIFY(has("Large999"));
    QVERIFY(has("LargeLast"));
    QCOMPARE(contentOf(path), content);
}

void tst_widgetstyle_badfiles::tenMegabytesOfText()
{
    const QString path = m_folder.write(QLatin1String("large.xml"),
                                        "<root>" + QByteArray("text ").repeated(2 * 1024 * 1024) +
                                            "<widget name=\"Late\"/></root>");
    QVERIFY(CWidgetStyle::initialize(path));
    QVERIFY(has("Late"));
}

void tst_widgetstyle_badfiles::nestedFiveThousandDeepIsTheLimit()
{
    // The root is the first level.
    QVERIFY(CWidgetStyle::initialize(m_folder.write(QLatin1String("deep.xml"), nested(4999))));
    QVERIFY(has("Deep"));
    refuses(nested(5000).replace("Deep", "Stray"));
}

void tst_widgetstyle_badfiles::fewEntitiesAreWelcome()
{
    const QByteArray content = "<!DOCTYPE root [<!ENTITY kind \"Arial\">]><root><widget type=\"7\" "
                               "name=\"Entity\"><FieldAll><font family=\"&kind;\"/></FieldAll>"
                               "</widget></root>";
    QVERIFY(CWidgetStyle::initialize(m_folder.write(QLatin1String("entity.xml"), content)));
    const WidgetStyle style = CWidgetStyle::getWidgetStyle(QLatin1String("Entity"));
    QCOMPARE(style.type, 7u);
    QCOMPARE(style.styles.at(0).font.family(), QString::fromLatin1("Arial"));
}

void tst_widgetstyle_badfiles::whatTheTreeTakesIsRead_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray manyAmps = "<root>" + QByteArray("&amp;").repeated(100000) + "</root>";
    // clang-format off
    const struct { const char* name; QByteArray content; } rows[] = {
        {"plain",               "<r/>"},
        {"prefix of the root",  "<x:r/>"},
        {"prefix inside",       "<r><y:z/></r>"},
        {"prefixed attribute",  "<r xlink:href=\"a\"/>"},
        {"prefix of nothing",   "<r xmlns:a=\"\"/>"},
        {"version 1.1",         "<?xml version=\"1.1\"?><r/>"},
        {"unknown encoding",    "<?xml version=\"1.0\" encoding=\"rot13\"?><r/>"},
        {"Latin-1 in UTF-8",    "<r><!-- Gr\xFC\xDF --></r>"},
        {"undeclared entity",   "<r>&foo;</r>"},
        {"control character",   "<r>&#1;</r>"},
        {"doubled attribute",   "<r a='1' a='2'/>"},
        {"ampersands",          manyAmps},
        {"and an entity",       "<!DOCTYPE r [<!ENTITY a 'b'>]>" + manyAmps},
        {"entity with markup",  "<!DOCTYPE r [<!ENTITY a '<b><c/></b>'>]><r>&a;&a;</r>"},
        {"open entities",       "<!DOCTYPE r [<!ENTITY a '<b>'><!ENTITY z '</b>'>]><r>&a;&z;</r>"},
        {"parameter entity",    "<!DOCTYPE r [<!ENTITY % p \"<!ENTITY a 'b'>\">%p;]><r>&a;</r>"},
        {"parameter in entity", "<!DOCTYPE r [<!ENTITY % p 'b'><!ENTITY a '%p;'>]><r>&a;</r>"},
        {"whole doctype",       "<!DOCTYPE r PUBLIC '-//A>' \"[\" [<!-- ]> --><?p ]> ?>"
                                "<!ELEMENT r (a|b)*><!ATTLIST r a CDATA ']>'>"
                                "<!NOTATION n SYSTEM '<n>'>]><r/>"},
        {"markup as text",      "<r a='>' b=\"'/>\"><![CDATA[<a>]]]]><!-- <a> > - -> --><?p <a> ? ?></r>"},
    };
    // clang-format on
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i)
        QTest::newRow(rows[i].name) << rows[i].content;
}

/// What is a document to one version of Qt may be none to another: its own tree decides.
void tst_widgetstyle_badfiles::whatTheTreeTakesIsRead()
{
    QFETCH(QByteArray, content);
    QDomDocument document;
    const bool taken = document.setContent(content);
    const QString path = m_folder.write(QLatin1String("taken.xml"), content);
    QCOMPARE(CWidgetStyle::initialize(path), taken);
    knowsOnlyTheKnown();
}

void tst_widgetstyle_badfiles::bombs_data()
{
    const QByteArray deep = QByteArray("<a>").repeated(100000);
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("deep") << "<r>" + deep;
    QTest::newRow("deep below a prefix") << "<r><y:z/>" + QByteArray("<a>").repeated(50000);
    QTest::newRow("deep below an entity") << "<r>&foo;" + deep;
    QTest::newRow("deep below a control character") << "<r>&#1;" + deep;
    QTest::newRow("deep below a doubled attribute") << "<r><b c='' c=''/>" + deep;
    QTest::newRow("deep in UTF-16") << toUtf16(QString::fromLatin1(deep.left(60000)), true, false);
    QTest::newRow("deep by entities") << deepEntities(6000);
    QTest::newRow("parentheses") << "<!DOCTYPE r [<!ELEMENT r " + QByteArray(100000, '(');
    QTest::newRow("entity that ends the document type")
        << QByteArray("<!DOCTYPE a [<!ENTITY % q ']><a>'><!ENTITY % p ' '>%q;]><a></a>");
    QTest::newRow("defaults") << "<!DOCTYPE r [<!ATTLIST a b CDATA \"" +
                                     QByteArray("a").repeated(100000) + "\">]><r>" +
                                     QByteArray("<a/>").repeated(10000) + "</r>";
    QTest::newRow("nested") << entityBomb();
    QTest::newRow("wide") << wideEntityBomb();
    QTest::newRow("crooked") << crookedEntityBomb();
    QTest::newRow("in attributes") << wideEntityBomb().replace("&a;", "<b c='&a;'/>");
    QTest::newRow("endless") << QByteArray(
        "<!DOCTYPE root [<!ENTITY a \"&b;\"><!ENTITY b \"&a;\">]>"
        "<root>&a;<widget name=\"Stray\"/></root>");
}

void tst_widgetstyle_badfiles::bombs()
{
    QFETCH(QByteArray, content);
    const int before = kiloBytes("VmRSS:");
    QFile reset(QLatin1String("/proc/self/clear_refs"));
    QVERIFY(reset.open(QIODevice::WriteOnly));
    reset.write("5"); // the peak starts anew
    reset.close();
    const clock_t start = clock(); // of this process alone, however busy the machine is
    refuses(content);
    const double seconds = static_cast<double>(clock() - start) / CLOCKS_PER_SEC;
    QVERIFY2(seconds < 1, qPrintable(QString::number(seconds)));
    const int grown = kiloBytes("VmHWM:") - before;
    QVERIFY2(grown < 64 * 1024, qPrintable(QString::number(grown)));
}

void tst_widgetstyle_badfiles::externalEntitiesAreNotRead()
{
    const QString secret = m_folder.write(QLatin1String("secret"), "Stray");
    const QByteArray content = "<!DOCTYPE root [<!ENTITY x SYSTEM \"file://" +
                               QFile::encodeName(secret) +
                               "\">]><root><widget name=\"Outer\"/>&x;</root>";
    const QString path = m_folder.write(QLatin1String("external.xml"), content);
    CWidgetStyle::initialize(path);
    CWidgetStyle::setWidgetStyle(path, QFont(QLatin1String("Courier")));
    QVERIFY(!contentOf(path).contains("Stray"));
    knowsOnlyTheKnown();
}

void tst_widgetstyle_badfiles::utf16()
{
    const QString name = QString::fromUtf8("Br\xC3\xBC\xE2\x82\xAC");
    const QString content =
        QString::fromLatin1("<?xml version=\"1.0\" encoding=\"UTF-16\"?><root><widget type=\"%1\" "
                            "name=\"%2\"/></root>");
    for (int big = 0; big < 2; ++big) {
        const QByteArray bytes = toUtf16(content.arg(16 + big).arg(name), big, true);
        QVERIFY(CWidgetStyle::initialize(m_folder.write(QLatin1String("wide.xml"), bytes)));
        QCOMPARE(CWidgetStyle::getWidgetStyle(name).type, static_cast<quint32>(16 + big));
        refuses(bytes.left(bytes.size() - 21));
    }
}

void tst_widgetstyle_badfiles::latin1()
{
    const QByteArray content = "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><root><widget "
                               "type=\"81\" name=\"Gr\xFC\xDF\"/></root>";
    QVERIFY(CWidgetStyle::initialize(m_folder.write(QLatin1String("latin1.xml"), content)));
    QCOMPARE(CWidgetStyle::getWidgetStyle(QString::fromUtf8("Gr\xC3\xBC\xC3\x9F")).type, 81u);
}

void tst_widgetstyle_badfiles::utf8WithMark()
{
    const QByteArray content = "\xEF\xBB\xBF<root><widget type=\"82\" name=\"Marked\"/></root>";
    QVERIFY(CWidgetStyle::initialize(m_folder.write(QLatin1String("marked.xml"), content)));
    QCOMPARE(CWidgetStyle::getWidgetStyle(QLatin1String("Marked")).type, 82u);
}

void tst_widgetstyle_badfiles::randomDamage()
{
    const QByteArray shipped =
        contentOf(QLatin1String(CWIDGET_SOURCE_DIR "/style/widget-style.xml"));
    QVERIFY(!shipped.isEmpty());
    quint32 random = 20;
    int refused = 0;
    for (int round = 0; round < 500; ++round) {
        QByteArray damaged = shipped;
        for (int hit = 0; hit <= round % 4; ++hit) {
            random = random * 1664525u + 1013904223u;
            const int at = static_cast<int>((random >> 8) % static_cast<quint32>(damaged.size()));
            random = random * 1664525u + 1013904223u;
            damaged[at] = static_cast<char>(random >> 24);
        }
        Messages messages;
        if (!CWidgetStyle::initialize(m_folder.write(QLatin1String("damaged.xml"), damaged)))
            ++refused;
        QCOMPARE(messages.warnings(), QStringList());
        QCOMPARE(contentOf(m_folder.path() + QLatin1String("/damaged.xml")), damaged);
    }
    QVERIFY2(refused > 50 && refused < 500, qPrintable(QString::number(refused)));
    QCOMPARE(CWidgetStyle::getWidgetStyle(QLatin1String("Known")).type, 1u);
}

QTEST_MAIN(tst_widgetstyle_badfiles)
#include "tst_widgetstyle_badfiles.moc"
