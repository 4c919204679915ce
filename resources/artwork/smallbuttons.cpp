#include "face.h"
#include "palette.h"
#include "picture.h"
#include "shape.h"

#include <QPainter>
#include <QRectF>

namespace
{

const int MostLooks = 4;
const int PressedDrop = 1; // px that a sign goes down with its button

const Scheme OnFace = {Palette::White, Palette::Lavender, Palette::White, Palette::Lavender};

// A sign in the 16 px box that the zoom pictures share with the zoom buttons
const char ZoomInSign[] = "Si2 O 7 7 5.5;Bi2 M 4 7 L 10 7 M 7 4 L 7 10;"
                          "Si2.5 M 11.6 11.6 L 14.2 14.2";
const char ZoomOutSign[] = "Si2 O 7 7 5.5;Bi2 M 4 7 L 10 7;Si2.5 M 11.6 11.6 L 14.2 14.2";

// --- buttons with a face -------------------------------------------------------------------------

enum Tool {
    PrevNext,
    Up,
    Down,
    Minus,
    Plus,
    NextPage,
    PrevPage,
    ZoomIn,
    ZoomOut
};

struct ToolCell {
    Depth depth;
    const char* sign;
    int x; // where the sign's box begins
    int y;
};

const char LeftSign[] = "Si2.5 M 15.5 5 L 10.5 10 L 15.5 15";
const char RightSign[] = "Si2.5 M 10.5 5 L 15.5 10 L 10.5 15";
const char UpSign[] = "Si2.5 M 6.5 22.75 L 12 17.25 L 17.5 22.75";
const char DownSign[] = "Si2.5 M 6.5 17.25 L 12 22.75 L 17.5 17.25";
const char MinusSign[] = "Fi R 7 13 14 2 0";
const char PlusSign[] = "Fi R 7 13 14 2 0 R 13 7 2 14 0";
const char NextPageSign[] = "Si2 M 7.5 6 L 12.5 11 L 7.5 16 M 13.5 6 L 18.5 11 L 13.5 16";
const char PrevPageSign[] = "Si2 M 17.5 6 L 12.5 11 L 17.5 16 M 11.5 6 L 6.5 11 L 11.5 16";

// One row for each strip, its cells from the left.
// clang-format off
const ToolCell ToolCells[][MostLooks] = {
    { { Sunken, LeftSign,     0, 0 }, { Raised, LeftSign,     0, 0 },
      { Sunken, RightSign,    0, 0 }, { Raised, RightSign,    0, 0 } },
    { { Sunken, UpSign,       0, 0 }, { Lit,    UpSign,       0, 0 }, { Raised, UpSign,   0, 0 } },
    { { Sunken, DownSign,     0, 0 }, { Lit,    DownSign,     0, 0 }, { Raised, DownSign, 0, 0 } },
    { { Raised, MinusSign,    0, 0 }, { Sunken, MinusSign,    0, 0 } },
    { { Raised, PlusSign,     0, 0 }, { Sunken, PlusSign,     0, 0 } },
    { { Raised, NextPageSign, 0, 0 }, { Sunken, NextPageSign, 0, 0 } },
    { { Raised, PrevPageSign, 0, 0 }, { Sunken, PrevPageSign, 0, 0 } },
    { { Raised, ZoomInSign,   5, 3 }, { Sunken, ZoomInSign,   5, 3 } },
    { { Raised, ZoomOutSign,  5, 3 }, { Sunken, ZoomOutSign,  5, 3 } },
};
// clang-format on

void drawTool(QPainter& painter, const QSize& cell, int index, int tool)
{
    const ToolCell& look = ToolCells[tool][index];
    drawFace(painter, QRectF(QPointF(0, 0), cell), neutralFace(look.depth));
    painter.translate(look.x, look.y + (look.depth == Sunken ? PressedDrop : 0));
    drawShape(painter, look.sign, OnFace);
}

// --- signs without a face: plain when released, on a violet plate while pressed ------------------

const Face SignPlate = {Plate, 0xff6f6a94, 0xff6f6a94, 0xff6f6a94, 0xff6f6a94};
const Scheme OnPanel = {Palette::Ink, Palette::Violet, Palette::Paper, Palette::Idle};

const char PreviousSign[] = "Si2 M 13 8 L 3.5 8 M 7.5 3.5 L 3 8 L 7.5 12.5";
const char NextSign[] = "Si2 M 3 8 L 12.5 8 M 8.5 3.5 L 13 8 L 8.5 12.5";

const char* const BareSigns[] = {PreviousSign, NextSign, ZoomInSign, ZoomOutSign};

enum Bare {
    Previous,
    Next,
    BareZoomIn,
    BareZoomOut
};

void drawBare(QPainter& painter, const QSize& cell, int index, int sign)
{
    const bool pressed = index > 0;
    if (pressed)
        drawFace(painter, QRectF(QPointF(0, 0), cell), SignPlate);
    drawShape(painter, BareSigns[sign], pressed ? OnFace : OnPanel);
}

// clang-format off
const Picture Pictures[] = {
    { "hspinbox_arrow_20.png",          104, 20, 4, 1, drawTool, PrevNext, OnLight },
    { "arrow-up-3states.png",            72, 40, 3, 1, drawTool, Up, OnLight },
    { "arrow-down-3states.png",          72, 40, 3, 1, drawTool, Down, OnLight },
    { "spin_minus.png",                  56, 28, 2, 1, drawTool, Minus, OnLight },
    { "spin_plus.png",                   56, 28, 2, 1, drawTool, Plus, OnLight },
    { "prev_page.png",                   50, 22, 2, 1, drawTool, PrevPage, OnLight },
    { "next_page.png",                   50, 22, 2, 1, drawTool, NextPage, OnLight },
    { "zoom_in.png",                     50, 22, 2, 1, drawTool, ZoomIn, OnLight },
    { "zoom_out.png",                    50, 22, 2, 1, drawTool, ZoomOut, OnLight },
    { "go-previous-view_2states.png",    32, 16, 2, 1, drawBare, Previous, OnLight },
    { "go-next-view_2states.png",        32, 16, 2, 1, drawBare, Next, OnLight },
    { "stock-zoom-in-16_2states.png",    32, 16, 2, 1, drawBare, BareZoomIn, OnLight },
    { "stock-zoom-out-16_2states.png",   32, 16, 2, 1, drawBare, BareZoomOut, OnLight },
};
// clang-format on

} // namespace

PictureGroup smallButtonPictures()
{
    const PictureGroup group = {"Small buttons", Pictures, sizeof(Pictures) / sizeof(Pictures[0])};
    return group;
}
