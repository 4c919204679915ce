#include "support/testing.h"

#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

using testing::contentOf;
using testing::TemporaryFolder;

// The program as a user runs it.

namespace
{

const char good[] = "<style>\n"
                    "  <widget type=\"65635\" name=\"CLabel\"><FieldAll>\n"
                    "    <font family=\"Liberation Sans\" size=\"14\" bold=\"true\"/>\n"
                    "  </FieldAll></widget>\n"
                    "</style>\n";
const char warned[] = "<style>\n"
                      "  <widget type=\"65635\" name=\"CLable\"><FieldAll>\n"
                      "    <font family=\"Liberation Sans\" size=\"14\"/>\n"
                      "  </FieldAll></widget>\n"
                      "</style>\n";
const char faulty[] = "<style>\n"
                      "  <widget type=\"65635\" name=\"CLabel\"><FieldAll>\n"
                      "    <font family=\"Liberation Sans\" size=\"tall\"/>\n"
                      "  </FieldAll></widget>\n"
                      "</style>\n";

struct Result {
    int status;
    QString output;
    QString errors;
};

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

} // namespace

class tst_styletool : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void exitStatus_data();
    void exitStatus();
    void findingsAreLines();
    void findingsAsJson();
    void nothingToSay();
    void showPrintsTheTable();
    void showOfABrokenFile();
    void fontRewritesTheFile();
    void fontOfAFileWithoutFonts();
    void previewDrawsEveryClass();
    void previewFollowsTheFile();
    void needsNoDisplay();
    void version();
    void helpNamesEveryOptionOfTheManual();
    void completions_data();
    void completions();

private:
    Result run(const QStringList& arguments);
    QString path(const char* name) const;

    TemporaryFolder m_folder;
};

void tst_styletool::init()
{
    m_folder.write(QLatin1String("good.xml"), good);
    m_folder.write(QLatin1String("warned.xml"), warned);
    m_folder.write(QLatin1String("faulty.xml"), faulty);
    m_folder.write(QLatin1String("broken.xml"), "<style>");
}

QString tst_styletool::path(const char* name) const
{
    return m_folder.path() + QLatin1Char('/') + QLatin1String(name);
}

Result tst_styletool::run(const QStringList& arguments)
{
    QProcess tool;
    tool.setWorkingDirectory(m_folder.path());
    tool.start(QLatin1String(STYLE_TOOL), arguments);
    if (!tool.waitForFinished(60000) || tool.exitStatus() != QProcess::NormalExit)
        qFatal("cwidget-style did not end");
    const Result result = {tool.exitCode(), QString::fromLocal8Bit(tool.readAllStandardOutput()),
                           QString::fromLocal8Bit(tool.readAllStandardError())};
    return result;
}

void tst_styletool::exitStatus_data()
{
    QTest::addColumn<int>("expected");
    const struct {
        const char* arguments;
        int expected;
    } calls[] = {
        // clang-format off
        {"check good.xml", 0},
        {"check warned.xml", 0},
        {"check good.xml warned.xml", 0},
        {"check --strict good.xml", 0},
        {"check --strict warned.xml", 1},
        {"check good.xml --strict", 0},
        {"check faulty.xml", 1},
        {"check faulty.xml good.xml", 1},
        {"check broken.xml", 1},
        {"check missing.xml", 2},
        {"check missing.xml faulty.xml", 2},
        {"check faulty.xml missing.xml", 2},
        {"check .", 2},
        {"check /dev/zero", 2},
        {"check --format=json good.xml", 0},
        {"check --format=json faulty.xml", 1},
        {"check --format=json missing.xml", 2},
        {"check --format=xml good.xml", 2},
        {"check", 2},
        {"show good.xml", 0},
        {"show broken.xml", 2},
        {"show missing.xml", 2},
        {"show", 2},
        {"show good.xml good.xml", 2},
        {"font good.xml", 2},
        {"font missing.xml Arial", 2},
        {"font broken.xml Arial", 2},
        {"preview good.xml", 2},
        {"preview missing.xml -o pictures", 2},
        {"preview good.xml -o good.xml/pictures", 1},
        {"polish good.xml", 2},
        {"--polish", 2},
        {"--help", 0},
        {"--version", 0},
        // clang-format on
    };
    for (const auto& call : calls)
        QTest::newRow(call.arguments) << call.expected;
    QTest::newRow("") << 2;
}

void tst_styletool::exitStatus()
{
    QFETCH(int, expected);
    const QString line = QLatin1String(QTest::currentDataTag());
    const Result result = run(line.isEmpty() ? QStringList() : line.split(QLatin1Char(' ')));
    QCOMPARE(result.status, expected);
    if (expected == 2) // and never without a word
        QVERIFY(!result.errors.isEmpty() || !result.output.isEmpty());
}

void tst_styletool::findingsAreLines()
{
    const Result result = run(words("check faulty.xml warned.xml missing.xml"));
    QCOMPARE(result.output,
             QString::fromLatin1("faulty.xml:3:36: error: size \"tall\" is no decimal number: 9 "
                                 "pixels are taken\n"
                                 "warned.xml:2:24: warning: no class of the library reads "
                                 "\"CLable\": the nearest name is \"CLabel\"\n"
                                 "missing.xml: error: cannot be read\n"));
    QCOMPARE(result.errors, QString());
}

void tst_styletool::findingsAsJson()
{
    const Result result = run(words("check --format=json faulty.xml good.xml warned.xml"));
    const QJsonArray findings = QJsonDocument::fromJson(result.output.toUtf8()).array();
    QCOMPARE(findings.size(), 2);
    const QJsonObject first = findings.at(0).toObject();
    QCOMPARE(first.value(QLatin1String("file")).toString(), QString::fromLatin1("faulty.xml"));
    QCOMPARE(first.value(QLatin1String("line")).toInt(), 3);
    QCOMPARE(first.value(QLatin1String("column")).toInt(), 36);
    QCOMPARE(first.value(QLatin1String("severity")).toString(), QString::fromLatin1("error"));
    QCOMPARE(first.value(QLatin1String("id")).toString(), QString::fromLatin1("bad-size"));
    QVERIFY(first.value(QLatin1String("text")).toString().contains(QLatin1String("\"tall\"")));
    QCOMPARE(first.size(), 6);
    QCOMPARE(findings.at(1).toObject().value(QLatin1String("severity")).toString(),
             QString::fromLatin1("warning"));
}

void tst_styletool::nothingToSay()
{
    QCOMPARE(run(words("check good.xml")).output, QString());
    QCOMPARE(run(words("check --format=json good.xml")).output, QString::fromLatin1("[]\n"));
}

void tst_styletool::showPrintsTheTable()
{
    m_folder.write(QLatin1String("two.xml"),
                   "<r><widget name=\"CParmLabel\" type=\"7\"><FieldName><font size=\"12\" "
                   "family=\"A\"/><color background-color=\"#102030\"/></FieldName><FieldValue/>"
                   "</widget><widget name=\"CLabel\" type=\"x\"/></r>");
    const Result result = run(words("show two.xml"));
    QVERIFY2(result.output.startsWith(QLatin1String(
                 "CLabel (type 0)\n"
                 "CParmLabel (type 7)\n"
                 "  FieldName: font \"A\", 12 px, normal; foreground none; background #102030\n"
                 "  FieldValue: font \"")),
             qPrintable(result.output));
    QVERIFY(result.output.endsWith(
        QLatin1String("the default size, normal; foreground none; background none\n")));
}

void tst_styletool::showOfABrokenFile()
{
    const Result result = run(words("show broken.xml"));
    QCOMPARE(result.output, QString());
    QCOMPARE(result.errors, QString::fromLatin1("cwidget-style: broken.xml: cannot be read\n"));
}

void tst_styletool::fontRewritesTheFile()
{
    const Result result = run(QStringList() << QLatin1String("font") << path("good.xml")
                                            << QLatin1String("DejaVu Sans Mono"));
    QCOMPARE(result.status, 0);
    QCOMPARE(result.errors, QString());
    QVERIFY(CWidgetStyle::initialize(path("good.xml")));
    const WidgetStyle style = CWidgetStyle::getWidgetStyle(QLatin1String("CLabel"));
    QCOMPARE(style.styles.size(), 1);
    QCOMPARE(style.styles.at(0).font.family(), QString::fromLatin1("DejaVu Sans Mono"));
    QCOMPARE(style.styles.at(0).font.pixelSize(), 14);
    QVERIFY(style.styles.at(0).font.bold());
}

void tst_styletool::fontOfAFileWithoutFonts()
{
    const QByteArray content = "<style><widget name=\"CLabel\"/></style>";
    m_folder.write(QLatin1String("plain.xml"), content);
    QCOMPARE(run(words("font plain.xml Arial")).status, 1);
    QCOMPARE(contentOf(path("plain.xml")), content);
}

void tst_styletool::previewDrawsEveryClass()
{
    const Result result = run(words("preview good.xml -o pictures/new"));
    QCOMPARE(result.status, 0);
    const QDir pictures(path("pictures/new"));
    const QStringList names = pictures.entryList(QDir::Files, QDir::Name);
    QCOMPARE(names.size(), 27);
    QCOMPARE(result.output.count(QLatin1Char('\n')), names.size());
    for (int i = 0; i < names.size(); ++i) {
        const QImage image(pictures.filePath(names.at(i)));
        QVERIFY2(image.width() >= 20 && image.height() >= 20, qPrintable(names.at(i)));
        bool isPlain = true;
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y)
                isPlain = isPlain && image.pixel(x, y) == image.pixel(0, 0);
        }
        QVERIFY2(!isPlain, qPrintable(names.at(i)));
    }
}

void tst_styletool::previewFollowsTheFile()
{
    QCOMPARE(run(words("preview good.xml -o as-good")).status, 0);
    QCOMPARE(run(words("preview warned.xml -o as-warned")).status, 0);
    QVERIFY(QImage(path("as-good/CLabel.png")) != QImage(path("as-warned/CLabel.png")));
    QVERIFY(QImage(path("as-good/CProgressBar.png")) == QImage(path("as-warned/CProgressBar.png")));
}

void tst_styletool::needsNoDisplay()
{
    QProcess tool;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String("QT_QPA_PLATFORM"), QLatin1String("xcb"));
    environment.remove(QLatin1String("DISPLAY"));
    tool.setProcessEnvironment(environment);
    tool.start(QLatin1String(STYLE_TOOL), QStringList()
                                              << QLatin1String("check") << path("good.xml"));
    QVERIFY(tool.waitForFinished(60000));
    QCOMPARE(tool.exitStatus(), QProcess::NormalExit);
    QCOMPARE(tool.exitCode(), 0);
}

void tst_styletool::version()
{
    QCOMPARE(run(words("--version")).output,
             QString::fromLatin1("cwidget-style " STYLE_TOOL_VERSION "\n"));
    const QByteArray manual = contentOf(QLatin1String(CWIDGET_SOURCE_DIR "/man/cwidget-style.1"));
    QVERIFY(manual.contains("quorlin-cwidget " STYLE_TOOL_VERSION));
}

void tst_styletool::helpNamesEveryOptionOfTheManual()
{
    const QString help = run(words("--help")).output;
    QByteArray manual = contentOf(QLatin1String(CWIDGET_SOURCE_DIR "/man/cwidget-style.1"));
    manual.replace("\\-", "-");
    const QStringList all =
        words("check show font preview --strict --format --ignore-fonts --output --help --version");
    for (int i = 0; i < all.size(); ++i) {
        QVERIFY2(help.contains(all.at(i)), qPrintable(all.at(i)));
        QVERIFY2(manual.contains(all.at(i).toLatin1()), qPrintable(all.at(i)));
    }
}

void tst_styletool::completions_data()
{
    QTest::addColumn<QString>("expected");
    const struct {
        const char* line;
        const char* expected;
    } lines[] = {
        // clang-format off
        {"", "check,font,preview,show"},
        {"s", "show"},
        {"-", "--help,--version"},
        {"check -", "--format,--ignore-fonts,--strict"},
        {"check --format = j", "json"},
        {"check g", "good.xml"},
        {"check --strict good.xml w", "warned.xml"},
        {"show f", "faulty.xml"},
        {"preview g", "good.xml"},
        {"preview good.xml -", "--output,-o"},
        {"preview good.xml -o pic", "pictures"},
        {"font w", "warned.xml"},
        {"font warned.xml Liberation", "Liberation Mono,Liberation Sans,Liberation Sans Narrow,"
                                       "Liberation Serif"},
        {"polish g", ""},
        // clang-format on
    };
    for (const auto& row : lines)
        QTest::newRow(row.line) << QString::fromLatin1(row.expected);
}

/// What bash would offer for the last word of the line.
void tst_styletool::completions()
{
    QFETCH(QString, expected);
    QDir(m_folder.path()).mkpath(QLatin1String("pictures"));
    QProcess bash;
    bash.setWorkingDirectory(m_folder.path());
    QStringList arguments;
    arguments << QLatin1String("-c")
              << QLatin1String("source \"$0\" && COMP_WORDS=(cwidget-style \"$@\") && "
                               "COMP_CWORD=$# && _cwidget_style && printf '%s\\n' "
                               "\"${COMPREPLY[@]}\"")
              << QLatin1String(CWIDGET_SOURCE_DIR "/tools/cwidget-style/completion.bash")
              << QString::fromLatin1(QTest::currentDataTag()).split(QLatin1Char(' '));
    bash.start(QLatin1String("bash"), arguments);
    QVERIFY(bash.waitForFinished(60000));
    QCOMPARE(bash.readAllStandardError(), QByteArray());
    QStringList offered =
        QString::fromLocal8Bit(bash.readAllStandardOutput()).trimmed().split(QLatin1Char('\n'));
    offered.sort();
    QCOMPARE(offered.join(QLatin1String(",")), expected);
}

QTEST_MAIN(tst_styletool)
#include "tst_styletool.moc"
