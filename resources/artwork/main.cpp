// Draws the picture collection of the widget library.
//
// Usage: artwork OUTPUT_DIR [--contact-sheet FILE]

#include "contactsheet.h"
#include "picture.h"

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

const char SheetOption[] = "--contact-sheet";

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
            saved &= save(render(picture), folder.filePath(QString::fromLatin1(picture.name)));
        }
    }
    return saved;
}

// The sheet carries text; no display is needed for that.
bool saveSheet(const QList<PictureGroup>& groups, const QString& path)
{
    if (qgetenv("QT_QPA_PLATFORM").isEmpty())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    int count = 1;
    char program[] = "artwork";
    char* arguments[] = {program, 0};
    QApplication application(count, arguments);
    return save(drawContactSheet(groups), path);
}

} // namespace

int main(int argc, char** argv)
{
    const bool withSheet = argc == 4 && std::strcmp(argv[2], SheetOption) == 0;
    if (argc != 2 && !withSheet) {
        std::fprintf(stderr, "Usage: artwork OUTPUT_DIR [%s FILE]\n", SheetOption);
        return WrongUsage;
    }

    const QDir folder(QFile::decodeName(argv[1]));
    const QList<PictureGroup> groups = allGroups();
    bool saved = folder.mkpath(QString::fromLatin1(".")) && savePictures(groups, folder);
    if (withSheet)
        saved &= saveSheet(groups, QFile::decodeName(argv[3]));
    return saved ? Done : CannotWrite;
}
