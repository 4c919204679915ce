#include "style/filerewrite_p.h"

#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cstdio>

namespace
{

bool writeAll(QFile* file, const QByteArray& content)
{
    return file->write(content) == content.size() && file->flush() &&
           file->error() == QFile::NoError && fsync(file->handle()) == 0;
}

/// Whether the file at \a path is nothing more than its name, its mode and its content.
bool isPlain(const QByteArray& path, struct stat* status)
{
    return lstat(path.constData(), status) == 0 && S_ISREG(status->st_mode) &&
           status->st_nlink == 1 && llistxattr(path.constData(), nullptr, 0) <= 0;
}

/// Gives the new file of the descriptor \a descriptor the owner and the mode of the old one.
bool adopt(int descriptor, const struct stat& old)
{
    return fchown(descriptor, old.st_uid, old.st_gid) == 0 &&
           fchmod(descriptor, old.st_mode & 07777) == 0;
}

bool writeNew(const QByteArray& path, const QByteArray& content, const struct stat& old)
{
    unlink(path.constData()); // what a failing power may have left
    const int descriptor =
        open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor < 0)
        return false;
    QFile file;
    const bool written = file.open(descriptor, QIODevice::WriteOnly) && adopt(descriptor, old) &&
                         writeAll(&file, content);
    file.close();
    return close(descriptor) == 0 && written;
}

/// Makes the change of a name in \a folder last.
void syncFolder(const QByteArray& folder)
{
    const int descriptor = open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    fsync(descriptor);
    close(descriptor);
}

/// Lets a new file with \a content take the place of the one at \a name, or changes nothing.
bool replace(const QString& name, const QByteArray& content)
{
    const QFileInfo target(QFileInfo(name).canonicalFilePath()); // not the link to it
    const QByteArray path = QFile::encodeName(target.filePath());
    const QByteArray folder = QFile::encodeName(target.path());
    const QByteArray newPath = folder + "/." + QFile::encodeName(target.fileName()) + ".new";
    struct stat status;
    if (!isPlain(path, &status))
        return false;
    if (writeNew(newPath, content, status) && rename(newPath.constData(), path.constData()) == 0) {
        syncFolder(folder);
        return true;
    }
    unlink(newPath.constData());
    return false;
}

bool writeInPlace(QFile* file, const QByteArray& content)
{
    return file->resize(0) && file->seek(0) && writeAll(file, content);
}

} // namespace

namespace filerewrite
{

bool rewrite(QFile* file, const QByteArray& content, const QByteArray& oldContent)
{
    if (replace(file->fileName(), content) || writeInPlace(file, content))
        return true;
    const QString name = file->fileName();
    file->close(); // drops what could not be written
    QFile again(name);
    if (again.open(QIODevice::WriteOnly | QIODevice::Truncate))
        writeAll(&again, oldContent);
    return false;
}

} // namespace filerewrite
