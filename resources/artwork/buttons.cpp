#include "face.h"
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

// Added to a tone: the button of the heavier family.
const int Bold = ToneCount;

// White text stands on every one of these: no colour is lighter than that allows. The third grey
// look is also that of a fixed button, which cannot be pressed.
// clang-format off
const Face ButtonFaces[ToneCount][ButtonLooks] = {
    // depth     top         bottom      edge        rim
    { { Raised, 0xff6d7383, 0xff555a69, 0xff383c48, 0          },
      { Sunken, 0xff434753, 0xff4d525f, 0xff2c2f39, 0          },
      { Plate,  0xff5b5774, 0xff5b5774, 0xff5b5774, 0xff8a86a8 } },
    { { Raised, 0xff2b8248, 0xff1f6838, 0xff124525, 0          },
      { Sunken, 0xff174d2a, 0xff1c5a31, 0xff0d331b, 0          },
      { Lit,    0xff136b37, 0xff148541, 0xff0d4a27, 0xff9cf2b4 } },
    { { Raised, 0xffb45a0c, 0xff964703, 0xff642e00, 0          },
      { Sunken, 0xff6f3502, 0xff7e3e05, 0xff4a2300, 0          },
      { Lit,    0xffa34900, 0xffbd5900, 0xff6e3100, 0xffffd08f } },
    { { Raised, 0xffc03a40, 0xff9f282e, 0xff6b1519, 0          },
      { Sunken, 0xff751b20, 0xff852328, 0xff4c0d11, 0          },
      { Lit,    0xffb01e26, 0xffd5303a, 0xff740f15, 0xffffb6b3 } },
};
// clang-format on

const Build BoldBuild = {4, 1, 3, 1.25};

void drawButton(QPainter& painter, const QSize& cell, int look, int kind)
{
    const Face& face = ButtonFaces[kind % ToneCount][look];
    drawFace(painter, QRectF(QPointF(0, 0), cell), face, kind >= Bold ? BoldBuild : SlimBuild);
}

// clang-format off
const Picture Pictures[] = {
    { "RCTB_BUTTONGRAY_3states.png",       360, 40, 3, 1, drawButton, Gray, OnLight },
    { "RCTB_BUTTONGREEN_3states.png",      360, 40, 3, 1, drawButton, Green, OnLight },
    { "RCTB_BUTTONORANGE_3states.png",     360, 40, 3, 1, drawButton, Orange, OnLight },
    { "RCTB_BUTTONRED_3states.png",        360, 40, 3, 1, drawButton, Red, OnLight },
    { "BIG_RCTB_BUTTONGRAY_3states.png",   360, 40, 3, 1, drawButton, Gray + Bold, OnLight },
    { "BIG_RCTB_BUTTONGREEN_3states.png",  360, 40, 3, 1, drawButton, Green + Bold, OnLight },
    { "BIG_RCTB_BUTTONORANGE_3states.png", 360, 40, 3, 1, drawButton, Orange + Bold, OnLight },
    { "BIG_RCTB_BUTTONRED_3states.png",    360, 40, 3, 1, drawButton, Red + Bold, OnLight },
};
// clang-format on

} // namespace

PictureGroup buttonPictures()
{
    const PictureGroup group = {"Push buttons", Pictures, sizeof(Pictures) / sizeof(Pictures[0])};
    return group;
}
