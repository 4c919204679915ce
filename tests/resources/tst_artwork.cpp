#include "support/testing.h"

#include <QDir>
#include <QProcess>

namespace
{

const int patience = 60000; // ms

QString latin(const char* text)
{
    return QString::fromLatin1(text);
}

} // namespace

class tst_artwork : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawsThePicturesOfTheCollection();
    void writesWhatCanBeRead();
    void wrongArgumentsAreRefused_data();
    void wrongArgumentsAreRefused();
};

/// The pictures were drawn by Qt 5 on this kind of processor. Others may round differently when
/// they smooth a line.
void tst_artwork::drawsThePicturesOfTheCollection()
{
#if CWIDGET_QT_MAJOR == 5 && defined(__x86_64__)
    const testing::TemporaryFolder folder;
    const QString hashes = folder.path() + latin("/hashes.txt");
    QProcess artwork;
    artwork.start(latin(ARTWORK), QStringList() << folder.path() << latin("--hashes") << hashes);
    QVERIFY(artwork.waitForFinished(patience));
    QCOMPARE(artwork.exitCode(), 0);
    QCOMPARE(testing::contentOf(hashes),
             testing::contentOf(latin(CWIDGET_SOURCE_DIR "/tests/resources/pictures.txt")));
#else
    CWIDGET_SKIP("the pictures were drawn by Qt 5 on x86-64");
#endif
}

void tst_artwork::writesWhatCanBeRead()
{
    const testing::TemporaryFolder folder;
    QProcess artwork;
    artwork.start(latin(ARTWORK), QStringList(folder.path()));
    QVERIFY(artwork.waitForFinished(patience));
    const QStringList names = QDir(folder.path()).entryList(QDir::Files);
    QCOMPARE(names.size(), 73);
    for (int i = 0; i < names.size(); ++i) {
        const QImage drawn(folder.path() + QLatin1Char('/') + names.at(i));
        const QImage kept(latin(":/images/") + names.at(i));
        QVERIFY2(!drawn.isNull() && drawn.size() == kept.size(), qPrintable(names.at(i)));
    }
}

void tst_artwork::wrongArgumentsAreRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("none") << QStringList() << 2;
    QTest::newRow("no file") << (QStringList() << latin("/tmp") << latin("--hashes")) << 2;
    QTest::newRow("unknown") << (QStringList() << latin("/tmp") << latin("--x") << latin("y")) << 2;
    QTest::newRow("no folder") << QStringList(latin("/proc/artwork")) << 1;
}

void tst_artwork::wrongArgumentsAreRefused()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QProcess artwork;
    artwork.start(latin(ARTWORK), arguments);
    QVERIFY(artwork.waitForFinished(patience));
    QCOMPARE(artwork.exitCode(), exitCode);
}

QTEST_MAIN(tst_artwork)
#include "tst_artwork.moc"
