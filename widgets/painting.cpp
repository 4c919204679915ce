#include "widgets/painting_p.h"

#include "style/qtcompat.h"
#include "widgets/metrics_p.h"

#include <QPainter>
#include <QPen>
#include <QPixmap>
#include <QWidget>

namespace painting
{

namespace
{

const int opaqueAlpha = 255;
const int widestPen = 32767; // that Qt draws with, and far more than any widget has

/// Whether Qt fills \a widget before it is painted, so that nothing under it is seen.
bool isFilledByQt(const QWidget* widget)
{
    return widget->autoFillBackground() &&
           widget->palette().brush(widget->backgroundRole()).isOpaque();
}

/// Fills the \a parts of a widget, one after the other: where other widgets leave many of them, Qt
/// would fill them all together line by line.
void fillParts(QPainter* painter, const QVector<QRect>& parts, const QColor& color)
{
    for (int i = 0; i < parts.size(); ++i) {
        painter->setClipRect(parts.at(i));
        painter->fillRect(parts.at(i), color);
    }
    painter->setClipping(false);
}

/// Whether a border of \a width pixels leaves something of \a size inside it.
bool hasInside(const QSize& size, int width)
{
    return size.width() / 2 > width && size.height() / 2 > width;
}

/// Fills the four sides of a border, which Qt would draw line by line.
void fillSides(QPainter* painter, const QSize& size, int width, const QColor& color)
{
    const int right = size.width() - width;
    const int bottom = size.height() - width;
    painter->fillRect(0, 0, size.width(), width, color);
    painter->fillRect(0, bottom, size.width(), width, color);
    painter->fillRect(0, width, width, bottom - width, color);
    painter->fillRect(right, width, width, bottom - width, color);
}

} // namespace

/// Whether the pixels of \a painter are those of its widget: it may be moved by whole pixels, but
/// not scaled or turned.
bool isAligned(const QPainter* painter)
{
    const QTransform transform = painter->deviceTransform();
    return transform.type() <= QTransform::TxTranslate &&
           transform.dx() == qRound(transform.dx()) && transform.dy() == qRound(transform.dy());
}

/// Whether nothing shines through an area that is filled with \a color.
bool isOpaque(const QColor& color)
{
    return color.isValid() && color.alpha() == opaqueAlpha;
}

/// Tells Qt whether it may leave out the fill that \a widget gets before it is painted, as its
/// whole ground has \a color then. To be told when it is painted, since a class that paints
/// otherwise does not come here, and since styles take the mark from buttons.
void markGround(QWidget* widget, const QColor& color)
{
    if (widget->isWindow() || isFilledByQt(widget))
        widget->setAttribute(Qt::WA_OpaquePaintEvent, isOpaque(color));
}

/// The ground of \a widget gets another \a color: already the next paint needs what is under it
/// when that shines through.
void changeGround(QWidget* widget, const QColor& color)
{
    if (!isOpaque(color))
        widget->setAttribute(Qt::WA_OpaquePaintEvent, false);
}

/// Whether \a pixmap, drawn into \a rect, hides all that is there, pixel for pixel.
bool isCovered(const QPainter* painter, const QRect& rect, const QPixmap& pixmap)
{
    const bool isBitmap = pixmap.depth() == 1; // whose zeros are clear
    return pixmap.size() == rect.size() && !isBitmap && !pixmap.hasAlphaChannel() &&
           isAligned(painter) && !(painter->opacity() < 1);
}

/// Where a pen of \a borderWidth pixels runs so that all of it lies inside \a size.
QRect borderRect(const QSize& size, int borderWidth)
{
    return QRect(borderWidth / 2, borderWidth / 2, size.width() - borderWidth,
                 size.height() - borderWidth);
}

/// Fills \a rect, which is all of a widget, with \a color; an invalid colour draws nothing. Of the
/// widget, \a region is to be painted.
/// Deliberate: the outline of a translucent colour is blended twice, by the brush and by the pen.
void drawFill(QPainter* painter, const QRect& rect, const QColor& color, const QRegion& region)
{
    if (!color.isValid())
        return;
    if (isOpaque(color) && isAligned(painter)) {
        if (region.rectCount() > 1)
            fillParts(painter, qtcompat::partsOf(region), color);
        else
            painter->fillRect(rect.adjusted(0, 0, 1, 1), color);
        return;
    }
    painter->setPen(color);
    painter->setBrush(QBrush(color, Qt::SolidPattern));
    painter->drawRect(rect);
}

/// Draws a border with sharp corners along the inside of \a size; nothing for a width below 1.
/// Without a valid \a borderColor the border has the \a backgroundColor, valid or not.
void drawBorder(QPainter* painter, const QSize& size, int borderWidth, const QColor& borderColor,
                const QColor& backgroundColor)
{
    if (borderWidth < 1)
        return;
    const int width = qMin(borderWidth, widestPen);
    const QColor color = borderColor.isValid() ? borderColor : backgroundColor;
    const bool isSmooth = painter->testRenderHint(QPainter::Antialiasing);
    if (isOpaque(color) && isAligned(painter) && !isSmooth && hasInside(size, width)) {
        fillSides(painter, size, width, color);
        return;
    }
    QPen pen(color);
    pen.setWidth(width);
    pen.setJoinStyle(Qt::MiterJoin);
    painter->setPen(pen);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(borderRect(size, width));
}

/// Draws a grey frame on the outermost pixels of \a widget.
void drawThinFrame(QWidget* widget)
{
    QPainter painter(widget);
    drawBorder(&painter, widget->size(), 1, metrics::thinFrameColor, QColor());
}

} // namespace painting
