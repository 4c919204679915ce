#include "face.h"
#include "palette.h"
#include "picture.h"
#include "shape.h"

#include <QPainter>
#include <QPainterPath>
#include <QRectF>

namespace
{

// --- devices and files ---------------------------------------------------------------------------

enum Icon {
    Folder,
    Laptop,
    Phone,
    Radio,
    Magnifier
};

struct IconRow {
    Scheme scheme;
    const char* shape;
};

// clang-format off
const IconRow Icons[] = {
    { { Palette::Ink, 0xfff3bd58, Palette::Paper, 0xffd9983a },
      "Dsi2 M 4 7 L 12 7 L 15 10 L 25 10 L 25 26 L 4 26 Z;"
      "Dai2 M 4 26 L 9 15 L 30 15 L 25 26 Z" },
    { { Palette::Ink, Palette::Violet, Palette::Paper, 0xffc9cbe0 },
      "Dpi2 R 5 5 22 16 2;Fa R 8 8 16 10 0.5;Dsi2 M 2 24 L 30 24 L 28 28 L 4 28 Z" },
    { { Palette::Ink, Palette::Violet, Palette::Paper, 0xffc9cbe0 },
      "Dpi2 R 9 3 14 26 3;Fa R 12 8 8 14 0.5;Bi1 M 14 5.5 L 18 5.5;Fi O 16 25.5 1.25" },
    { { 0xff1f4f8f, Palette::Blue, Palette::White, 0xffc9cbe0 },
      "Dai2 R 5 3 22 26 8;Fp O 16 16 2.25;"
      "Sp2 A 16 16 5.5 -45 90 A 16 16 5.5 135 90 A 16 16 9 -42 84 A 16 16 9 138 84" },
    { { Palette::Ink, Palette::Violet, 0xffffffff, 0xffc9cbe0 },
      "Si2 O 9 9 6;Si3 M 14 14 L 18.5 18.5;Sa1.5 A 9 9 3.5 100 70" },
};
// clang-format on

void drawIcon(QPainter& painter, const QSize&, int, int icon)
{
    drawShape(painter, Icons[icon].shape, Icons[icon].scheme);
}

// --- buttons of a browser: a white sign on a disc ------------------------------------------------

enum Disc {
    Back,
    Forward,
    Reload,
    Stop
};

struct DiscRow {
    Face face;
    const char* sign;
};

const qreal DiscMargin = 1;
const Build DiscBuild = {14, 1, 2, 1.5};

// clang-format off
const DiscRow Discs[] = {
    { { Raised, 0xff7a75a0, 0xff575278, 0xff38344f, 0 },
      "Si2.5 M 21.5 15 L 9.5 15 M 14 9.5 L 8.5 15 L 14 20.5" },
    { { Raised, 0xff7a75a0, 0xff575278, 0xff38344f, 0 },
      "Si2.5 M 8.5 15 L 20.5 15 M 16 9.5 L 21.5 15 L 16 20.5" },
    { { Raised, 0xff2f8f50, 0xff1f6838, 0xff124525, 0 },
      "Si2.5 A 15 15 6.25 45 270;Fi M 22.5 8 L 23 14.8 L 16.4 13.4 Z" },
    { { Raised, 0xffc8434a, 0xff9f282e, 0xff6b1519, 0 },
      "Si2.5 M 10.5 10.5 L 19.5 19.5 M 19.5 10.5 L 10.5 19.5" },
};
// clang-format on

const Scheme OnDisc = {Palette::White, Palette::Lavender, Palette::White, Palette::Lavender};

void drawDisc(QPainter& painter, const QSize& cell, int, int disc)
{
    const QRectF box =
        QRectF(QPointF(0, 0), cell).adjusted(DiscMargin, DiscMargin, -DiscMargin, -DiscMargin);
    drawFace(painter, box, Discs[disc].face, DiscBuild);
    drawShape(painter, Discs[disc].sign, OnDisc);
}

// clang-format off
const Picture Pictures[] = {
    { "back.png",             30, 30, 1, 1, drawDisc, Back, OnBoth },
    { "Forward.png",          30, 30, 1, 1, drawDisc, Forward, OnBoth },
    { "Reload.png",           30, 30, 1, 1, drawDisc, Reload, OnBoth },
    { "Stop.png",             30, 30, 1, 1, drawDisc, Stop, OnBoth },
    { "fileopen.png",         32, 32, 1, 1, drawIcon, Folder, OnLight },
    { "bluetooth-device.png", 32, 32, 1, 1, drawIcon, Radio, OnLight },
    { "computer-laptop.png",  32, 32, 1, 1, drawIcon, Laptop, OnLight },
    { "mobile-phone.png",     32, 32, 1, 1, drawIcon, Phone, OnLight },
    { "zoom.png",             22, 22, 1, 1, drawIcon, Magnifier, OnLight },
};
// clang-format on

} // namespace

PictureGroup iconPictures()
{
    const PictureGroup group = {"Icons", Pictures, sizeof(Pictures) / sizeof(Pictures[0])};
    return group;
}
