#include "face.h"
#include "palette.h"
#include "picture.h"

#include <QPainter>
#include <QRectF>

namespace
{

const int KeyLooks = 3; // released, pressed, selected

enum Tone {
    Letter,
    Function,
    Apply,
    ToneCount
};

// The keys write their own texts: white on released and pressed, black on selected.
// clang-format off
const Face KeyFaces[ToneCount][KeyLooks] = {
    // depth     top         bottom      edge        rim
    { { Raised, 0xff545a69, 0xff414653, 0xff262932, 0          },
      { Sunken, 0xff2a2d36, 0xff333741, 0xff191b21, 0          },
      { Lit,    0xffd6d6fb, 0xffe6e6ff, 0xff8c88b6, 0xffffffff } },
    { { Raised, 0xff6c678c, 0xff544f72, 0xff322f47, 0          },
      { Sunken, 0xff37334c, 0xff423e5a, 0xff211e30, 0          },
      { Lit,    0xffcbc8f5, 0xffdddbff, 0xff7f7ab0, 0xffffffff } },
    { { Raised, 0xff2b8248, 0xff1f6838, 0xff124525, 0          },
      { Sunken, 0xff174d2a, 0xff1c5a31, 0xff0d331b, 0          },
      { Lit,    0xff9fe3b3, 0xffbdf3cb, 0xff4a9f67, 0xfff2fff5 } },
};
// clang-format on

// The corners outside the rounding have the colour of the keypad's ground.
void drawKey(QPainter& painter, const QSize& cell, int look, int tone)
{
    const QRectF box(QPointF(0, 0), cell);
    painter.fillRect(box, QColor(Palette::Black));
    drawFace(painter, box, KeyFaces[tone][look]);
}

// clang-format off
const Picture Pictures[] = {
    { "GENKB_BUTTON.png",         135, 45, 3, 1, drawKey, Letter, OnBlack },
    { "GENKB_CAPS_BTN.png",       165, 45, 3, 1, drawKey, Function, OnBlack },
    { "GENKB_SHIFT_BTN.png",      165, 45, 3, 1, drawKey, Function, OnBlack },
    { "GENKB_SYMBOL_BTN.png",     198, 45, 3, 1, drawKey, Function, OnBlack },
    { "GENKB_DELALL_BTN.png",     225, 45, 3, 1, drawKey, Function, OnBlack },
    { "GENKB_APPLY_BTN.png",      285, 45, 3, 1, drawKey, Apply, OnBlack },
    { "GENKB_SPACE_BTN.png",     1095, 45, 3, 1, drawKey, Letter, OnBlack },
    { "HEXKB_BUTTON.png",         225, 40, 3, 1, drawKey, Letter, OnBlack },
    { "HEXKB_DEL_BTN.png",        120, 30, 3, 1, drawKey, Function, OnBlack },
    { "HEXKB_DELALL_BTN.png",     231, 30, 3, 1, drawKey, Function, OnBlack },
    { "HEXKB_DOT_BTN.png",        120, 30, 3, 1, drawKey, Function, OnBlack },
    { "HEXKB_APPLY_BTN.png",      270, 30, 3, 1, drawKey, Apply, OnBlack },
    { "HEXKB_BACKSPACE_BTN.png",  120, 30, 3, 1, drawKey, Function, OnBlack },
    { "NUMKB_BUTTON.png",         240, 50, 3, 1, drawKey, Letter, OnBlack },
    { "NUMKB_DEL_BTN.png",        150, 40, 3, 1, drawKey, Function, OnBlack },
    { "NUMKB_DELALL_BTN.png",     231, 40, 3, 1, drawKey, Function, OnBlack },
    { "NUMKB_DOT_BTN.png",        150, 40, 3, 1, drawKey, Function, OnBlack },
    { "NUMKB_APPLY_BTN.png",      270, 40, 3, 1, drawKey, Apply, OnBlack },
    { "NUMKB_BACKSPACE_BTN.png",  150, 40, 3, 1, drawKey, Function, OnBlack },
};
// clang-format on

} // namespace

PictureGroup keyPictures()
{
    const PictureGroup group = {"Keypad keys", Pictures, sizeof(Pictures) / sizeof(Pictures[0])};
    return group;
}
