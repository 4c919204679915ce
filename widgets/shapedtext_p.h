#ifndef CWIDGET_WIDGETS_SHAPEDTEXT_P_H
#define CWIDGET_WIDGETS_SHAPEDTEXT_P_H

#include <QFont>
#include <QRectF>
#include <QSizeF>
#include <QStaticText>
#include <QString>

class QPainter;
class QRect;

/// Draws a text in the middle of an area, pixel by pixel as QPainter::drawText() does, but shapes
/// it only when it draws another text, or the same one in another font or on another device.
class ShapedText
{
public:
    ShapedText();

    void draw(QPainter* painter, const QRect& area, const QString& text);

private:
    bool isShapeOf(const QPainter* painter, const QString& text) const;
    void shape(QPainter* painter, const QString& text);
    QPointF place(const QRectF& area) const;

    QString m_text;
    QFont m_font;
    QString m_family;
    int m_dpi;
    QStaticText m_shape;
    QSizeF m_size;
    qreal m_advance;
};

#endif
