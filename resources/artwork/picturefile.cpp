#include "picturefile.h"

#include <QCryptographicHash>
#include <QHash>
#include <QImage>
#include <QVector>

namespace
{

const int MostColours = 256;

// The colours of a picture in the order in which they appear, up to one more than a palette holds.
QVector<QRgb> coloursOf(const QImage& image)
{
    QVector<QRgb> colours;
    QHash<QRgb, bool> known;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width() && colours.count() <= MostColours; ++x) {
            if (known.contains(image.pixel(x, y)))
                continue;
            known.insert(image.pixel(x, y), true);
            colours.append(image.pixel(x, y));
        }
    }
    return colours;
}

void append(QByteArray& bytes, quint32 value)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.append(static_cast<char>(value >> shift));
}

} // namespace

QImage withPalette(const QImage& image)
{
    const QVector<QRgb> colours = coloursOf(image);
    if (colours.count() > MostColours)
        return image;
    QImage indexed(image.size(), QImage::Format_Indexed8);
    indexed.setColorTable(colours);
    indexed.setDotsPerMeterX(image.dotsPerMeterX());
    indexed.setDotsPerMeterY(image.dotsPerMeterY());
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            indexed.setPixel(x, y, static_cast<uint>(colours.indexOf(image.pixel(x, y))));
    }
    return indexed;
}

QByteArray pixelHash(const QImage& image)
{
    QByteArray bytes;
    append(bytes, static_cast<quint32>(image.width()));
    append(bytes, static_cast<quint32>(image.height()));
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            append(bytes, qAlpha(pixel) == 0 ? 0 : pixel);
        }
    }
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex();
}
