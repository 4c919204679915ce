#ifndef ARTWORK_PALETTE_H
#define ARTWORK_PALETTE_H

#include <QColor>

// The colours that more than one picture uses, as 0xAARRGGBB. Colours of a single control stand in
// the table of that control.
namespace Palette
{

// Neutrals
const QRgb White = 0xffffffff;
const QRgb Black = 0xff000000;
const QRgb Ink = 0xff363b4a;     // strokes of icons on a light ground
const QRgb Paper = 0xfff8f9fd;   // light areas inside an icon
const QRgb Outline = 0xff1d2029; // thin outline of signs that stand on dark and light grounds
const QRgb Idle = 0xff858aa0;    // what is there but not lit; reads on dark and light grounds

// Accents
const QRgb Violet = 0xff635e80;
const QRgb VioletLit = 0xff8f89bd;
const QRgb Lavender = 0xffe0e0ff;
const QRgb Green = 0xff2f9e55;
const QRgb GreenLit = 0xff6fe08f;
const QRgb Yellow = 0xfff4cf3a;
const QRgb Amber = 0xfff0b040;
const QRgb Orange = 0xffee8322;
const QRgb Red = 0xffd23b40;
const QRgb Blue = 0xff3a78c8;
const QRgb BlueLit = 0xff6fb2f5;

// Title strip and menu bar
const QRgb BarTop = 0xff4b4e62;
const QRgb BarBottom = 0xff363948;

} // namespace Palette

// The colour with another opacity, 0 (invisible) to 255 (opaque).
inline QColor translucent(QRgb colour, int alpha)
{
    return QColor(qRed(colour), qGreen(colour), qBlue(colour), alpha);
}

#endif
