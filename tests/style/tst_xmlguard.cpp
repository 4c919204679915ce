#include "style/xmlguard_p.h"

#include "style/qtcompat.h"
#include "support/testing.h"

namespace
{

const int endless = -1; // in the tables: beyond every limit

QString text(const char* content)
{
    return QString::fromUtf8(content);
}

QByteArray wide(const QString& text, int width, bool bigEndian)
{
    QByteArray bytes;
    for (int i = 0; i < text.size(); ++i) {
        QByteArray unit(width, '\0');
        unit[bigEndian ? width - 1 : 0] = static_cast<char>(text.at(i).unicode() & 0xFF);
        unit[bigEndian ? width - 2 : 1] = static_cast<char>(text.at(i).unicode() >> 8);
        bytes += unit;
    }
    return bytes;
}

} // namespace

class tst_xmlguard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void depth_data();
    void depth();
    void expansion_data();
    void expansion();
    void limits();
    void longChainsOfEntities();
    void encodings_data();
    void encodings();
};

void tst_xmlguard::depth_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<int>("depth");
    // clang-format off
    const struct { const char* name; int depth; const char* content; } rows[] = {
        {"nothing",               0, ""},
        {"text",                  0, "a > b"},
        {"root",                  1, "<r/>"},
        {"siblings",              2, "<r><a/><a></a><a b='c'/></r>"},
        {"nested",                3, "<r><a><b/></a></r>"},
        {"never closed",          3, "<r><a><b>"},
        {"blanks in tags",        3, "<r ><a\n\tb = 'c' ><b /></a ></r >"},
        {"slash in a value",      3, "<r><a b='/'><c/></a></r>"},
        {"end in values",         2, "<r><a b='>' c=\"'/>\"/><a/></r>"},
        {"stray end",             2, "</r></r></r><r><a/></r>"},
        {"comment",               2, "<r><!-- <a><b><c> - -> > --><a/></r>"},
        {"shortest comments",     2, "<r><!----><a/><!--><b><b>--></r>"},
        {"instruction",           2, "<?xml?><r><?p <a><b> ? > ?><a/></r>"},
        {"CDATA",                 2, "<r><![CDATA[<a><b>]]&gt;]]]><a/></r>"},
        {"references",            1, "<r>&lt;a>&#60;a>&amp;</r>"},
        {"comment never closed",  4, "<r><!-- <a><b>"},
        {"comment with dashes",   5, "<r><!-- -- <a><b><c></c></b></a></r>"},
        {"CDATA never closed",    4, "<r><![CDATA[<a><b>"},
        {"less-than in a value",  4, "<r><a b='<c></c><d></d>'></a></r>"},
        {"unknown declaration",   4, "<r><!OTHER><a></a><b></b></r>"},
        {"lone ampersand",        3, "<r>& <a></a><b></b></r>"},
        {"doctype",               2, "<!DOCTYPE r><r><a/></r>"},
        {"doctype in full",       2, "<!DOCTYPE r SYSTEM \"<>[\" [<!ELEMENT r ANY><!-- <a> ]> --><?p ]>?> ]  ><r><a/></r>"},
        {"parentheses",           4, "<!DOCTYPE r [<!ELEMENT r ((a|(b|(c)))|d)>]><r/>"},
        {"entity",                3, "<!DOCTYPE r [<!ENTITY e '<a/>'>]><r><b>&e;</b></r>"},
        {"entity in an entity",   5, "<!DOCTYPE r [<!ENTITY f '<a>&e;</a>'><!ENTITY e '<b><c/></b>'>]><r><d>&f;</d></r>"},
        {"entity never used",     1, "<!DOCTYPE r [<!ENTITY e '<a><b/></a>'>]><r/>"},
        {"later declaration",     3, "<!DOCTYPE r [<!ENTITY e ''><!ENTITY e '<a><b/></a>'>]><r>&e;</r>"},
        {"characters of entity",  3, "<!DOCTYPE r [<!ENTITY e '&#60;a>&#x3C;b/>&#60;/a>'>]><r>&e;</r>"},
        {"characters twice",      1, "<!DOCTYPE r [<!ENTITY e '&#38;#60;a>&#38;lt;a>'>]><r>&e;</r>"},
        {"entity opens",          7, "<!DOCTYPE r [<!ENTITY e '<a>'>]><r>&e;&e;&e;"},
        {"entity closes",         6, "<!DOCTYPE r [<!ENTITY e '</a>'>]><r><a>&e;<a>&e;<a>&e;</r>"},
        {"declared by another",   3, "<!DOCTYPE r [<!ENTITY % p \"<!ENTITY e '<a><b/></a>'>\">%p;]><r>&e;</r>"},
    };
    // clang-format on
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i)
        QTest::newRow(rows[i].name) << text(rows[i].content) << rows[i].depth;
}

void tst_xmlguard::depth()
{
    QFETCH(QString, content);
    QFETCH(int, depth);
    QCOMPARE(static_cast<int>(xmlguard::cost(content).depth), depth);
}

void tst_xmlguard::expansion_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<int>("expansion");
    // clang-format off
    const struct { const char* name; int expansion; const char* content; } rows[] = {
        {"none",                    0, "<r>&amp;&#65;&undeclared;</r>"},
        {"once",                    3, "<!DOCTYPE r [<!ENTITY e 'abc'>]><r>&e;</r>"},
        {"content and value",       9, "<!DOCTYPE r [<!ENTITY e 'abc'>]><r a='&e;'>&e;&amp;&e;</r>"},
        {"never used",              3, "<!DOCTYPE r [<!ENTITY e 'abc'>]><r/>"},
        {"in CDATA and comments",   3, "<!DOCTYPE r [<!ENTITY e 'abc'>]><r><![CDATA[&e;]]><!--&e;&e;--><?p &e;&e;?></r>"},
        {"nested",                  6, "<!DOCTYPE r [<!ENTITY e 'abc'><!ENTITY f '&e;&e;'>]><r>&f;</r>"},
        {"characters",              4, "<!DOCTYPE r [<!ENTITY e '&#65;&#x41;'>]><r>&e;&e;</r>"},
        {"parameter",               6, "<!DOCTYPE r [<!ENTITY % p 'ab'><!ENTITY e 'c%p;'>]><r>&e;&e;</r>"},
        {"unknown parameter",       1, "<!DOCTYPE r [<!ENTITY e 'c%p;'>]><r>&e;</r>"},
        {"default",                 9, "<!DOCTYPE r [<!ATTLIST a b CDATA 'xyz'>]><r><a/><a></a><c/></r>"},
        {"itself",            endless, "<!DOCTYPE r [<!ENTITY e '&e;'>]><r/>"},
        {"each other",        endless, "<!DOCTYPE r [<!ENTITY e '&f;'><!ENTITY f '&e;'>]><r/>"},
        {"ends in a tag",     endless, "<!DOCTYPE r [<!ENTITY e '<a'>]><r>&e;></r>"},
        {"ends in a comment", endless, "<!DOCTYPE r [<!ENTITY e '<!--'>]><r>&e;--></r>"},
        {"ends in a name",    endless, "<!DOCTYPE r [<!ENTITY e '&#38;f'>]><r>&e;;</r>"},
        {"markup by parameter", endless, "<!DOCTYPE r [<!ENTITY % p '<a/>'><!ENTITY e '%p;'>]><r>&e;</r>"},
        {"doctype never closed", endless, "<!DOCTYPE r [<!ENTITY e 'abc'> <r>&e;</r>"},
        {"unknown declaration", endless, "<!DOCTYPE r [<CROOKED>]><r/>"},
        {"parameter in itself", endless, "<!DOCTYPE r [<!ENTITY % p '&#37;p;'>%p;]><r/>"},
        {"parameter with an end", endless, "<!DOCTYPE r [<!ENTITY % p ']>'>%p;]><r/>"},
    };
    // clang-format on
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i)
        QTest::newRow(rows[i].name) << text(rows[i].content) << rows[i].expansion;
}

void tst_xmlguard::expansion()
{
    QFETCH(QString, content);
    QFETCH(int, expansion);
    const qint64 found = xmlguard::cost(content).expansion;
    if (expansion == endless)
        QVERIFY2(found > xmlguard::maximumExpansion, qPrintable(QString::number(found)));
    else
        QCOMPARE(static_cast<int>(found), expansion);
}

void tst_xmlguard::limits()
{
    QVERIFY(xmlguard::isHarmless(text("<a>").repeated(xmlguard::maximumDepth)));
    QVERIFY(!xmlguard::isHarmless(text("<a>").repeated(xmlguard::maximumDepth + 1)));
    const int size = 4096;
    const int uses = static_cast<int>(xmlguard::maximumExpansion / size);
    const QString head = text("<!DOCTYPE r [<!ENTITY e '%1'>]><r>").arg(QString(size, QChar('x')));
    QVERIFY(xmlguard::isHarmless(head + text("&e;").repeated(uses)));
    QVERIFY(!xmlguard::isHarmless(head + text("&e;").repeated(uses + 1)));
}

void tst_xmlguard::longChainsOfEntities()
{
    QString content = text("<!DOCTYPE r [");
    for (int i = 0; i < 50000; ++i)
        content += text("<!ENTITY e%1 'a&e%2;'>").arg(i).arg(i + 1);
    content += text("<!ENTITY e50000 '<a/>'>]><r>&e0;</r>");
    const xmlguard::Cost needed = xmlguard::cost(content);
    QCOMPARE(static_cast<int>(needed.depth), 2);
    QVERIFY(needed.expansion > 50000 && needed.expansion < 20 * 50000);
}

void tst_xmlguard::encodings_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QString plain = QString::fromUtf8("<r><a b=\"\xE3\xB0\x80\xC4\xBC\"/></r>"); // 3C00, 013C
    const QString declared = text("<?xml version=\"1.0\" encoding=\"%1\"?><r><a/></r>");
    const QString mark(QChar(0xFEFF));
    QTest::newRow("UTF-8") << plain.toUtf8();
    QTest::newRow("UTF-8 with mark") << (mark + plain).toUtf8();
    QTest::newRow("UTF-16LE") << wide(plain, 2, false);
    QTest::newRow("UTF-16BE") << wide(plain, 2, true);
    QTest::newRow("UTF-16LE with mark") << wide(mark + plain, 2, false);
    QTest::newRow("UTF-16BE with mark") << wide(mark + plain, 2, true);
    QTest::newRow("UTF-32LE with mark") << wide(mark + plain, 4, false);
    QTest::newRow("UTF-32BE with mark") << wide(mark + plain, 4, true);
    QTest::newRow("UTF-16, declared") << wide(mark + declared.arg(text("UTF-16")), 2, true);
    QTest::newRow("Latin-1, declared") << declared.arg(text("ISO-8859-1")).toLatin1();
    QTest::newRow("single quotes") << declared.arg(text("UTF-8")).replace('"', '\'').toLatin1();
    QTest::newRow("unknown") << declared.arg(text("rot13")).toLatin1();
}

void tst_xmlguard::encodings()
{
    QFETCH(QByteArray, bytes);
    QCOMPARE(static_cast<int>(xmlguard::cost(qtcompat::xmlText(bytes)).depth), 2);
    for (int size = 0; size < bytes.size(); ++size)
        QVERIFY(xmlguard::cost(qtcompat::xmlText(bytes.left(size))).depth <= 4);
}

QTEST_MAIN(tst_xmlguard)
#include "tst_xmlguard.moc"
