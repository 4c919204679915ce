#ifndef ARTWORK_FACE_H
#define ARTWORK_FACE_H

#include <QColor>

class QPainter;
class QRectF;

// How a surface stands against the panel; the light comes from above.
enum Depth {
    Raised, // to be touched: light line on top, soft edge at the bottom
    Sunken, // under the finger: shadow on top
    Lit,    // chosen: bright rim
    Plate   // not to be touched: flat, with a fine line inside
};

// Colours and build of one surface: button, key or tile.
struct Face {
    Depth depth;
    QRgb top; // of the vertical gradient
    QRgb bottom;
    QRgb edge; // one pixel around the surface
    QRgb rim;  // Lit: the bright line; Plate: the fine line; else not used
};

// Widths of a surface's parts, px.
struct Build {
    qreal radius; // of the outer corners
    qreal edge;
    qreal lip; // dark edge inside the bottom of a raised surface
    qreal rim; // bright line of a lit surface
};

// The build of nearly everything.
const Build SlimBuild = {3, 1, 2, 1.5};

// Fills \a box up to its edges with the surface.
void drawFace(QPainter& painter, const QRectF& box, const Face& face,
              const Build& build = SlimBuild);

// The cool grey surface that arrow buttons, spin buttons and the grey button strip share.
const Face& neutralFace(Depth depth);

#endif
