#ifndef ARTWORK_PALETTE_H
#define ARTWORK_PALETTE_H

#include <QColor>

// The colours that more than one picture uses, as 0xAARRGGBB. Colours of a single control stand in
// the table of that control.
namespace Palette
{

// Signs
const QRgb White = 0xffffffff;     // active, on dark backgrounds
const QRgb Inactive = 0xff8c91a8;  // the same, not active
const QRgb Attention = 0xffffb000; // wants to be looked at
const QRgb Ink = 0xff363b4a;       // on light backgrounds
const QRgb Steady = 0xff757a95;    // reads on dark and light backgrounds
const QRgb Paper = 0xffffffff;     // light areas inside a sign
const QRgb Black = 0xff000000;

// Surfaces
const QRgb Slate = 0xff444b66;    // what is touched
const QRgb Pressed = 0xff20232f;  // under the finger
const QRgb Halo = 0xff8f88c4;     // around what is under the finger
const QRgb Selected = 0xff4a4578; // chosen
const QRgb Lavender = 0xffe0e0ff; // ring or bar of what is chosen
const QRgb Violet = 0xff635e80;   // fixed; lines of the bars; the current menu entry
const QRgb Bar = 0xff2b2e3b;      // title, menu and bottom bar
const QRgb Divider = 0xff43475a;  // between two entries of a bar

// Accents
const QRgb Green = 0xff1b6e3f;
const QRgb GreenLit = 0xff5fd08d;
const QRgb Orange = 0xffa34f00;
const QRgb Red = 0xffb3262e;

} // namespace Palette

// The colour with another opacity, 0 (invisible) to 255 (opaque).
inline QColor translucent(QRgb colour, int alpha)
{
    return QColor(qRed(colour), qGreen(colour), qBlue(colour), alpha);
}

#endif
