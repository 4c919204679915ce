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

int withoutAlpha(int channel, int alpha)
{
    return alpha == 0 ? 0 : (channel * 255 + alpha / 2) / alpha;
}

/// Qt's own conversion divides by an estimate of the processor's, which is not the same everywhere.
QImage withAlphaApart(const QImage& image)
{
    QImage result(image.size(), QImage::Format_ARGB32);
    result.setDotsPerMeterX(image.dotsPerMeterX());
    result.setDotsPerMeterY(image.dotsPerMeterY());
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            const int alpha = qAlpha(pixel);
            result.setPixel(x, y,
                            qRgba(withoutAlpha(qRed(pixel), alpha),
                                  withoutAlpha(qGreen(pixel), alpha),
                                  withoutAlpha(qBlue(pixel), alpha), alpha));
        }
    }
    return result;
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
    return withAlphaApart(image);
}
