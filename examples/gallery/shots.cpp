#include "shots.h"

#include "gallerywidgets.h"
#include "panel.h"

#include <QApplication>
#include <QDir>
#include <QPainter>

#include <cstdio>

namespace
{

bool writeShot(Panel* panel, const QDir& folder, const QString& name)
{
    QApplication::processEvents();
    QImage image(panel->size(), QImage::Format_RGB32);
    panel->render(&image);
    const QString path = folder.filePath(name + QLatin1String(".png"));
    const bool written = image.save(path);
    fprintf(written ? stdout : stderr, "%s%s\n", written ? "" : "cannot write ", qPrintable(path));
    return written;
}

} // namespace

bool writeShots(Panel* panel, const QString& folder)
{
    panel->freezeTime();
    panel->show();
    QApplication::processEvents();
    const QDir dir(folder);
    bool written = QDir().mkpath(folder);
    const QStringList names = Panel::screenNames();
    for (int i = 0; i < names.size(); ++i) {
        panel->showScreen(names.at(i));
        panel->screen(names.at(i))->prepareShot();
        written = writeShot(panel, dir, names.at(i)) && written;
    }
    return written;
}
