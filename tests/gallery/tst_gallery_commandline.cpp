#include "support/testing.h"

#include <QProcess>

namespace
{

const int patience = 30000; // ms

/// What the gallery prints and returns on a machine without a display.
struct Run {
    explicit Run(const QStringList& arguments)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QLatin1String("DISPLAY"));
        environment.remove(QLatin1String("WAYLAND_DISPLAY"));
        environment.remove(QLatin1String("QT_QPA_PLATFORM"));
        process.setProcessEnvironment(environment);
        process.start(QLatin1String(GALLERY), arguments);
        ended = process.waitForFinished(patience) && process.exitStatus() == QProcess::NormalExit;
        if (!ended)
            process.kill();
        exitCode = process.exitCode();
        output = QString::fromLocal8Bit(process.readAllStandardOutput());
        errors = QString::fromLocal8Bit(process.readAllStandardError());
    }

    bool ended;
    int exitCode;
    QString output;
    QString errors;
};

} // namespace

class tst_gallery_commandline : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runs_data();
    void runs();
    void shotsNeedNoDisplay();
};

void tst_gallery_commandline::runs_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("errors");
    const struct {
        const char* arguments;
        int exitCode;
        const char* output;
        const char* errors;
    } rows[] = {
        // clang-format off
        {"--help",                        0, "usage: quorlin-gallery", ""},
        {"--screen lists --help",         0, "usage: quorlin-gallery", ""},
        {"--platform offscreen --bogus",  2, "", "unknown option: --bogus"},
        {"--screen bogus",                2, "", "no such screen: bogus"},
        {"--style",                       2, "", "--style needs a value"},
        {"--monkey many",                 2, "", "not a number of steps from 2 up: many"},
        {"--monkey 1",                    2, "", "not a number of steps from 2 up: 1"},
        {"--monkey 9 --seed some",        2, "", "not a number: some"},
        {"--monkey 9",                    1, "", "There is no display."},
        {"--screen lists",                1, "", "There is no display."},
        {"",                              1, "", "There is no display."},
        // clang-format on
    };
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i)
        QTest::newRow(rows[i].arguments)
            << QString::fromLatin1(rows[i].arguments) << rows[i].exitCode
            << QString::fromLatin1(rows[i].output) << QString::fromLatin1(rows[i].errors);
}

void tst_gallery_commandline::runs()
{
    QFETCH(QString, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, output);
    QFETCH(QString, errors);
    const Run run(arguments.isEmpty() ? QStringList() : arguments.split(QLatin1Char(' ')));
    QVERIFY(run.ended); // it serves nobody
    QCOMPARE(run.exitCode, exitCode);
    QCOMPARE(run.output.left(output.size()), output);
    QCOMPARE(run.output.isEmpty(), output.isEmpty());
    if (errors.isEmpty())
        QCOMPARE(run.errors, QString());
    QVERIFY2(run.errors.contains(errors), qPrintable(run.errors));
}

void tst_gallery_commandline::shotsNeedNoDisplay()
{
    const testing::TemporaryFolder folder;
    const Run run(QStringList() << QLatin1String("--shots") << folder.path());
    QVERIFY(run.ended);
    QCOMPARE(run.exitCode, 0);
    QVERIFY(QFile::exists(folder.path() + QLatin1String("/lists.png")));
}

QTEST_MAIN(tst_gallery_commandline)
#include "tst_gallery_commandline.moc"
