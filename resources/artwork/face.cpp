#include "face.h"

#include <QPainter>
#include <QPainterPath>
#include <QRectF>

namespace
{

const int EdgeShade = 118; // the edge is the fill, 15 % darker
const qreal EdgeHeight = 1;

// clang-format off
const Face ToolFaces[] = {
    { Palette::Slate, true, 0, 0, 0 },
    PressedFace,
    { Palette::Selected, false, Palette::Lavender, 1, 3 },
};
// clang-format on

QRectF inset(const QRectF& box, qreal by)
{
    return box.adjusted(by, by, -by, -by);
}

void fillRounded(QPainter& painter, const QRectF& box, qreal radius, const QColor& colour)
{
    QPainterPath path;
    path.addRoundedRect(box, qMax<qreal>(radius, 0), qMax<qreal>(radius, 0));
    painter.fillPath(path, colour);
}

// The edge shows below the fill, which ends a pixel higher; the upper corners stay the fill's own.
void fillEdge(QPainter& painter, const QRectF& box, qreal radius, const QColor& fill)
{
    painter.save();
    painter.setClipRect(box.adjusted(0, box.height() / 2, 0, 0), Qt::IntersectClip);
    fillRounded(painter, box, radius, fill.darker(EdgeShade));
    painter.restore();
}

} // namespace

void drawFace(QPainter& painter, const QRectF& box, const Face& face, qreal radius)
{
    const QColor fill = QColor::fromRgba(face.fill);
    if (face.edge)
        fillEdge(painter, box, radius, fill);
    if (face.lineBox > 0 || face.lineEnd == face.lineBox)
        fillRounded(painter, face.edge ? box.adjusted(0, 0, 0, -EdgeHeight) : box, radius, fill);
    if (face.lineEnd == face.lineBox)
        return;
    fillRounded(painter, inset(box, face.lineBox), radius - face.lineBox,
                QColor::fromRgba(face.line));
    fillRounded(painter, inset(box, face.lineEnd), radius - face.lineEnd, fill);
}

const Face& toolFace(Look look)
{
    return ToolFaces[look];
}
