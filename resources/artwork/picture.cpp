#include "picture.h"

#include <QImage>
#include <QPainter>
#include <QRect>

namespace
{

const int DotsPerMetre = 3780; // 96 dpi, so that the files do not depend on a screen

void drawCellAt(QPainter& painter, const Picture& picture, int index)
{
    const QSize cell = cellSize(picture);
    const QPoint corner(index % picture.columns * cell.width(),
                        index / picture.columns * cell.height());
    painter.save();
    painter.setClipRect(QRect(corner, cell));
    painter.translate(corner);
    picture.draw(painter, cell, index, picture.kind);
    painter.restore();
}

} // namespace

QSize cellSize(const Picture& picture)
{
    return QSize(picture.width / picture.columns, picture.height / picture.rows);
}

QImage render(const Picture& picture)
{
    QImage image(picture.width, picture.height, QImage::Format_ARGB32_Premultiplied);
    image.setDotsPerMeterX(DotsPerMetre);
    image.setDotsPerMeterY(DotsPerMetre);
    image.fill(0);

    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int index = 0; index < picture.columns * picture.rows; ++index)
        drawCellAt(painter, picture, index);
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}
