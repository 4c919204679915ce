#ifndef ARTWORK_SHAPE_H
#define ARTWORK_SHAPE_H

#include <QColor>

class QPainter;

// The colours that a shape refers to by letter.
struct Scheme {
    QRgb ink;    // i
    QRgb accent; // a
    QRgb paper;  // p
    QRgb shade;  // s
};

// Draws a shape written as text. Layers are separated by ';' and drawn in order. A layer begins
// with its style and goes on with path commands, all separated by blanks, lengths in px:
//
//   Fa      fill with colour a          M x y              move to
//   Si2     stroke with colour i,       L x y              line to
//           2 px, round ends            C x y x y x y      curve to
//   Bi2     the same, square ends       Z                  close
//   Dpi2    fill with p, stroke i       O x y r            circle around x, y
//                                       R x y w h r        rectangle with corner radius r
//                                       A x y r from span  arc around x, y; degrees
//                                                          counter-clockwise from 3 o'clock
void drawShape(QPainter& painter, const char* text, const Scheme& scheme);

#endif
