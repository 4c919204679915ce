#include "support/filereads.h"

#include <QBuffer>
#include <QFile>
#include <QImage>

#include <cstdarg>
#include <cstddef>
#include <dlfcn.h>

namespace
{

struct Record {
    bool isKept;
    QList<QByteArray> files;
    qint64 bytes;
    int pictures;
};

/// What is read while nothing is kept may be read before main(), or by any thread.
Record& record()
{
    static Record only = {false, QList<QByteArray>(), 0, 0};
    return only;
}

template <typename Function>
Function next(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

void noteFile(const char* path)
{
    if (record().isKept)
        record().files.append(path);
}

} // namespace

// The program's own functions come before those of the libraries, for the libraries as well.
#define CWIDGET_BEFORE_THE_LIBRARIES __attribute__((visibility("default")))

extern "C" {

typedef int (*OpenFunction)(const char*, int, ...);
typedef ptrdiff_t (*ReadFunction)(int, void*, size_t);
typedef void* (*PngFunction)(const char*, void*, void*, void*);

CWIDGET_BEFORE_THE_LIBRARIES int open64(const char* path, int flags, ...)
{
    static const OpenFunction function = next<OpenFunction>("open64");
    va_list rest;
    va_start(rest, flags);
    const unsigned int mode = va_arg(rest, unsigned int); // garbage where none is given, and unused
    va_end(rest);
    noteFile(path);
    return function(path, flags, mode);
}

CWIDGET_BEFORE_THE_LIBRARIES ptrdiff_t read(int file, void* buffer, size_t size)
{
    static const ReadFunction function = next<ReadFunction>("read");
    const ptrdiff_t count = function(file, buffer, size);
    if (record().isKept && count > 0)
        record().bytes += count;
    return count;
}

CWIDGET_BEFORE_THE_LIBRARIES void* png_create_read_struct(const char* version, void* pointer,
                                                          void* error, void* warning)
{
    static const PngFunction function = next<PngFunction>("png_create_read_struct");
    if (record().isKept)
        ++record().pictures;
    return function(version, pointer, error, warning);
}

} // extern "C"

namespace testing
{

FileReads::FileReads()
{
    const Record empty = {true, QList<QByteArray>(), 0, 0};
    record() = empty;
}

FileReads::~FileReads()
{
    record().isKept = false;
}

QList<QByteArray> FileReads::files() const
{
    return record().files;
}

int FileReads::opens(const QByteArray& path) const
{
    return static_cast<int>(record().files.count(path));
}

qint64 FileReads::bytes() const
{
    return record().bytes;
}

int FileReads::pictures() const
{
    return record().pictures;
}

bool FileReads::seesFiles()
{
    const FileReads reads;
    const QByteArray path("/dev/null");
    QFile file(QString::fromLatin1(path));
    return file.open(QIODevice::ReadOnly) && reads.opens(path) == 1;
}

bool FileReads::seesPictures()
{
    QImage image(1, 1, QImage::Format_ARGB32);
    image.fill(0);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    const FileReads reads;
    return !QImage::fromData(png, "PNG").isNull() && reads.pictures() == 1;
}

} // namespace testing
