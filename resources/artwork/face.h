#ifndef ARTWORK_FACE_H
#define ARTWORK_FACE_H

#include "palette.h"

#include <QColor>

class QPainter;
class QRectF;

// Colours and build of one surface: button, key or tile. Everything is flat: a surface has one
// colour, and either a fine edge at the bottom, a line around it, or nothing more.
struct Face {
    QRgb fill;
    bool edge;     // one darker pixel along the bottom: waits for a finger
    QRgb line;     // an outline or an inset ring,
    qreal lineBox; // which begins so many px inside the surface
    qreal lineEnd; // and ends there; no line where both are the same
};

// What is under a finger: the outline shows around the fingertip.
const Face PressedFace = {Palette::Pressed, false, Palette::Halo, 0, 2};

// What is chosen, in every colour: a fill of its own and a bright ring.
const Face SelectedFace = {Palette::Selected, false, Palette::Lavender, 2, 5};

// Radius of the outer corners, px.
const qreal ButtonRadius = 6;
const qreal SmallRadius = 4;

// Fills \a box up to its edges with the surface.
void drawFace(QPainter& painter, const QRectF& box, const Face& face, qreal radius);

enum Look {
    Released,
    UnderFinger,
    Chosen
};

// The looks of the small buttons and of the close button.
const Face& toolFace(Look look);

#endif
