#ifndef CWIDGET_TESTS_SUPPORT_FILEREADS_H
#define CWIDGET_TESTS_SUPPORT_FILEREADS_H

#include <QByteArray>
#include <QList>

namespace testing
{

/// What the program reads while one of these lives: the files that it opens by the system and the
/// pictures that it decodes. filereads.cpp stands before the system's library and libpng for that;
/// a program that uses this has to have it as a source of its own.
class FileReads
{
public:
    FileReads();
    ~FileReads();

    /// The paths of the files that were opened, in their order.
    QList<QByteArray> files() const;

    /// How often \a path was opened.
    int opens(const QByteArray& path) const;

    /// How many bytes came from files, sockets and pipes.
    qint64 bytes() const;

    /// How many PNG pictures were decoded.
    int pictures() const;

    /// Whether the calls of the Qt at hand are seen. One that was built with a libpng of its own
    /// decodes out of sight.
    static bool seesFiles();
    static bool seesPictures();
};

} // namespace testing

#endif
