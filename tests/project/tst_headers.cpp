#include "support/testing.h"

#include "style/version.h"

#include <QDir>
#include <QProcess>
#include <QSet>

namespace
{

QString forwardingFolder()
{
    return QLatin1String(CWIDGET_BINARY_DIR "/forwarding");
}

/// The dynamic symbols that the library defines, demangled.
QStringList exportedSymbols()
{
    QProcess nm;
    nm.start(QLatin1String(NM), QStringList()
                                    << QLatin1String("-DC") << QLatin1String("--defined-only")
                                    << QLatin1String(CWIDGET_LIBRARY));
    if (!nm.waitForFinished(60000) || nm.exitCode() != 0)
        qFatal("cannot list the symbols of the library");
    QStringList symbols;
    const QStringList lines =
        QString::fromLatin1(nm.readAllStandardOutput()).split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        const QString symbol = lines.at(i).section(QLatin1Char(' '), 2);
        if (!symbol.isEmpty())
            symbols.append(symbol);
    }
    return symbols;
}

/// The class that a symbol belongs to, as far as its text tells.
QString ownerOf(QString symbol)
{
    const char* const prefixes[] = {"vtable for ", "typeinfo for ", "typeinfo name for ",
                                    "non-virtual thunk to ", "guard variable for "};
    for (size_t i = 0; i < sizeof prefixes / sizeof prefixes[0]; ++i) {
        if (symbol.startsWith(QLatin1String(prefixes[i])))
            symbol = symbol.mid(static_cast<int>(qstrlen(prefixes[i])));
    }
    return symbol.section(QLatin1Char('('), 0, 0).section(QLatin1String("::"), 0, 0);
}

} // namespace

class tst_headers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyClassHasItsForwardingHeader();
    void everyClassIsOnTheListOfThePackagesTest();
    void onlyTheClassesAreExported();
    void libraryHasItsSoname();
    void versionIsTheSameEverywhere();
};

void tst_headers::everyClassHasItsForwardingHeader()
{
    const QStringList names = QDir(forwardingFolder()).entryList(QDir::Files);
    const QStringList wanted = QString::fromLatin1(CWIDGET_CLASSES).split(QLatin1Char(' '));
    QVERIFY(wanted.size() >= 8);
    QCOMPARE(names.size(), wanted.size());
    for (int i = 0; i < wanted.size(); ++i) {
        const QByteArray content =
            testing::contentOf(forwardingFolder() + QLatin1Char('/') + wanted.at(i));
        QVERIFY2(content.startsWith("#include \""), qPrintable(wanted.at(i)));
        const QString header = QString::fromLatin1(content).section(QLatin1Char('"'), 1, 1);
        const QByteArray declaration = "CWIDGET_EXPORT " + wanted.at(i).toLatin1();
        const QByteArray text = testing::contentOf(header);
        QVERIFY2(text.contains("class " + declaration), qPrintable(wanted.at(i)));
    }
}

void tst_headers::everyClassIsOnTheListOfThePackagesTest()
{
    QStringList built = QString::fromLatin1(CWIDGET_CLASSES).split(QLatin1Char(' '));
    built.sort();
    const QByteArray list =
        testing::contentOf(QLatin1String(CWIDGET_SOURCE_DIR "/tests/package/classes.txt"));
    QCOMPARE(QString::fromLatin1(list).trimmed(), built.join(QLatin1String("\n")));
}

void tst_headers::onlyTheClassesAreExported()
{
#if defined(__SANITIZE_ADDRESS__)
    CWIDGET_SKIP("the sanitizers add symbols of their own");
#endif
    QSet<QString> owners;
    const QStringList classes = QString::fromLatin1(CWIDGET_CLASSES).split(QLatin1Char(' '));
    for (int i = 0; i < classes.size(); ++i)
        owners.insert(classes.at(i));
    owners.insert(QLatin1String("getStyle"));
    owners.insert(QLatin1String("QDeviceWatcherPrivate")); // for the tests
    const QStringList symbols = exportedSymbols();
    QVERIFY(symbols.size() > 100);
    for (int i = 0; i < symbols.size(); ++i) {
        const QString owner = ownerOf(symbols.at(i));
        // What a template of Qt or of the standard library leaves behind belongs to no class of
        // ours.
        // The linker adds a few that begin with an underscore.
        const bool foreign = owner.startsWith(QLatin1Char('Q')) ||
                             owner.startsWith(QLatin1Char('_')) ||
                             symbols.at(i).contains(QLatin1String("std::")) ||
                             symbols.at(i).contains(QLatin1Char('<'));
        QVERIFY2(foreign || owners.contains(owner), qPrintable(symbols.at(i)));
    }
}

void tst_headers::libraryHasItsSoname()
{
    QProcess readelf;
    readelf.start(QLatin1String(READELF),
                  QStringList() << QLatin1String("-d") << QLatin1String(CWIDGET_LIBRARY));
    QVERIFY(readelf.waitForFinished(60000));
    QVERIFY(readelf.readAllStandardOutput().contains("soname: [lib" CWIDGET_NAME ".so.1]"));
}

void tst_headers::versionIsTheSameEverywhere()
{
    const QString version = QString::fromLatin1("%1.%2.%3")
                                .arg(CWIDGET_VERSION_MAJOR)
                                .arg(CWIDGET_VERSION_MINOR)
                                .arg(CWIDGET_VERSION_PATCH);
    QCOMPARE(QString::fromLatin1(CWIDGET_VERSION_STR), version);
    QCOMPARE(QString::fromLatin1(CWIDGET_PROJECT_VERSION), version);
    QVERIFY(QLatin1String(CWIDGET_LIBRARY) ==
            QLatin1String(CWIDGET_BINARY_DIR "/lib" CWIDGET_NAME ".so.") + version);
    QVERIFY(CWIDGET_VERSION == CWIDGET_VERSION_CHECK(CWIDGET_VERSION_MAJOR, CWIDGET_VERSION_MINOR,
                                                     CWIDGET_VERSION_PATCH));
    const QByteArray changes =
        testing::contentOf(QLatin1String(CWIDGET_SOURCE_DIR "/CHANGELOG.md"));
    QVERIFY(changes.contains("\n## " + version.toLatin1()));
    const QByteArray packages =
        testing::contentOf(QLatin1String(CWIDGET_SOURCE_DIR "/debian/changelog"));
    QVERIFY(packages.startsWith("quorlin-cwidget (" + version.toLatin1() + ")"));
}

QTEST_MAIN(tst_headers)
#include "tst_headers.moc"
