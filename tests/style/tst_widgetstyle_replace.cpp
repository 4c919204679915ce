#include "support/testing.h"

#include <QDir>
#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

using testing::contentOf;
using testing::TemporaryFolder;

namespace
{

const char styled[] = "<root><widget><FieldAll><font family=\"Old\"/></FieldAll></widget></root>";
const unsigned int nobody = 65534;

struct stat statusOf(const QString& path)
{
    struct stat status;
    if (::lstat(QFile::encodeName(path).constData(), &status) != 0)
        qFatal("%s is not there", qPrintable(path));
    return status;
}

bool rewrite(const QString& path)
{
    return CWidgetStyle::setWidgetStyle(path, QFont(QLatin1String("New")));
}

bool isNew(const QString& path)
{
    const QByteArray content = contentOf(path);
    return content.contains("family=\"New\"") && content.trimmed().endsWith("</root>");
}

QStringList filesOf(const TemporaryFolder& folder)
{
    return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

} // namespace

/// For everything that knows it by a name, a rewritten style file is still the same file.
class tst_widgetstyle_replace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void plainFileIsReplacedAsAWhole();
    void modeAndOwnerAreKept();
    void linkStaysALink();
    void otherNamesSeeTheNewContent();
    void nothingIsLeftOfALongerContent();
    void whatAFailingPowerLeftIsNoObstacle();
    void folderWhereNothingCanBeMade();
};

void tst_widgetstyle_replace::plainFileIsReplacedAsAWhole()
{
    const TemporaryFolder folder;
    const QString path = folder.write(QLatin1String("style.xml"), styled);
    QFile reader(path); // keeps the old file, which is therefore never seen half-written
    QVERIFY(reader.open(QIODevice::ReadOnly));
    QVERIFY(rewrite(path));
    QVERIFY(isNew(path));
    QCOMPARE(reader.readAll(), QByteArray(styled));
    QCOMPARE(filesOf(folder), QStringList() << QLatin1String("style.xml"));
}

void tst_widgetstyle_replace::modeAndOwnerAreKept()
{
    const TemporaryFolder folder;
    const QString path = folder.write(QLatin1String("style.xml"), styled);
    const QByteArray name = QFile::encodeName(path);
    QCOMPARE(::chmod(name.constData(), 0646), 0);
    if (::geteuid() == 0)
        QCOMPARE(::chown(name.constData(), nobody, nobody), 0);
    const struct stat before = statusOf(path);
    QVERIFY(rewrite(path));
    QVERIFY(isNew(path));
    const struct stat after = statusOf(path);
    QCOMPARE(after.st_mode, before.st_mode);
    QCOMPARE(after.st_uid, before.st_uid);
    QCOMPARE(after.st_gid, before.st_gid);
}

void tst_widgetstyle_replace::linkStaysALink()
{
    const TemporaryFolder folder;
    const TemporaryFolder other;
    const QString path = folder.write(QLatin1String("style.xml"), styled);
    const QString link = other.path() + QLatin1String("/link.xml");
    QVERIFY(QFile::link(path, link));
    QVERIFY(rewrite(link));
    QVERIFY(QFileInfo(link).isSymLink());
    QVERIFY(isNew(path));
    QCOMPARE(filesOf(folder).size() + filesOf(other).size(), 2);
}

void tst_widgetstyle_replace::otherNamesSeeTheNewContent()
{
    const TemporaryFolder folder;
    const QString path = folder.write(QLatin1String("style.xml"), styled);
    const QString other = folder.path() + QLatin1String("/other.xml");
    QCOMPARE(::link(QFile::encodeName(path).constData(), QFile::encodeName(other).constData()), 0);
    QVERIFY(rewrite(path));
    QVERIFY(isNew(path));
    QVERIFY(isNew(other));
    QCOMPARE(statusOf(path).st_ino, statusOf(other).st_ino);
}

/// A file with two names cannot be replaced, so it is written over.
void tst_widgetstyle_replace::nothingIsLeftOfALongerContent()
{
    const TemporaryFolder folder;
    const QByteArray longer = QByteArray(styled).replace("Old", QByteArray(500, 'O'));
    const QString path = folder.write(QLatin1String("style.xml"), longer);
    const QString other = folder.path() + QLatin1String("/other.xml");
    QCOMPARE(::link(QFile::encodeName(path).constData(), QFile::encodeName(other).constData()), 0);
    QVERIFY(rewrite(path));
    QVERIFY2(isNew(path), contentOf(path).constData());
    QVERIFY(contentOf(path).size() < longer.size());
}

void tst_widgetstyle_replace::whatAFailingPowerLeftIsNoObstacle()
{
    const TemporaryFolder folder;
    const QString path = folder.write(QLatin1String("style.xml"), styled);
    folder.write(QLatin1String(".style.xml.new"), "<root><wid");
    QVERIFY(rewrite(path));
    QVERIFY(isNew(path));
    QCOMPARE(filesOf(folder), QStringList() << QLatin1String("style.xml"));
}

/// The file may be written, its folder may not: it is written in place.
void tst_widgetstyle_replace::folderWhereNothingCanBeMade()
{
    const TemporaryFolder folder;
    const QString path = folder.write(QLatin1String("style.xml"), styled);
    const QByteArray name = QFile::encodeName(path);
    const QByteArray parent = QFile::encodeName(folder.path());
    const bool isRoot = ::geteuid() == 0; // root may make files everywhere
    QCOMPARE(::chmod(parent.constData(), 0555), 0);
    QCOMPARE(::chmod(name.constData(), 0666), 0);
    const ino_t before = statusOf(path).st_ino;
    if (isRoot)
        QCOMPARE(::seteuid(nobody), 0);
    const bool rewritten = rewrite(path);
    if (isRoot)
        QCOMPARE(::seteuid(0), 0);
    ::chmod(parent.constData(), 0755);
    QVERIFY(rewritten);
    QVERIFY(isNew(path));
    QCOMPARE(statusOf(path).st_ino, before);
    QCOMPARE(filesOf(folder), QStringList() << QLatin1String("style.xml"));
}

QTEST_MAIN(tst_widgetstyle_replace)
#include "tst_widgetstyle_replace.moc"
