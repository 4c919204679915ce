#ifndef CWIDGET_WIDGETS_PAINTING_P_H
#define CWIDGET_WIDGETS_PAINTING_P_H

#include <QColor>
#include <QRect>
#include <QRegion>

class QPainter;
class QPixmap;
class QWidget;

// What several widgets paint alike.
namespace painting
{

bool isAligned(const QPainter* painter);
bool isOpaque(const QColor& color);
void markGround(QWidget* widget, const QColor& color);
void changeGround(QWidget* widget, const QColor& color);
bool isCovered(const QPainter* painter, const QRect& rect, const QPixmap& pixmap);
QRect borderRect(const QSize& size, int borderWidth);

void drawFill(QPainter* painter, const QRect& rect, const QColor& color,
              const QRegion& region = QRegion());
void drawBorder(QPainter* painter, const QSize& size, int borderWidth, const QColor& borderColor,
                const QColor& backgroundColor);
void drawThinFrame(QWidget* widget);

} // namespace painting

#endif
