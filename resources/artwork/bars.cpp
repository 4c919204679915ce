#include "face.h"
#include "palette.h"
#include "picture.h"
#include "shape.h"

#include <QPainter>
#include <QPainterPath>
#include <QRectF>

namespace
{

const qreal LineHeight = 1;

void drawTitleGround(QPainter& painter, const QSize& cell, int, int)
{
    painter.fillRect(QRectF(QPointF(0, 0), cell), QColor(Palette::Bar));
    painter.fillRect(QRectF(0, cell.height() - LineHeight, cell.width(), LineHeight),
                     QColor(Palette::Violet));
}

// --- menu entries: normal, pressed, selected, disabled -------------------------------------------

struct EntryFace {
    QRgb fill;
    QRgb divider; // last line
    QRgb mark;    // bar on the left
};

// clang-format off
const EntryFace EntryFaces[] = {
    { Palette::Bar,     Palette::Divider, Palette::Bar      },
    { Palette::Pressed, Palette::Divider, Palette::Halo     },
    { Palette::Violet,  Palette::Divider, Palette::Lavender },
    { 0xff373a48,       0xff373a48,       0xff373a48        },
};
// clang-format on

// The mark keeps its width of 5 px where a picture of 140 px stands in a menu column of 120.
void drawMenuEntry(QPainter& painter, const QSize& cell, int look, int markWidth)
{
    const EntryFace& face = EntryFaces[look];
    const qreal h = cell.height() - LineHeight;
    painter.fillRect(QRectF(QPointF(0, 0), cell), QColor(face.divider));
    painter.fillRect(QRectF(0, 0, cell.width(), h), QColor(face.fill));
    painter.fillRect(QRectF(0, 0, markWidth, h), QColor(face.mark));
}

// --- close button of the title strip -------------------------------------------------------------

const qreal CloseInset = 6;
const char CloseCross[] = "Sp2.5 M 16.5 16.5 L 27.5 27.5 M 27.5 16.5 L 16.5 27.5";
const Scheme CloseColours = {Palette::Ink, Palette::Red, Palette::White, Palette::Inactive};

void drawClose(QPainter& painter, const QSize& cell, int look, int)
{
    drawTitleGround(painter, cell, 0, 0);
    drawFace(painter,
             QRectF(QPointF(0, 0), cell).adjusted(CloseInset, CloseInset, -CloseInset, -CloseInset),
             toolFace(static_cast<Look>(look)), ButtonRadius);
    drawShape(painter, CloseCross, CloseColours);
}

// --- backgrounds of the page ---------------------------------------------------------------------

const Face GroupFace = {0xfff7f7ff, false, 0xffb9bbd2, 0, 1};

void drawGroupGround(QPainter& painter, const QSize& cell, int, int)
{
    drawFace(painter, QRectF(QPointF(0, 0), cell), GroupFace, ButtonRadius);
}

const qreal FrameWidth = 3;
const qreal FrameLineWidth = 1;
const int FrameFillAlpha = 40;

void strokeFrame(QPainter& painter, const QRectF& box, QRgb colour, qreal width, qreal inset)
{
    const qreal in = inset + width / 2;
    const qreal radius = ButtonRadius - in;
    painter.setPen(QPen(QBrush(QColor(colour)), width));
    painter.drawRoundedRect(box.adjusted(in, in, -in, -in), radius, radius);
}

void drawSelectionFrame(QPainter& painter, const QSize& cell, int, int)
{
    const QRectF box(QPointF(0, 0), cell);
    QPainterPath area;
    area.addRoundedRect(box, ButtonRadius, ButtonRadius);
    painter.fillPath(area, translucent(Palette::Halo, FrameFillAlpha));
    strokeFrame(painter, box, Palette::Violet, FrameWidth, 0);
    strokeFrame(painter, box, Palette::Lavender, FrameLineWidth, FrameWidth);
}

// clang-format off
const Picture Pictures[] = {
    { "UTIL_TB_BKGROUND.png",         800,  44, 1, 1, drawTitleGround,    0, OnLight },
    { "TB_CLOSE_3states.png",         132,  44, 3, 1, drawClose,          0, OnLight },
    { "menuentry_top-140x50.png",     560,  50, 4, 1, drawMenuEntry,      6, OnLight },
    { "menuentry_top.png",            480,  40, 4, 1, drawMenuEntry,      5, OnLight },
    { "group-background_120X30.png",  120,  30, 1, 1, drawGroupGround,    0, OnLight },
    { "main-area_selection.png",      120, 120, 1, 1, drawSelectionFrame, 0, OnBoth },
};
// clang-format on

} // namespace

PictureGroup barPictures()
{
    const PictureGroup group = {"Bars and backgrounds", Pictures,
                                sizeof(Pictures) / sizeof(Pictures[0])};
    return group;
}
