#include "palette.h"
#include "picture.h"
#include "shape.h"

#include <QPainter>
#include <QPainterPath>
#include <QRectF>

namespace
{

// Signs of the title strip: white where active, for its dark background.

// --- wireless ------------------------------------------------------------------------------------

const int WirelessSteps = 4; // dot and three arcs: 25, 50, 75, 100 percent
const qreal WirelessRadii[WirelessSteps] = {0, 6, 10.5, 15}; // px in a box of 24
const qreal WirelessFootX = 12;
const qreal WirelessFootY = 19;
const qreal WirelessDotRadius = 2;
const qreal WirelessWidth = 2;
const qreal WirelessFrom = 48; // degrees
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
    for (int step = 0; step < WirelessSteps; ++step)
        painter.fillPath(wirelessStep(step),
                         QColor(step < level ? Palette::White : Palette::Inactive));
}

const qreal ConnectedScale = 1.25;

// The full sign with a green tick.
void drawConnected(QPainter& painter, const QSize& cell, int, int)
{
    static const Scheme colours = {Palette::Pressed, Palette::GreenLit, Palette::White,
                                   Palette::Inactive};
    painter.save();
    painter.scale(ConnectedScale, ConnectedScale);
    drawWireless(painter, cell, 0, WirelessSteps);
    painter.restore();
    drawShape(painter, "Fa O 25 25 6;Si2 M 22.25 25.25 L 24.25 27.25 L 27.75 23", colours);
}

// --- lock and shield -----------------------------------------------------------------------------

enum Sign {
    Lock,
    Shield
};

const char* const Signs[] = {
    "Sp2 R 2 8 12 7 1.5 M 5 8 L 5 4 A 8 4 3 180 -180 L 11 8;Fp O 8 11.5 1.25",
    "Sp2 M 8 1.25 L 14 3.25 L 14 8 C 14 11.5 11.5 13.75 8 14.75 C 4.5 13.75 2 11.5 2 8 "
    "L 2 3.25 Z M 5.5 7.75 L 7.25 9.5 L 10.5 6",
};

const Scheme SignColours = {Palette::Ink, Palette::Attention, Palette::White, Palette::Inactive};

void drawSign(QPainter& painter, const QSize&, int, int sign)
{
    drawShape(painter, Signs[sign], SignColours);
}

// clang-format off
const Picture Pictures[] = {
    { "wireless-0.png",         24, 24, 1, 1, drawWireless,  0, OnDark },
    { "wireless-25.png",        24, 24, 1, 1, drawWireless,  1, OnDark },
    { "wireless-50.png",        24, 24, 1, 1, drawWireless,  2, OnDark },
    { "wireless-75.png",        24, 24, 1, 1, drawWireless,  3, OnDark },
    { "wireless-100.png",       24, 24, 1, 1, drawWireless,  4, OnDark },
    { "wireless-connected.png", 32, 32, 1, 1, drawConnected, 0, OnDark },
    { "object-locked.png",      16, 16, 1, 1, drawSign,      Lock, OnDark },
    { "security.png",           16, 16, 1, 1, drawSign,      Shield, OnDark },
};
// clang-format on

} // namespace

PictureGroup signPictures()
{
    const PictureGroup group = {"Signs of the title strip", Pictures,
                                sizeof(Pictures) / sizeof(Pictures[0])};
    return group;
}
