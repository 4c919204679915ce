#include "face.h"
#include "palette.h"
#include "picture.h"

#include <QPainter>
#include <QRectF>

namespace
{

const int ButtonLooks = 3; // released, pressed, selected

enum Tone {
    Gray,
    Green,
    Orange,
    Red,
    ToneCount
};

// Added to a tone: the button of the larger family.
const int Large = ToneCount;

const qreal LargeRadius = 8;

// White text stands on every one of these. The third grey look is also that of a fixed button, so
// it has no ring.
// clang-format off
const Face ButtonFaces[ToneCount][ButtonLooks] = {
    { { Palette::Slate,  true, 0, 0, 0 }, PressedFace, { Palette::Violet, false, 0, 0, 0 } },
    { { Palette::Green,  true, 0, 0, 0 }, PressedFace, SelectedFace },
    { { Palette::Orange, true, 0, 0, 0 }, PressedFace, SelectedFace },
    { { Palette::Red,    true, 0, 0, 0 }, PressedFace, SelectedFace },
};
// clang-format on

void drawButton(QPainter& painter, const QSize& cell, int look, int kind)
{
    drawFace(painter, QRectF(QPointF(0, 0), cell), ButtonFaces[kind % ToneCount][look],
             kind >= Large ? LargeRadius : ButtonRadius);
}

// clang-format off
const Picture Pictures[] = {
    { "RCTB_BUTTONGRAY_3states.png",       360, 40, 3, 1, drawButton, Gray, OnLight },
    { "RCTB_BUTTONGREEN_3states.png",      360, 40, 3, 1, drawButton, Green, OnLight },
    { "RCTB_BUTTONORANGE_3states.png",     360, 40, 3, 1, drawButton, Orange, OnLight },
    { "RCTB_BUTTONRED_3states.png",        360, 40, 3, 1, drawButton, Red, OnLight },
    { "BIG_RCTB_BUTTONGRAY_3states.png",   360, 40, 3, 1, drawButton, Gray + Large, OnLight },
    { "BIG_RCTB_BUTTONGREEN_3states.png",  360, 40, 3, 1, drawButton, Green + Large, OnLight },
    { "BIG_RCTB_BUTTONORANGE_3states.png", 360, 40, 3, 1, drawButton, Orange + Large, OnLight },
    { "BIG_RCTB_BUTTONRED_3states.png",    360, 40, 3, 1, drawButton, Red + Large, OnLight },
};
// clang-format on

} // namespace

PictureGroup buttonPictures()
{
    const PictureGroup group = {"Push buttons", Pictures, sizeof(Pictures) / sizeof(Pictures[0])};
    return group;
}
