// Draws the picture collection of the widget library.
//
// Usage: artwork OUTPUT_DIR [--contact-sheet FILE] [--hashes FILE]

#include "contactsheet.h"
#include "picture.h"
#include "picturefile.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QList>
#include <QString>

#include <cstdio>
#include <cstring>

namespace
{

enum ExitCode {
    Done,
    CannotWrite,
    WrongUsage
};

struct Options {
    const char* folder;
    const char* sheet;  // null: not wanted
    const char* hashes; // the same
};

QList<PictureGroup> allGroups()
{
    QList<PictureGroup> groups;
    groups << buttonPictures() << keyPictures() << smallButtonPictures() << barPictures()
           << indicatorPictures() << signPictures() << iconPictures() << arrowPictures()
           << tilePictures();
    return groups;
}

bool save(const QImage& image, const QString& path)
{
    if (image.save(path, "PNG"))
        return true;
    std::fprintf(stderr, "artwork: cannot write %s\n", path.toLocal8Bit().constData());
    return false;
}

bool savePictures(const QList<PictureGroup>& groups, const QDir& folder)
{
    bool saved = true;
    for (int i = 0; i < groups.count(); ++i) {
        for (int k = 0; k < groups.at(i).count; ++k) {
            const Picture& picture = groups.at(i).pictures[k];
            saved &= save(withPalette(render(picture)),
                          folder.filePath(QString::fromLatin1(picture.name)));
        }
    }
    return saved;
}

// One line for each picture: its hash, two blanks, its name.
bool saveHashes(const QList<PictureGroup>& groups, const QString& path)
{
    QByteArray lines;
    for (int i = 0; i < groups.count(); ++i) {
        for (int k = 0; k < groups.at(i).count; ++k) {
            const Picture& picture = groups.at(i).pictures[k];
            lines += pixelHash(render(picture)) + "  " + picture.name + '\n';
        }
    }
    QFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(lines) == lines.size() && file.flush())
        return true;
    std::fprintf(stderr, "artwork: cannot write %s\n", path.toLocal8Bit().constData());
    return false;
}

// The sheet carries text; no display is needed for that.
bool saveSheet(const QList<PictureGroup>& groups, const QString& path)
{
    if (qgetenv("QT_QPA_PLATFORM").isEmpty())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    int count = 1;
    char program[] = "artwork";
    char* arguments[] = {program, nullptr};
    QApplication application(count, arguments);
    return save(drawContactSheet(groups), path);
}

bool readOptions(int argc, char** argv, Options* options)
{
    if (argc % 2 != 0)
        return false;
    options->folder = argv[1];
    for (int i = 2; i < argc; i += 2) {
        if (std::strcmp(argv[i], "--contact-sheet") == 0)
            options->sheet = argv[i + 1];
        else if (std::strcmp(argv[i], "--hashes") == 0)
            options->hashes = argv[i + 1];
        else
            return false;
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    Options options = {nullptr, nullptr, nullptr};
    if (!readOptions(argc, argv, &options)) {
        std::fprintf(stderr, "Usage: artwork OUTPUT_DIR [--contact-sheet FILE] [--hashes FILE]\n");
        return WrongUsage;
    }

    const QDir folder(QFile::decodeName(options.folder));
    const QList<PictureGroup> groups = allGroups();
    bool saved = folder.mkpath(QString::fromLatin1(".")) && savePictures(groups, folder);
    if (options.hashes)
        saved &= saveHashes(groups, QFile::decodeName(options.hashes));
    if (options.sheet)
        saved &= saveSheet(groups, QFile::decodeName(options.sheet));
    return saved ? Done : CannotWrite;
}
