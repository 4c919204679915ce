#ifndef CWIDGET_TESTS_SUPPORT_COLORS_H
#define CWIDGET_TESTS_SUPPORT_COLORS_H

#include <QImage>

/// What eyes make of colours.
namespace colors
{

/// The relative luminance of an opaque colour, from 0 (black) to 1 (white).
double luminance(QRgb color);

/// The contrast of two opaque colours, from 1 to 21, as accessibility guidelines compute it.
double contrast(QRgb a, QRgb b);

/// How light a colour seems, from 0 (black) to 100 (white).
double lightness(QRgb color);

enum Vision {
    Trichromatic, // all colours
    Protanopic,   // no red receptors
    Deuteranopic, // no green ones
    Tritanopic,   // no blue ones
    VisionCount
};

/// The colour as somebody with such eyes sees it.
QRgb seen(QRgb color, Vision vision);

/// The mean difference in lightness of two pictures of one size, as such eyes see them.
double lightnessDifference(const QImage& a, const QImage& b, Vision vision);

} // namespace colors

#endif
