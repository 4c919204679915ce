#include "face.h"

#include "palette.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRectF>

namespace
{

// Widths in px, opacities from 0 to 255
const int HighlightAlpha = 78;
const int LipAlpha = 56;
const qreal ShadowHeight = 7;
const int ShadowAlpha = 120;
const int RefractionAlpha = 40;
const qreal GlowWidth = 0.25; // wider than the rim
const int GlowAlpha = 60;
const qreal PlateLineWidth = 1;

// clang-format off
const Face NeutralFaces[] = {
    // depth   top         bottom      edge        rim
    { Raised, 0xff6d7383, 0xff555a69, 0xff383c48, 0          },
    { Sunken, 0xff454956, 0xff4f5462, 0xff2c2f39, 0          },
    { Lit,    0xff5c5880, 0xff6f6a94, 0xff403c5c, 0xffdedcff },
    { Plate,  0xff5d5f6e, 0xff5d5f6e, 0xff5d5f6e, 0xff80839a },
};
// clang-format on

QRectF inset(const QRectF& box, qreal by)
{
    return box.adjusted(by, by, -by, -by);
}

QPainterPath rounded(const QRectF& box, qreal radius)
{
    QPainterPath path;
    path.addRoundedRect(box, qMax<qreal>(radius, 0), qMax<qreal>(radius, 0));
    return path;
}

QLinearGradient downward(const QRectF& box, const QColor& top, const QColor& bottom)
{
    QLinearGradient gradient(box.topLeft(), box.bottomLeft());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    return gradient;
}

void drawInnerLine(QPainter& painter, const QRectF& body, const QColor& colour, qreal width,
                   qreal radius)
{
    painter.strokePath(rounded(inset(body, width / 2), radius - width / 2),
                       QPen(QBrush(colour), width));
}

void drawRaised(QPainter& painter, const QRectF& body, qreal radius, qreal lip)
{
    const QPainterPath shape = rounded(body, radius);
    painter.fillPath(shape - shape.translated(0, 1), translucent(Palette::White, HighlightAlpha));
    painter.fillPath(shape - shape.translated(0, -lip), translucent(Palette::Black, LipAlpha));
}

void drawSunken(QPainter& painter, const QRectF& body, qreal radius)
{
    const QRectF shadow(body.topLeft(), QSizeF(body.width(), ShadowHeight));
    const QPainterPath shape = rounded(body, radius);
    QPainterPath upper;
    upper.addRect(shadow);
    painter.fillPath(shape & upper, downward(shadow, translucent(Palette::Black, ShadowAlpha),
                                             translucent(Palette::Black, 0)));
    painter.fillPath(shape - shape.translated(0, -1), translucent(Palette::White, RefractionAlpha));
}

void drawLit(QPainter& painter, const QRectF& body, qreal radius, QRgb colour, qreal rim)
{
    drawInnerLine(painter, body, translucent(colour, GlowAlpha), rim + GlowWidth, radius);
    drawInnerLine(painter, body, QColor(colour), rim, radius);
}

} // namespace

void drawFace(QPainter& painter, const QRectF& box, const Face& face, const Build& build)
{
    const QRectF body = inset(box, build.edge);
    const qreal radius = build.radius - build.edge;
    painter.fillPath(rounded(box, build.radius), QColor(face.edge));
    painter.fillPath(rounded(body, radius), downward(body, QColor(face.top), QColor(face.bottom)));
    switch (face.depth) {
    case Raised:
        drawRaised(painter, body, radius, build.lip);
        break;
    case Sunken:
        drawSunken(painter, body, radius);
        break;
    case Lit:
        drawLit(painter, body, radius, face.rim, build.rim);
        break;
    case Plate:
        drawInnerLine(painter, body, QColor(face.rim), PlateLineWidth, radius);
        break;
    }
}

const Face& neutralFace(Depth depth)
{
    return NeutralFaces[depth];
}
