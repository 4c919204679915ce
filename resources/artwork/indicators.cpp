#include "face.h"
#include "palette.h"
#include "picture.h"
#include "shape.h"

#include <QConicalGradient>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QRectF>

namespace
{

// --- lamps ---------------------------------------------------------------------------------------

struct Lamp {
    QRgb core;
    QRgb glass;
    QRgb deep;
    int shineAlpha;
};

// clang-format off
const Lamp Lamps[] = {
    // core       glass       deep       shine
    { 0xff868b9d, 0xff5f6476, 0xff40444f,  80 }, // off
    { 0xffb9ffc4, 0xff35c95f, 0xff0f7a36, 190 }, // green
    { 0xfffffbd0, 0xfff5d328, 0xffb38c00, 210 }, // yellow
    { 0xffffe3b5, 0xfff58a1f, 0xffa94e00, 190 }, // orange
    { 0xffffc4bf, 0xffe53a3c, 0xff8f1216, 180 }, // red
    { 0xffcdeaff, 0xff3f93ee, 0xff14539f, 190 }, // blue
};
// clang-format on

const qreal BezelWidth = 2;
const QRgb BezelTop = 0xff2b2e39;
const QRgb BezelBottom = 0xff7b8092;
const QRgb BezelInside = 0xff20222b;
const qreal LampMargin = 0.5;
const qreal CoreHeight = 0.62; // the light's middle, as a part of the glass from its top
const qreal GlassReach = 0.62; // the glass colour, as a part of the way to the rim

void fillCircle(QPainter& painter, const QPointF& centre, qreal radius, const QBrush& brush)
{
    QPainterPath circle;
    circle.addEllipse(centre, radius, radius);
    painter.fillPath(circle, brush);
}

void drawBezel(QPainter& painter, const QPointF& centre, qreal radius)
{
    QLinearGradient ring(centre.x(), centre.y() - radius, centre.x(), centre.y() + radius);
    ring.setColorAt(0, QColor(BezelTop));
    ring.setColorAt(1, QColor(BezelBottom));
    fillCircle(painter, centre, radius, ring);
    fillCircle(painter, centre, radius - BezelWidth / 2, QColor(BezelInside));
}

void drawGlass(QPainter& painter, const QPointF& centre, qreal radius, const Lamp& lamp)
{
    const QPointF light(centre.x(), centre.y() - radius + 2 * radius * CoreHeight);
    QRadialGradient glass(light, 1.5 * radius);
    glass.setColorAt(0, QColor(lamp.core));
    glass.setColorAt(GlassReach, QColor(lamp.glass));
    glass.setColorAt(1, QColor(lamp.deep));
    fillCircle(painter, centre, radius, glass);

    QPainterPath shine;
    shine.addEllipse(
        QRectF(centre.x() - 0.6 * radius, centre.y() - 0.85 * radius, 1.2 * radius, 0.75 * radius));
    QLinearGradient fade(0, centre.y() - radius, 0, centre.y());
    fade.setColorAt(0, translucent(Palette::White, lamp.shineAlpha));
    fade.setColorAt(1, translucent(Palette::White, 0));
    painter.fillPath(shine, fade);
}

// \a diameter is that of the area which users of the strip cut out of each cell.
void drawLamp(QPainter& painter, const QSize&, int index, int diameter)
{
    const QPointF centre(diameter / 2.0, diameter / 2.0);
    const qreal radius = diameter / 2.0 - LampMargin;
    drawBezel(painter, centre, radius);
    drawGlass(painter, centre, radius - BezelWidth, Lamps[index]);
}

// --- clock ---------------------------------------------------------------------------------------

const int ClockFrames = 11; // one turn
const qreal FullTurn = 360;
const int ClockMarks = 12;
const int MarksPerQuarter = 3;

const QRgb ClockEdge = 0xff45415f;
const QRgb ClockRingTop = 0xffe8e7ff;
const QRgb ClockRingBottom = 0xff9d99c4;
const QRgb ClockDial = 0xff2b2c3a;
const QRgb ClockTrail = 0xff746ea5;
const QRgb ClockMark = 0xff77758f;
const QRgb ClockHand = 0xffffffff;

const qreal ClockRadius = 14.5;
const qreal ClockRingRadius = 13.5;
const qreal ClockDialRadius = 11.5;
const qreal ClockTrailLength = 0.7; // of a turn
const qreal ClockMarkOuter = 10.5;
const qreal ClockMarkInner = 9;
const qreal ClockHandLength = 8.5;
const qreal ClockHandWidth = 2;
const qreal ClockHubRadius = 2;

void drawClockFace(QPainter& painter)
{
    QLinearGradient ring(0, -ClockRingRadius, 0, ClockRingRadius);
    ring.setColorAt(0, QColor(ClockRingTop));
    ring.setColorAt(1, QColor(ClockRingBottom));
    fillCircle(painter, QPointF(0, 0), ClockRadius, QColor(ClockEdge));
    fillCircle(painter, QPointF(0, 0), ClockRingRadius, ring);
    fillCircle(painter, QPointF(0, 0), ClockDialRadius, QColor(ClockDial));
}

// A fading sector behind the hand, which points up.
void drawClockTrail(QPainter& painter)
{
    QConicalGradient trail(0, 0, FullTurn / 4);
    trail.setColorAt(0, QColor(ClockTrail));
    trail.setColorAt(ClockTrailLength, translucent(ClockTrail, 0));
    trail.setColorAt(1, translucent(ClockTrail, 0));
    fillCircle(painter, QPointF(0, 0), ClockDialRadius, trail);
}

void drawClockMarks(QPainter& painter)
{
    painter.save();
    for (int mark = 0; mark < ClockMarks; ++mark) {
        const QRgb colour = mark % MarksPerQuarter == 0 ? Palette::Lavender : ClockMark;
        painter.setPen(QPen(QBrush(QColor(colour)), 1, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(QPointF(0, -ClockMarkInner), QPointF(0, -ClockMarkOuter));
        painter.rotate(FullTurn / ClockMarks);
    }
    painter.restore();
}

void drawClockHand(QPainter& painter)
{
    painter.setPen(QPen(QBrush(QColor(ClockHand)), ClockHandWidth, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(0, 0), QPointF(0, -ClockHandLength));
    fillCircle(painter, QPointF(0, 0), ClockHubRadius, QColor(ClockHand));
}

void drawClock(QPainter& painter, const QSize& cell, int frame, int)
{
    const qreal turn = FullTurn * frame / ClockFrames;
    painter.translate(cell.width() / 2.0, cell.height() / 2.0);
    drawClockFace(painter);
    painter.rotate(turn);
    drawClockTrail(painter);
    painter.rotate(-turn);
    drawClockMarks(painter);
    painter.rotate(turn);
    drawClockHand(painter);
}

// --- check box and backlight ---------------------------------------------------------------------

// Not checked, checked, partly checked
const char* const CheckMarks[] = {
    "Dps1 R 1.5 1.5 13 13 2",
    "Daa1 R 1.5 1.5 13 13 2;Sp2 M 4.5 8.25 L 7 10.75 L 11.75 5.25",
    "Dpa1 R 1.5 1.5 13 13 2;Fa R 4 7 8 2 0",
};

const Scheme CheckColours = {Palette::Ink, Palette::Violet, Palette::White, 0xff62667a};

void drawCheckBox(QPainter& painter, const QSize&, int look, int)
{
    drawShape(painter, CheckMarks[look], CheckColours);
}

// A sun on a button face that gains light: dim, medium, full
const char* const Suns[] = {
    "Ss2 O 20 20 4;"
    "Fs O 20 11 1 O 20 29 1 O 11 20 1 O 29 20 1 O 13.6 13.6 1 O 26.4 13.6 1 O 13.6 26.4 1 "
    "O 26.4 26.4 1",
    "Dsa2 O 20 20 4.5;"
    "Sa2 M 20 11.5 L 20 10.5 M 20 28.5 L 20 29.5 M 11.5 20 L 10.5 20 M 28.5 20 L 29.5 20 "
    "M 13.8 13.8 L 13.1 13.1 M 26.2 13.8 L 26.9 13.1 M 13.8 26.2 L 13.1 26.9 "
    "M 26.2 26.2 L 26.9 26.9",
    "Dpa2 O 20 20 5;"
    "Sa2 M 20 11 L 20 8 M 20 29 L 20 32 M 11 20 L 8 20 M 29 20 L 32 20 "
    "M 13.6 13.6 L 11.5 11.5 M 26.4 13.6 L 28.5 11.5 M 13.6 26.4 L 11.5 28.5 "
    "M 26.4 26.4 L 28.5 28.5",
};

const Scheme SunColours = {Palette::Ink, 0xffffd166, 0xfffff6d8, 0xffc9a55c};

void drawBacklight(QPainter& painter, const QSize& cell, int level, int)
{
    drawFace(painter, QRectF(QPointF(0, 0), cell), neutralFace(Raised));
    drawShape(painter, Suns[level], SunColours);
}

// clang-format off
const Picture Pictures[] = {
    { "BB_LIGHT_4states.png",      120, 20,  6, 1, drawLamp,      19, OnBoth },
    { "led_16X16 pixels.png",       96, 16,  6, 1, drawLamp,      16, OnBoth },
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
