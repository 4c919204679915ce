#include "support/sourcetree.h"
#include "support/testing.h"

#include <QDir>

using sourcetree::filesBelow;
using sourcetree::isPublicHeader;
using sourcetree::librarySources;
using sourcetree::linesOf;
using sourcetree::root;

namespace
{

// What the files of a folder may include of the library, besides files of their own folder.
const struct Layer {
    const char* folder;
    const char* below;
} layers[] = {
    // clang-format off
    {"style",   ""},
    {"widgets", "style"},
    {"keypad",  "style widgets"},
    {"pages",   "style widgets"},
    {"parm",    "style widgets keypad pages"},
    {"hotplug", "style"},
    {"accessibility", "style widgets keypad pages parm"},
    // clang-format on
};

// The one upward look that is allowed: a line edit opens a keypad.
const char lineEdit[] = "widgets/lineedit";
const char factoryHeader[] = "keypad/keypadfactory.h";

/// What a file includes in quotes, as it is written there.
QStringList quotedIncludesOf(const QString& path)
{
    QStringList includes;
    const QStringList lines = linesOf(path);
    for (int i = 0; i < lines.size(); ++i) {
        if (lines.at(i).startsWith(QLatin1String("#include \"")))
            includes.append(lines.at(i).section(QLatin1Char('"'), 1, 1));
    }
    return includes;
}

/// The path below the root of what the file \a path includes: found from its own folder, as the
/// compiler does, or else from the root.
QString resolved(const QString& path, const QString& include)
{
    const QString folder = path.section(QLatin1Char('/'), 0, -2);
    const QString sibling = QDir::cleanPath(folder + QLatin1Char('/') + include);
    return QFile::exists(root() + sibling) ? sibling : include;
}

/// The paths below the root of all files that a file includes in quotes.
QStringList includesOf(const QString& path)
{
    QStringList includes = quotedIncludesOf(path);
    for (int i = 0; i < includes.size(); ++i)
        includes[i] = resolved(path, includes.at(i));
    return includes;
}

bool allowed(const QString& path, const QString& include)
{
    const QString from = path.section(QLatin1Char('/'), 0, 0);
    const QString to = include.section(QLatin1Char('/'), 0, 0);
    if (from == to)
        return true;
    if (path.startsWith(QLatin1String(lineEdit)) && include == QLatin1String(factoryHeader))
        return true;
    for (size_t i = 0; i < sizeof layers / sizeof layers[0]; ++i) {
        if (from == QLatin1String(layers[i].folder))
            return QString::fromLatin1(layers[i].below).split(QLatin1Char(' ')).contains(to);
    }
    return false;
}

} // namespace

class tst_layers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void includesPointDownwards();
    void publicHeadersFindTheirSiblingsThemselves();
    void keypadFactoryHeaderIncludesNoWidget();
    void versionOfQtIsAskedInTheCompatibilityHeadersOnly();
    void sizesOfSources();
    void headersAreGuarded();
};

void tst_layers::includesPointDownwards()
{
    const QStringList sources = librarySources();
    QVERIFY(sources.size() > 20);
    int seen = 0;
    for (int i = 0; i < sources.size(); ++i) {
        const QStringList includes = includesOf(sources.at(i));
        for (int j = 0; j < includes.size(); ++j) {
            ++seen;
            const QString text = sources.at(i) + QLatin1String(" includes ") + includes.at(j);
            QVERIFY2(QFile::exists(root() + includes.at(j)), qPrintable(text));
            QVERIFY2(allowed(sources.at(i), includes.at(j)), qPrintable(text));
        }
    }
    QVERIFY(seen > 40);
    // The check itself can fail.
    QVERIFY(!allowed(QLatin1String("style/theme.cpp"), QLatin1String("widgets/widget.h")));
    QVERIFY(!allowed(QLatin1String("widgets/label.cpp"), QLatin1String("keypad/keypadfactory.h")));
    QVERIFY(!allowed(QLatin1String("hotplug/devicewatcher.h"), QLatin1String("widgets/widget.h")));
}

// An application may have a "widgets/widget.h" of its own, earlier on its include path than ours.
void tst_layers::publicHeadersFindTheirSiblingsThemselves()
{
    const QStringList sources = librarySources();
    int seen = 0;
    for (int i = 0; i < sources.size(); ++i) {
        if (!isPublicHeader(sources.at(i)))
            continue;
        const QString folder = root() + sources.at(i).section(QLatin1Char('/'), 0, -2);
        const QStringList includes = quotedIncludesOf(sources.at(i));
        for (int j = 0; j < includes.size(); ++j, ++seen) {
            const QString text = sources.at(i) + QLatin1String(" includes ") + includes.at(j) +
                                 QLatin1String(", which is not the path from its folder");
            QVERIFY2(QFile::exists(folder + QLatin1Char('/') + includes.at(j)), qPrintable(text));
            QVERIFY2(isPublicHeader(resolved(sources.at(i), includes.at(j))), qPrintable(text));
        }
    }
    QVERIFY(seen > 30);
}

void tst_layers::keypadFactoryHeaderIncludesNoWidget()
{
    const QString header = QLatin1String(factoryHeader);
    QVERIFY(QFile::exists(root() + header));
    const QStringList includes = includesOf(header);
    for (int i = 0; i < includes.size(); ++i)
        QVERIFY2(includes.at(i).startsWith(QLatin1String("style/")), qPrintable(includes.at(i)));
}

void tst_layers::versionOfQtIsAskedInTheCompatibilityHeadersOnly()
{
    QStringList sources = librarySources();
    sources += filesBelow(QLatin1String("tests"));
    sources += filesBelow(QLatin1String("examples"));
    sources += filesBelow(QLatin1String("benchmarks"));
    sources += filesBelow(QLatin1String("resources"));
    const QByteArray word = QByteArray("QT_") + "VERSION";
    int asking = 0;
    for (int i = 0; i < sources.size(); ++i) {
        if (!testing::contentOf(root() + sources.at(i)).contains(word))
            continue;
        ++asking;
        QVERIFY2(sources.at(i) == QLatin1String("style/qtcompat.h") ||
                     sources.at(i) == QLatin1String("tests/testcompat.h"),
                 qPrintable(sources.at(i)));
    }
    QCOMPARE(asking, 2);
}

void tst_layers::sizesOfSources()
{
    const QStringList sources = librarySources();
    for (int i = 0; i < sources.size(); ++i) {
        const int limit = sources.at(i).endsWith(QLatin1String(".h")) ? 250 : 500;
        const int lines = linesOf(sources.at(i)).size() - 1;
        const QString text = QString::fromLatin1("%1 has %2 lines").arg(sources.at(i)).arg(lines);
        QVERIFY2(lines <= limit, qPrintable(text));
    }
}

/// Each header's guard is its path, so that no two share one.
void tst_layers::headersAreGuarded()
{
    const QStringList sources = librarySources() + filesBelow(QLatin1String("tests"));
    for (int i = 0; i < sources.size(); ++i) {
        if (!sources.at(i).endsWith(QLatin1String(".h")))
            continue;
        QString guard = QLatin1String("CWIDGET_") + sources.at(i).toUpper();
        guard.replace(QLatin1Char('/'), QLatin1Char('_'))
            .replace(QLatin1Char('.'), QLatin1Char('_'));
        QCOMPARE(linesOf(sources.at(i)).at(0), QLatin1String("#ifndef ") + guard);
    }
}

QTEST_MAIN(tst_layers)
#include "tst_layers.moc"
