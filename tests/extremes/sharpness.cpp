#include "extremes/sharpness.h"

#include <QPainter>
#include <QWidget>
#include <QtMath>
#include <cmath>

namespace sharpness
{

namespace
{

const int placeSize = 8; // pixels

int distance(QRgb a, QRgb b)
{
    const int red = qRed(a) - qRed(b);
    const int green = qGreen(a) - qGreen(b);
    const int blue = qBlue(a) - qBlue(b);
    return red * red + green * green + blue * blue;
}

/// The sum over all neighbours of how far their colours are apart, squared: half a step twice
/// counts half as much as one step.
double edges(const QImage& image)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (x > 0)
                sum += distance(image.pixel(x, y), image.pixel(x - 1, y));
            if (y > 0)
                sum += distance(image.pixel(x, y), image.pixel(x, y - 1));
        }
    }
    return sum;
}

struct Mean {
    double red;
    double green;
    double blue;
};

Mean meanOf(const QImage& image, const QRect& place)
{
    Mean mean = {0, 0, 0};
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            mean.red += qRed(image.pixel(x, y));
            mean.green += qGreen(image.pixel(x, y));
            mean.blue += qBlue(image.pixel(x, y));
        }
    }
    const double count = place.width() * place.height();
    mean.red /= count;
    mean.green /= count;
    mean.blue /= count;
    return mean;
}

double distance(const Mean& a, const Mean& b)
{
    return qMax(std::abs(a.red - b.red),
                qMax(std::abs(a.green - b.green), std::abs(a.blue - b.blue)));
}

} // namespace

QImage paintedAt(QWidget* widget, qreal ratio)
{
    const QSize size(qCeil(widget->width() * ratio), qCeil(widget->height() * ratio));
    QImage image(size, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    widget->render(&image);
    image.setDevicePixelRatio(1);
    return image;
}

double farthest(const QImage& plain, const QImage& larger)
{
    const QImage shrunk =
        larger.scaled(plain.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    double most = 0;
    for (int y = 0; y < plain.height(); y += placeSize) {
        for (int x = 0; x < plain.width(); x += placeSize) {
            const QRect place = QRect(x, y, placeSize, placeSize).intersected(plain.rect());
            most = qMax(most, distance(meanOf(plain, place), meanOf(shrunk, place)));
        }
    }
    return most;
}

double kept(const QImage& plain, const QImage& larger, qreal ratio)
{
    const double before = edges(plain);
    return before > 0 ? edges(larger) / (before * ratio) : 1;
}

} // namespace sharpness
