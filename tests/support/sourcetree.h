#ifndef CWIDGET_TESTS_SUPPORT_SOURCETREE_H
#define CWIDGET_TESTS_SUPPORT_SOURCETREE_H

#include <QStringList>

// The files of the project, for tests that read them. Paths are those below the project's root.
namespace sourcetree
{

/// The root, with a slash at its end.
QString root();

/// The folders of the library's sources.
QStringList libraryFolders();

/// The files in \a folder that match one of the blank-separated \a patterns, sorted.
QStringList filesIn(const QString& folder, const char* patterns = "*.h *.cpp");

/// The same with all folders below it.
QStringList filesBelow(const QString& folder, const char* patterns = "*.h *.cpp");

/// All sources of the library.
QStringList librarySources();

/// The content of a file.
QString textOf(const QString& path);
QStringList linesOf(const QString& path);

/// Whether applications see the header \a path.
bool isPublicHeader(const QString& path);

/// The words between each \a before and the next \a after, in their order.
QStringList between(const QString& text, const char* before, const char* after);

/// Whether \a text has \a word with neither letter, digit nor underscore beside it.
bool hasWord(const QString& text, const QString& word);

} // namespace sourcetree

#endif
