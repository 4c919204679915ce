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
/// it once: when it is drawn for the second time, in the same font and on the same kind of device.
class ShapedText
{
public:
    ShapedText();

    void draw(QPainter* painter, const QRect& area, const QString& text);

private:
    bool hasShape(QPainter* painter, const QString& text);
    bool wasDrawn(const QPainter* painter, const QString& text) const;
    void note(const QPainter* painter, const QString& text);
    void shape(QPainter* painter);
    bool fits(const QRect& area) const;
    QPointF place(const QRectF& area) const;

    QString m_text;
    QFont m_font;
    QString m_family;
    bool m_isShaped;
    int m_dpi;
    QStaticText m_shape;
    QSizeF m_size;
    qreal m_advance;
};

#endif
