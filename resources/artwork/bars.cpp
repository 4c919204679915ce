#include "face.h"
#include "palette.h"
#include "picture.h"
#include "shape.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRectF>

namespace
{

enum EntryLook {
    EntryNormal,
    EntryPressed,
    EntrySelected,
    EntryDisabled
};
enum CloseLook {
    CloseReleased,
    ClosePressed,
    CloseSelected
};

// A stretch of the bar across the screen: title ground or menu entry.
struct BarFace {
    QRgb top;
    QRgb bottom;
    int highlightAlpha; // first line
    int shadowAlpha;    // below the first line, while pressed
    QRgb base;          // accent line along the bottom
    int baseHeight;     // px, without the edge below it
};

// clang-format off
const BarFace BarFaces[] = {
    // top              bottom               light shadow base       height
    { Palette::BarTop, Palette::BarBottom,    46,    0, 0xff6f6a94, 2 },
    { 0xff2d303d,      0xff343746,             0,  130, 0xff8f89bd, 2 },
    { 0xff7771a0,      0xff5b5680,            84,    0, 0xffe0e0ff, 2 },
    { 0xff575a69,      0xff575a69,             0,    0, 0xff6d7082, 2 },
};
// clang-format on

const QRgb BarEdge = 0xff20222c; // last line
const qreal BarEdgeHeight = 1;
const qreal BarShadowHeight = 8;
const int SeparatorDarkAlpha = 90;
const int SeparatorLightAlpha = 26;

void fillVertical(QPainter& painter, const QRectF& box, const QColor& top, const QColor& bottom)
{
    QLinearGradient gradient(box.topLeft(), box.bottomLeft());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    painter.fillRect(box, gradient);
}

void drawBarFace(QPainter& painter, const QRectF& box, const BarFace& face)
{
    const qreal w = box.width();
    fillVertical(painter, box, QColor(face.top), QColor(face.bottom));
    painter.fillRect(QRectF(0, 0, w, 1), translucent(Palette::White, face.highlightAlpha));
    if (face.shadowAlpha > 0)
        fillVertical(painter, QRectF(0, 0, w, BarShadowHeight),
                     translucent(Palette::Black, face.shadowAlpha), translucent(Palette::Black, 0));
    const qreal edge = box.height() - BarEdgeHeight;
    painter.fillRect(QRectF(0, edge - face.baseHeight, w, face.baseHeight), QColor(face.base));
    painter.fillRect(QRectF(0, edge, w, BarEdgeHeight), QColor(BarEdge));
}

void drawTitleGround(QPainter& painter, const QSize& cell, int, int)
{
    drawBarFace(painter, QRectF(QPointF(0, 0), cell), BarFaces[EntryNormal]);
}

// Neighbours part by a light line at the left and a dark one at the right.
void drawMenuEntry(QPainter& painter, const QSize& cell, int look, int)
{
    drawBarFace(painter, QRectF(QPointF(0, 0), cell), BarFaces[look]);
    const qreal h = cell.height() - BarFaces[look].baseHeight - BarEdgeHeight;
    painter.fillRect(QRectF(0, 0, 1, h), translucent(Palette::White, SeparatorLightAlpha));
    painter.fillRect(QRectF(cell.width() - 1, 0, 1, h),
                     translucent(Palette::Black, SeparatorDarkAlpha));
}

// --- close button of the title strip -------------------------------------------------------------

const qreal CloseInset = 6;
const Build CloseBuild = {4, 1, 2, 1.5};
const char CloseCross[] = "Sp2.5 M 16.5 16.5 L 27.5 27.5 M 27.5 16.5 L 16.5 27.5";
const Scheme CloseColours = {Palette::Ink, Palette::Red, Palette::White, Palette::Idle};

// clang-format off
const Face CloseFaces[] = {
    { Raised, 0xff6d7083, 0xff55586a, 0xff292b37, 0          },
    { Sunken, 0xff751b20, 0xff8a252b, 0xff3a0a0d, 0          },
    { Lit,    0xffb01e26, 0xffd5303a, 0xff4e0a0f, 0xffffb6b3 },
};
// clang-format on

void drawClose(QPainter& painter, const QSize& cell, int look, int)
{
    const QRectF box(QPointF(0, 0), cell);
    drawBarFace(painter, box, BarFaces[EntryNormal]);
    drawFace(painter, box.adjusted(CloseInset, CloseInset, -CloseInset, -CloseInset),
             CloseFaces[look], CloseBuild);
    painter.translate(0, look == ClosePressed ? 1 : 0);
    drawShape(painter, CloseCross, CloseColours);
}

// --- grounds of the page -------------------------------------------------------------------------

const Face GroupFace = {Raised, 0xfff6f6ff, 0xffd6d6f2, 0xff9a97bd, 0};

void drawGroupGround(QPainter& painter, const QSize& cell, int, int)
{
    drawFace(painter, QRectF(QPointF(0, 0), cell), GroupFace);
}

const qreal FrameRadius = 4;
const qreal FrameWidth = 3;
const qreal FrameLineWidth = 1;
const int FrameFillAlpha = 40;

void strokeFrame(QPainter& painter, const QRectF& box, QRgb colour, qreal width, qreal inset)
{
    const qreal in = inset + width / 2;
    const qreal radius = qMax<qreal>(FrameRadius - in, 0);
    painter.setPen(QPen(QBrush(QColor(colour)), width));
    painter.drawRoundedRect(box.adjusted(in, in, -in, -in), radius, radius);
}

void drawSelectionFrame(QPainter& painter, const QSize& cell, int, int)
{
    const QRectF box(QPointF(0, 0), cell);
    QPainterPath area;
    area.addRoundedRect(box, FrameRadius, FrameRadius);
    painter.fillPath(area, translucent(Palette::VioletLit, FrameFillAlpha));
    strokeFrame(painter, box, Palette::Violet, FrameWidth, 0);
    strokeFrame(painter, box, Palette::Lavender, FrameLineWidth, FrameWidth);
}

// clang-format off
const Picture Pictures[] = {
    { "UTIL_TB_BKGROUND.png",         800,  44, 1, 1, drawTitleGround,    0, OnLight },
    { "TB_CLOSE_3states.png",         132,  44, 3, 1, drawClose,          0, OnLight },
    { "menuentry_top-140x50.png",     560,  50, 4, 1, drawMenuEntry,      0, OnLight },
    { "menuentry_top.png",            480,  40, 4, 1, drawMenuEntry,      0, OnLight },
    { "group-background_120X30.png",  120,  30, 1, 1, drawGroupGround,    0, OnLight },
    { "main-area_selection.png",      120, 120, 1, 1, drawSelectionFrame, 0, OnBoth },
};
// clang-format on

} // namespace

PictureGroup barPictures()
{
    const PictureGroup group = {"Bars and grounds", Pictures,
                                sizeof(Pictures) / sizeof(Pictures[0])};
    return group;
}
