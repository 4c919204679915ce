#include "support/sourcetree.h"

#include "support/testing.h"

#include <QDir>

namespace
{

bool isPartOfWord(QChar character)
{
    return character.isLetterOrNumber() || character == QLatin1Char('_');
}

} // namespace

namespace sourcetree
{

QString root()
{
    return QLatin1String(CWIDGET_SOURCE_DIR "/");
}

QStringList libraryFolders()
{
    return QString::fromLatin1("style widgets pages parm keypad hotplug accessibility")
        .split(QLatin1Char(' '));
}

QStringList filesIn(const QString& folder, const char* patterns)
{
    QStringList paths;
    const QStringList names =
        QDir(root() + folder)
            .entryList(QString::fromLatin1(patterns).split(QLatin1Char(' ')), QDir::Files);
    for (int i = 0; i < names.size(); ++i)
        paths.append(folder + QLatin1Char('/') + names.at(i));
    return paths;
}

QStringList filesBelow(const QString& folder, const char* patterns)
{
    QStringList paths = filesIn(folder, patterns);
    const QStringList folders = QDir(root() + folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (int i = 0; i < folders.size(); ++i)
        paths += filesBelow(folder + QLatin1Char('/') + folders.at(i), patterns);
    return paths;
}

QStringList librarySources()
{
    QStringList sources;
    const QStringList folders = libraryFolders();
    for (int i = 0; i < folders.size(); ++i)
        sources += filesIn(folders.at(i));
    return sources;
}

QString textOf(const QString& path)
{
    return QString::fromUtf8(testing::contentOf(root() + path));
}

QStringList linesOf(const QString& path)
{
    return textOf(path).split(QLatin1Char('\n'));
}

bool isPublicHeader(const QString& path)
{
    return path.endsWith(QLatin1String(".h")) && !path.endsWith(QLatin1String("_p.h")) &&
           path != QLatin1String("style/qtcompat.h");
}

QStringList between(const QString& text, const char* before, const char* after)
{
    QStringList words;
    const QStringList parts = text.split(QLatin1String(before));
    for (int i = 1; i < parts.size(); ++i)
        words.append(parts.at(i).section(QLatin1String(after), 0, 0));
    return words;
}

bool hasWord(const QString& text, const QString& word)
{
    for (int at = static_cast<int>(text.indexOf(word)); at >= 0;
         at = static_cast<int>(text.indexOf(word, at + 1))) {
        const int end = at + static_cast<int>(word.size());
        const bool begins = at == 0 || !isPartOfWord(text.at(at - 1));
        const bool ends = end == text.size() || !isPartOfWord(text.at(end));
        if (begins && ends)
            return true;
    }
    return false;
}

} // namespace sourcetree
