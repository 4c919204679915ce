#include "support/rows.h"
#include "support/testing.h"

#include <QApplication>
#include <QDomDocument>
#include <QFile>

#include <unistd.h>

using testing::contentOf;
using testing::Messages;
using testing::TemporaryFolder;

namespace
{

const char styled[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<!-- head -->\n"
    "<root>\n"
    "  <widget type=\"65635\" name=\"One\">\n"
    "    <FieldName><font family=\"Arial\" size=\"14\" bold=\"true\"/></FieldName>\n"
    "    <FieldValue><font size=\"12\"/></FieldValue>\n"
    "    <FieldAll><font family=\"Arial\"/><font family=\"Second\"/>"
    "<color foreground-color=\"#ffffff\"/></FieldAll>\n"
    "  </widget>\n"
    "  <widget><FieldAll><font family=\"Unnamed\"/></FieldAll></widget>\n"
    "  <group><widget><FieldAll><font family=\"Grouped\"/></FieldAll></widget>"
    "</group>\n"
    "  <widget name=\"Two\"><FieldAll/><FieldAll><font family=\"Later\"/>"
    "</FieldAll></widget>\n"
    "</root>\n";

const char fontless[] = "<root>\r\n<widget   name=\"One\"><FieldAll><color/></FieldAll>\n"
                        "<FieldName></FieldName></widget> <widget/>\t<other><font/></other></root>";

QFont family(const char* name)
{
    return QFont(QLatin1String(name));
}

/// The families of all font elements, in document order.
QStringList families(const QString& path)
{
    QDomDocument document;
    document.setContent(contentOf(path));
    const QDomNodeList fonts = document.elementsByTagName(QLatin1String("font"));
    QStringList list;
    for (int i = 0; i < fonts.size(); ++i)
        list.append(fonts.at(i).toElement().attribute(QLatin1String("family")));
    return list;
}

/// A style file with \a count fonts, without any indentation.
QByteArray dense(int count)
{
    return "<root>" + QByteArray("<widget><FieldAll><font/></FieldAll></widget>").repeated(count) +
           "</root>";
}

} // namespace

class tst_widgetstyle_rewrite : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFontOfEveryWidgetGetsTheFamily();
    void onlyTheFamilyChanges();
    void fileIsIndentedByFour();
    void encodingIsKept();
    void tableChangesOnlyWithTheNextInitialize();
    void initializeLeavesTheFileAlone();
    void fileWithoutFontsIsUntouched();
    void sameFamilyRewritesToo();
    void missingFile();
    void unreadableXml();
    void whatCouldNotBeReadAgain_data();
    void whatCouldNotBeReadAgain();
    void endOfTheDocumentAsACharacter();
    void readOnlyFile();
    void shorterFamilyLeavesNothingOfTheLonger();
    void fullDiskPutsTheOldContentBack_data();
    void fullDiskPutsTheOldContentBack();
    void setStyleOfElements();
};

void tst_widgetstyle_rewrite::everyFontOfEveryWidgetGetsTheFamily()
{
    const TemporaryFolder folder;
    const QString path = folder.write(QLatin1String("style.xml"), styled);
    Messages messages;
    QVERIFY(CWidgetStyle::setWidgetStyle(path, family("Courier")));
    QCOMPARE(families(path), QStringList() << QLatin1String("Courier") << QLatin1String("Courier")
                                           << QLatin1String("Courier") << QLatin1String("Second")
                                           << QLatin1String("Courier") << QLatin1String("Grouped")
                                           << QLatin1String("Later"));
    QCOMPARE(messages.debugs(), QStringList());
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_widgetstyle_rewrite::onlyTheFamilyChanges()
{
    const TemporaryFolder folder;
    const QString path = folder.write(QLatin1String("style.xml"), styled);
    QFont font(QLatin1String("Courier"));
    font.setPixelSize(55);
    font.setBold(true);
    QVERIFY(CWidgetStyle::setWidgetStyle(path, font));
    QVERIFY(CWidgetStyle::initialize(path));
    const WidgetStyle style = CWidgetStyle::getWidgetStyle(QLatin1String("One"));
    QCOMPARE(style.type, 65635u);
    QCOMPARE(style.styles.size(), 3);
    QCOMPARE(style.styles.at(0).font.pixelSize(), 14);
    QVERIFY(style.styles.at(0).font.bold());
    QCOMPARE(style.styles.at(1).font.pixelSize(), 12);
    QVERIFY(!style.styles.at(1).font.bold());
    QCOMPARE(style.styles.at(2).font.pixelSize(), 9);
    QCOMPARE(style.styles.at(2).foreground, QColor(Qt::white));
    QVERIFY(contentOf(path).contains("<!-- head -->"));
    QVERIFY(contentOf(path).contains("<group>"));
}

void tst_widgetstyle_rewrite::fileIsIndentedByFour()
{
    const TemporaryFolder folder;
    const QString path = folder.write(QLatin1String("style.xml"), styled);
    QVERIFY(CWidgetStyle::setWidgetStyle(path, family("Courier")));
    const QList<QByteArray> lines = contentOf(path).split('\n');
    QVERIFY(lines.at(0).startsWith("<?xml version="));
    QVERIFY(lines.contains("<root>"));
    int seen = 0;
    for (int i = 0; i < lines.size(); ++i) {
        const testing::InRow inRow(i);
        const QByteArray line = lines.at(i);
        const int indent = line.size() - line.trimmed().size();
        const QByteArray start = line.trimmed();
        if (start.startsWith("<FieldName>") && ++seen)
            QCOMPARE(indent, 8);
        if (start.startsWith("<font") && !start.contains("Grouped") && ++seen)
            QCOMPARE(indent, 12);
        if (start.startsWith("<widget") && !lines.at(i - 1).contains("<group>") && ++seen)
            QCOMPARE(indent, 4);
    }
    QCOMPARE(seen, 1 + 6 + 3);
}

void tst_widgetstyle_rewrite::encodingIsKept()
{
    const TemporaryFolder folder;
    const QByteArray utf8 =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?><root><widget "
        "name=\"Gr\xC3\xBC\xC3\x9F\"><FieldAll><font/></FieldAll></widget></root>";
    const QByteArray latin1 = "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><root><widget "
                              "name=\"Gr\xFC\xDF\"><FieldAll><font/></FieldAll></widget></root>";
    const QByteArray contents[] = {utf8, latin1};
    for (size_t i = 0; i < sizeof contents / sizeof contents[0]; ++i) {
        const testing::InRow inRow(i);
        const QString path = folder.write(QLatin1String("style.xml"), contents[i]);
        QVERIFY(CWidgetStyle::setWidgetStyle(path, family("Courier")));
        QVERIFY(CWidgetStyle::initialize(path));
        bool ok = false;
        const QString name = QString::fromUtf8("Gr\xC3\xBC\xC3\x9F");
        const WidgetStyle style = CWidgetStyle::getWidgetStyle(name, &ok);
        QVERIFY(ok);
        QCOMPARE(style.styles.at(0).font.family(), QString::fromLatin1("Courier"));
    }
}

void tst_widgetstyle_rewrite::tableChangesOnlyWithTheNextInitialize()
{
    const TemporaryFolder folder;
    const QString path = folder.write(QLatin1String("style.xml"), styled);
    QVERIFY(CWidgetStyle::initialize(path));
    QVERIFY(CWidgetStyle::setWidgetStyle(path, family("Courier")));
    const QString one = QLatin1String("One");
    QCOMPARE(CWidgetStyle::getWidgetStyle(one).styles.at(0).font.family(),
             QString::fromLatin1("Arial"));
    QVERIFY(CWidgetStyle::initialize(path));
    QCOMPARE(CWidgetStyle::getWidgetStyle(one).styles.at(0).font.family(),
             QString::fromLatin1("Courier"));
}

void tst_widgetstyle_rewrite::initializeLeavesTheFileAlone()
{
    const TemporaryFolder folder;
    const QString path = folder.write(QLatin1String("style.xml"), styled);
    QVERIFY(CWidgetStyle::initialize(path));
    QCOMPARE(contentOf(path), QByteArray(styled));
    QVERIFY(CWidgetStyle::initialize(path));
    QCOMPARE(contentOf(path), QByteArray(styled));
}

void tst_widgetstyle_rewrite::fileWithoutFontsIsUntouched()
{
    const TemporaryFolder folder;
    const QString path = folder.write(QLatin1String("style.xml"), fontless);
    Messages messages;
    QVERIFY(!CWidgetStyle::setWidgetStyle(path, family("Courier")));
    QCOMPARE(contentOf(path), QByteArray(fontless));
    QCOMPARE(messages.debugs(), QStringList());
}

void tst_widgetstyle_rewrite::sameFamilyRewritesToo()
{
    const TemporaryFolder folder;
    const QString path =
        folder.write(QLatin1String("style.xml"),
                     "<root><widget><FieldAll><font family=\"Arial\"/></FieldAll></widget></root>");
    QVERIFY(CWidgetStyle::setWidgetStyle(path, family("Arial")));
    QVERIFY(contentOf(path).contains("\n    <widget>"));
}

void tst_widgetstyle_rewrite::missingFile()
{
    Messages messages;
    QVERIFY(!CWidgetStyle::setWidgetStyle(QLatin1String("/no/such/file.xml"), family("Courier")));
    QCOMPARE(messages.debugs(),
             QStringList() << QLatin1String("setWidgetStyle: [ widget-style.xml ]: can not open."));
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_widgetstyle_rewrite::unreadableXml()
{
    const TemporaryFolder folder;
    const QByteArray content = "<root><widget><FieldAll><font/></FieldAll></widget>";
    const QString path = folder.write(QLatin1String("style.xml"), content);
    Messages messages;
    QVERIFY(!CWidgetStyle::setWidgetStyle(path, family("Courier")));
    QCOMPARE(messages.debugs(), QStringList() << QLatin1String(
                                    "setWidgetStyle: [ widget-style.xml ]: can not parse."));
    QCOMPARE(messages.warnings(), QStringList());
    QCOMPARE(contentOf(path), content);
}

void tst_widgetstyle_rewrite::whatCouldNotBeReadAgain_data()
{
    QTest::addColumn<QByteArray>("reference");
    QTest::newRow("NUL") << QByteArray("&#0;");
    QTest::newRow("control") << QByteArray("&#1;");
    QTest::newRow("half a character") << QByteArray("&#xD800;");
    QTest::newRow("no character") << QByteArray("&#xFFFF;");
    QTest::newRow("above all planes") << QByteArray("&#x110000;");
}

/// With some versions of Qt this is a style file like any other, but one that is never rewritten.
void tst_widgetstyle_rewrite::endOfTheDocumentAsACharacter()
{
    const TemporaryFolder folder;
    const QByteArray content = "<root><widget type=\"5\" name=\"a&#xFFFE;b\"><FieldAll><font/>"
                               "</FieldAll></widget></root>";
    const QString path = folder.write(QLatin1String("style.xml"), content);
    Messages messages;
    QDomDocument document;
    QCOMPARE(CWidgetStyle::initialize(path), document.setContent(content));
    messages.clear();
    QVERIFY(!CWidgetStyle::setWidgetStyle(path, family("Courier")));
    QCOMPARE(messages.debugs(), QStringList() << QLatin1String(
                                    "setWidgetStyle: [ widget-style.xml ]: can not parse."));
    QCOMPARE(contentOf(path), content);
}

/// The parser of some versions of Qt lets such characters in; written as they are, they would make
/// the file one that no panel can start with.
void tst_widgetstyle_rewrite::whatCouldNotBeReadAgain()
{
    QFETCH(QByteArray, reference);
    const TemporaryFolder folder;
    const QByteArray content =
        "<root><widget name=\"a" + reference + "b\"><FieldAll><font/></FieldAll></widget></root>";
    const QString path = folder.write(QLatin1String("style.xml"), content);
    Messages messages;
    if (!CWidgetStyle::setWidgetStyle(path, family("Courier"))) {
        QCOMPARE(messages.debugs(), QStringList() << QLatin1String(
                                        "setWidgetStyle: [ widget-style.xml ]: can not parse."));
        QCOMPARE(contentOf(path), content);
        return;
    }
    QVERIFY(CWidgetStyle::initialize(path));
}

void tst_widgetstyle_rewrite::readOnlyFile()
{
    const TemporaryFolder folder;
    const QString path = folder.write(QLatin1String("style.xml"), styled);
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
    const uid_t user = geteuid();
    const bool isRoot = user == 0;
    if (isRoot)
        QCOMPARE(seteuid(65534), 0); // to root every file is writable
    Messages messages;
    const bool rewritten = CWidgetStyle::setWidgetStyle(path, family("Courier"));
    if (isRoot)
        QCOMPARE(seteuid(user), 0);
    QVERIFY(!rewritten);
    QCOMPARE(messages.debugs(),
             QStringList() << QLatin1String(
                 "setWidgetStyle: [ widget-style.xml ]: can not open for write."));
    QCOMPARE(messages.warnings(), QStringList());
    QCOMPARE(contentOf(path), QByteArray(styled));
}

void tst_widgetstyle_rewrite::shorterFamilyLeavesNothingOfTheLonger()
{
    const TemporaryFolder folder;
    const QString path = folder.write(QLatin1String("style.xml"), styled);
    QVERIFY(CWidgetStyle::setWidgetStyle(path, family("Courier")));
    const QByteArray wanted = contentOf(path);
    const QByteArray longName(2000, 'x');
    QVERIFY(CWidgetStyle::setWidgetStyle(path, family(longName.constData())));
    QVERIFY(contentOf(path).size() > wanted.size() + 2000);
    QVERIFY(CWidgetStyle::setWidgetStyle(path, family("Courier")));
    QCOMPARE(contentOf(path), wanted);
    QVERIFY(CWidgetStyle::initialize(path));
}

void tst_widgetstyle_rewrite::fullDiskPutsTheOldContentBack_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("free"); // bytes of the disk that nothing else takes
    QTest::newRow("beyond the file's buffer") << dense(400) << 20480;
    QTest::newRow("within the file's buffer") << dense(80) << 4096;
}

/// The file is small enough for the disk, the indented one is not.
void tst_widgetstyle_rewrite::fullDiskPutsTheOldContentBack()
{
    QFETCH(QByteArray, content);
    QFETCH(int, free);
    QVERIFY(content.size() <= free);
    const TemporaryFolder folder;
    const QByteArray disk = QFile::encodeName(folder.path());
    if (geteuid() != 0 || system("mount -t tmpfs -o size=20k none '" + disk + "' 2>/dev/null") != 0)
        CWIDGET_SKIP("making a small disk needs root");
    folder.write(QLatin1String("filler"), QByteArray(20480 - free, 'x'));
    const QString path = folder.write(QLatin1String("style.xml"), content);
    const bool rewritten = CWidgetStyle::setWidgetStyle(path, family("Courier"));
    const QByteArray left = contentOf(path);
    QCOMPARE(system("umount '" + disk + "'"), 0);
    QVERIFY(!rewritten);
    QCOMPARE(left, content);
}

void tst_widgetstyle_rewrite::setStyleOfElements()
{
    QDomDocument document;
    QVERIFY(document.setContent(QByteArray("<r><a><font family=\"x\" size=\"3\"/><font/></a><b/>"
                                           "<c><d><font/></d></c></r>")));
    const QDomElement root = document.documentElement();
    QVERIFY(!CWidgetStyle::setStyle(QDomElement(), family("Courier")));
    QVERIFY(!CWidgetStyle::setStyle(root.firstChildElement(QLatin1String("b")), family("Courier")));
    QVERIFY(!CWidgetStyle::setStyle(root.firstChildElement(QLatin1String("c")), family("Courier")));
    const QDomElement a = root.firstChildElement(QLatin1String("a"));
    QVERIFY(CWidgetStyle::setStyle(a, family("Courier")));
    const QDomElement font = a.firstChildElement();
    QCOMPARE(font.attribute(QLatin1String("family")), QString::fromLatin1("Courier"));
    QCOMPARE(font.attribute(QLatin1String("size")), QString::fromLatin1("3"));
    QVERIFY(!font.nextSiblingElement().hasAttribute(QLatin1String("family")));
}

QTEST_MAIN(tst_widgetstyle_rewrite)
#include "tst_widgetstyle_rewrite.moc"
