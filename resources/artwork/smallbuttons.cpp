#include "face.h"
#include "palette.h"
#include "picture.h"
#include "shape.h"

#include <QPainter>
#include <QRectF>

namespace
{

const int MostLooks = 4;

const Scheme OnFace = {Palette::White, Palette::White, Palette::White, Palette::Inactive};

// A sign in the 16 px box that the zoom pictures share with the zoom buttons
const char ZoomInSign[] = "Si2 O 7 7 5 M 5 7 L 9 7 M 7 5 L 7 9 M 11 11 L 14 14";
const char ZoomOutSign[] = "Si2 O 7 7 5 M 5 7 L 9 7 M 11 11 L 14 14";

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
    Look look;
    const char* sign;
};

const char LeftSign[] = "Si3 M 15.5 5 L 10.5 10 L 15.5 15";
const char RightSign[] = "Si3 M 10.5 5 L 15.5 10 L 10.5 15";
const char UpSign[] = "Si3 M 6.5 22.75 L 12 17.25 L 17.5 22.75";
const char DownSign[] = "Si3 M 6.5 17.25 L 12 22.75 L 17.5 17.25";
const char MinusSign[] = "Si2.5 M 8 14 L 20 14";
const char PlusSign[] = "Si2.5 M 8 14 L 20 14 M 14 8 L 14 20";
const char NextPageSign[] = "Si2.5 M 7.5 6 L 12.5 11 L 7.5 16 M 13.5 6 L 18.5 11 L 13.5 16";
const char PrevPageSign[] = "Si2.5 M 17.5 6 L 12.5 11 L 17.5 16 M 11.5 6 L 6.5 11 L 11.5 16";
const char ZoomInToolSign[] = "Si2 O 12 10 5 M 10 10 L 14 10 M 12 8 L 12 12 M 16 14 L 19 17";
const char ZoomOutToolSign[] = "Si2 O 12 10 5 M 10 10 L 14 10 M 16 14 L 19 17";

// One row for each strip, its cells from the left.
// clang-format off
const ToolCell ToolCells[][MostLooks] = {
    { { UnderFinger, LeftSign  }, { Released, LeftSign  },
      { UnderFinger, RightSign }, { Released, RightSign } },
    { { UnderFinger, UpSign    }, { Chosen,   UpSign    }, { Released, UpSign   } },
    { { UnderFinger, DownSign  }, { Chosen,   DownSign  }, { Released, DownSign } },
    { { Released, MinusSign       }, { UnderFinger, MinusSign       } },
    { { Released, PlusSign        }, { UnderFinger, PlusSign        } },
    { { Released, NextPageSign    }, { UnderFinger, NextPageSign    } },
    { { Released, PrevPageSign    }, { UnderFinger, PrevPageSign    } },
    { { Released, ZoomInToolSign  }, { UnderFinger, ZoomInToolSign  } },
    { { Released, ZoomOutToolSign }, { UnderFinger, ZoomOutToolSign } },
};
// clang-format on

void drawTool(QPainter& painter, const QSize& cell, int index, int tool)
{
    const ToolCell& look = ToolCells[tool][index];
    drawFace(painter, QRectF(QPointF(0, 0), cell), toolFace(look.look), SmallRadius);
    drawShape(painter, look.sign, OnFace);
}

// --- signs without a face: ink when released, white on a dark plate while pressed ----------------

const Face SignPlate = {Palette::Pressed, false, 0, 0, 0};
const Scheme OnPanel = {Palette::Ink, Palette::Ink, Palette::Paper, Palette::Inactive};

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
        drawFace(painter, QRectF(QPointF(0, 0), cell), SignPlate, SmallRadius);
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
