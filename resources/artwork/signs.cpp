#include "palette.h"
#include "picture.h"
#include "shape.h"

#include <QPainter>
#include <QPainterPath>
#include <QRectF>

namespace
{

// Signs of the title strip: light, with a thin dark outline for a light ground.

// --- wireless ------------------------------------------------------------------------------------

const int WirelessSteps = 4; // dot and three arcs: 25, 50, 75, 100 percent
const qreal WirelessRadii[WirelessSteps] = {0, 6, 10.5, 15}; // px in a box of 24
const QRgb WirelessLit = Palette::GreenLit;
const qreal WirelessFootX = 12;
const qreal WirelessFootY = 19;
const qreal WirelessDotRadius = 2.25;
const qreal WirelessWidth = 2.5;
const qreal WirelessOutline = 1; // on each side; fills the gap between two arcs
const qreal WirelessFrom = 48;   // degrees
const qreal WirelessSpan = 84;

QPainterPath wirelessStep(int step)
{
    QPainterPath path;
    const QPointF foot(WirelessFootX, WirelessFootY);
    if (step == 0) {
        path.addEllipse(foot, WirelessDotRadius, WirelessDotRadius);
        return path;
    }
    const qreal radius = WirelessRadii[step];
    const QRectF circle(foot.x() - radius, foot.y() - radius, 2 * radius, 2 * radius);
    path.arcMoveTo(circle, WirelessFrom);
    path.arcTo(circle, WirelessFrom, WirelessSpan);
    QPainterPathStroker stroker;
    stroker.setWidth(WirelessWidth);
    stroker.setCapStyle(Qt::RoundCap);
    return stroker.createStroke(path);
}

// \a level is the number of lit steps.
void drawWireless(QPainter& painter, const QSize&, int, int level)
{
    const QPen outline(QBrush(QColor(Palette::Outline)), 2 * WirelessOutline, Qt::SolidLine,
                       Qt::RoundCap, Qt::RoundJoin);
    for (int step = 0; step < level; ++step)
        painter.strokePath(wirelessStep(step), outline);
    for (int step = 0; step < WirelessSteps; ++step)
        painter.fillPath(wirelessStep(step), QColor(step < level ? WirelessLit : Palette::Idle));
}

const qreal ConnectedScale = 1.25;

// The full sign with a green tick.
void drawConnected(QPainter& painter, const QSize& cell, int, int)
{
    static const Scheme colours = {Palette::Outline, Palette::Green, Palette::White, Palette::Idle};
    painter.save();
    painter.scale(ConnectedScale, ConnectedScale);
    drawWireless(painter, cell, 0, WirelessSteps);
    painter.restore();
    drawShape(painter, "Dai1.5 O 25 25 6;Sp2 M 22.25 25.25 L 24.25 27.25 L 27.75 23", colours);
}

// --- lock and shield -----------------------------------------------------------------------------

enum Sign {
    Lock,
    Shield
};

const char* const Signs[] = {
    "Si4 M 5 8 L 5 5.5 A 8 5.5 3 180 -180 L 11 8;"
    "Sp2 M 5 8 L 5 5.5 A 8 5.5 3 180 -180 L 11 8;"
    "Dai1 R 2.5 7.5 11 7 1.5;Fi O 8 10.5 1.25 R 7.5 10.5 1 2.5 0",
    "Dsi1 M 8 1 C 10 2.4 12 2.9 14 3 L 14 8 C 14 11.6 11.5 14 8 15.3 "
    "C 4.5 14 2 11.6 2 8 L 2 3 C 4 2.9 6 2.4 8 1 Z;"
    "Sp2 M 5.25 8 L 7.25 10 L 10.75 6",
};

const Scheme SignColours = {Palette::Outline, 0xfff5bf52, Palette::White, Palette::Green};

void drawSign(QPainter& painter, const QSize&, int, int sign)
{
    drawShape(painter, Signs[sign], SignColours);
}

// clang-format off
const Picture Pictures[] = {
    { "wireless-0.png",         24, 24, 1, 1, drawWireless,  0, OnBoth },
    { "wireless-25.png",        24, 24, 1, 1, drawWireless,  1, OnBoth },
    { "wireless-50.png",        24, 24, 1, 1, drawWireless,  2, OnBoth },
    { "wireless-75.png",        24, 24, 1, 1, drawWireless,  3, OnBoth },
    { "wireless-100.png",       24, 24, 1, 1, drawWireless,  4, OnBoth },
    { "wireless-connected.png", 32, 32, 1, 1, drawConnected, 0, OnBoth },
    { "object-locked.png",      16, 16, 1, 1, drawSign,      Lock, OnBoth },
    { "security.png",           16, 16, 1, 1, drawSign,      Shield, OnBoth },
};
// clang-format on

} // namespace

PictureGroup signPictures()
{
    const PictureGroup group = {"Signs of the title strip", Pictures,
                                sizeof(Pictures) / sizeof(Pictures[0])};
    return group;
}
