#include "face.h"
#include "palette.h"
#include "picture.h"
#include "shape.h"

#include <QPainter>
#include <QPainterPath>
#include <QRectF>

namespace
{

// --- lamps: each state has its own shape, for eyes that see no colours ---------------------------

const int LampStates = 6; // off, green, yellow, orange, red, blue

enum LampSize {
    LargeLamp,
    SmallLamp,
    LampSizes
};

// The deep colour of a lamp keeps its shape on a light background.
const Scheme LampColours[LampStates] = {
    {Palette::Steady, Palette::Steady, Palette::White, Palette::Steady},
    {Palette::Ink, 0xff35c46a, Palette::White, 0xff14703c},
    {Palette::Ink, 0xffffd23f, Palette::White, 0xff8a6a00},
    {Palette::Ink, 0xffff8a1f, Palette::White, 0xff8f4300},
    {Palette::Ink, 0xffe5484d, Palette::White, 0xff8a1c22},
    {Palette::Ink, 0xff2f7fd6, Palette::White, 0xff1c5596},
};

// Ring, disc, diamond, triangle, square, and a ring with a dot. The large strip is cut a pixel
// short of its pitch, so its lamps stand in 19 x 19.
const char* const Lamps[LampSizes][LampStates] = {
    {
        "Si2 O 9.5 9.5 7.5",
        "Das1 O 9.5 9.5 8",
        "Das1 M 9.5 1 L 18 9.5 L 9.5 18 L 1 9.5 Z",
        "Das1 M 9.5 1.5 L 18 16.5 L 1 16.5 Z",
        "Das1 R 2.5 2.5 14 14 1.5",
        "Sa2 O 9.5 9.5 7.5;Fa O 9.5 9.5 3.5",
    },
    {
        "Si2 O 8 8 6",
        "Das1 O 8 8 6.5",
        "Das1 M 8 1 L 15 8 L 8 15 L 1 8 Z",
        "Das1 M 8 1.5 L 15 13.5 L 1 13.5 Z",
        "Das1 R 2.5 2.5 11 11 1.5",
        "Sa2 O 8 8 6;Fa O 8 8 2.5",
    },
};

void drawLamp(QPainter& painter, const QSize&, int state, int size)
{
    drawShape(painter, Lamps[size][state], LampColours[state]);
}

// --- clock: a quiet dark middle for a text, and an arc that runs round the rim -------------------

const int ClockFrames = 11; // one turn
const qreal FullTurn = 360;
const qreal ClockRadius = 14.875;
const qreal ClockTrackRadius = 12.875;
const qreal ClockTrackWidth = 1.75;
const qreal ClockArcLength = 110; // degrees, up to its head, which starts at the top
const QRgb ClockDial = Palette::Bar;
const QRgb ClockTrack = 0xff4a4e64;

void strokeCircle(QPainter& painter, qreal from, qreal span, const QBrush& brush)
{
    const QRectF circle(-ClockTrackRadius, -ClockTrackRadius, 2 * ClockTrackRadius,
                        2 * ClockTrackRadius);
    QPainterPath path;
    path.arcMoveTo(circle, from);
    path.arcTo(circle, from, span);
    painter.strokePath(path, QPen(brush, ClockTrackWidth, Qt::SolidLine, Qt::RoundCap));
}

void drawClock(QPainter& painter, const QSize& cell, int frame, int)
{
    painter.translate(cell.width() / 2.0, cell.height() / 2.0);
    QPainterPath dial;
    dial.addEllipse(QPointF(0, 0), ClockRadius, ClockRadius);
    painter.fillPath(dial, QColor(ClockDial));
    strokeCircle(painter, 0, FullTurn, QColor(ClockTrack));
    painter.rotate(FullTurn * frame / ClockFrames);
    strokeCircle(painter, FullTurn / 4, ClockArcLength, QColor(Palette::Lavender));
}

// --- check box and backlight ---------------------------------------------------------------------

// Not checked, checked, partly checked
const char* const CheckMarks[] = {
    "Dpa2 R 2 2 12 12 2",
    "Daa2 R 2 2 12 12 2;Sp2 M 4.5 8.25 L 7 10.75 L 11.5 5.5",
    "Daa2 R 2 2 12 12 2;Sp2 M 5 8 L 11 8",
};

const Scheme CheckColours = {Palette::Ink, Palette::Violet, Palette::White, Palette::Inactive};

void drawCheckBox(QPainter& painter, const QSize&, int look, int)
{
    drawShape(painter, CheckMarks[look], CheckColours);
}

// A sun on a button face that gains light: dim, medium, full
const char* const Suns[] = {
    "Ss2 O 20 20 4.5 M 20 11 L 20 11.1 M 20 28.9 L 20 29 M 11 20 L 11.1 20 M 28.9 20 L 29 20 "
    "M 13.6 13.6 L 13.7 13.7 M 26.3 13.7 L 26.4 13.6 M 13.6 26.4 L 13.7 26.3 "
    "M 26.3 26.3 L 26.4 26.4",
    "Sp2 O 20 20 4.5 M 20 11.5 L 20 10 M 20 28.5 L 20 30 M 11.5 20 L 10 20 M 28.5 20 L 30 20 "
    "M 14 14 L 13 13 M 26 14 L 27 13 M 14 26 L 13 27 M 26 26 L 27 27",
    "Dpp2 O 20 20 4.5;"
    "Sp2 M 20 11.5 L 20 8 M 20 28.5 L 20 32 M 11.5 20 L 8 20 M 28.5 20 L 32 20 "
    "M 14 14 L 11.5 11.5 M 26 14 L 28.5 11.5 M 14 26 L 11.5 28.5 M 26 26 L 28.5 28.5",
};

const Scheme SunColours = {Palette::Ink, Palette::Attention, Palette::White, Palette::Inactive};

void drawBacklight(QPainter& painter, const QSize& cell, int level, int)
{
    drawFace(painter, QRectF(QPointF(0, 0), cell), toolFace(Released), ButtonRadius);
    drawShape(painter, Suns[level], SunColours);
}

// clang-format off
const Picture Pictures[] = {
    { "BB_LIGHT_4states.png",      120, 20,  6, 1, drawLamp,      LargeLamp, OnBoth },
    { "led_16X16 pixels.png",       96, 16,  6, 1, drawLamp,      SmallLamp, OnBoth },
    { "MISC_PROGCLK_11states.png", 330, 30, 11, 1, drawClock,      0, OnBoth },
    { "checkbox_3states.png",       48, 16,  3, 1, drawCheckBox,   0, OnLight },
    { "backlight.png",             120, 40,  3, 1, drawBacklight,  0, OnLight },
};
// clang-format on

} // namespace

PictureGroup indicatorPictures()
{
    const PictureGroup group = {"Indicators", Pictures, sizeof(Pictures) / sizeof(Pictures[0])};
    return group;
}
