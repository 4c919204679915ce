#ifndef CWIDGET_WIDGETS_CELLTEXT_P_H
#define CWIDGET_WIDGETS_CELLTEXT_P_H

#include <QChar>
#include <QFontMetrics>
#include <QHash>
#include <QPoint>
#include <QPointF>
#include <QRawFont>
#include <QRectF>
#include <QVector>

class QPainter;
class QTextLine;

/// Draws single characters, each in the middle of a cell of its own width, pixel by pixel as
/// QPainter::drawText() does. Shapes a character that comes often just once, and draws as many as
/// possible at once, some of them only with flush().
class CellText
{
public:
    CellText(QPainter* painter, int height);
    ~CellText();

    int widthOf(QChar ch);
    void draw(QChar ch, const QPoint& corner);
    void flush();

private:
    /// A character, how often it came, and its glyph with its place in the cell, if it has just
    /// one.
    struct Cell {
        int width;
        int count;
        bool isGlyph;
        QRawFont font;
        quint32 glyph;
        QPointF place;
    };

    Cell& cellOf(QChar ch);
    void shape(QChar ch, Cell* cell) const;
    QRectF areaOf(const Cell& cell) const;
    QRectF inMiddle(qreal width, const QTextLine& line, const Cell& cell) const;
    bool staysInside(const Cell& cell) const;

    QPainter* m_painter;
    QFontMetrics m_metrics;
    int m_height;
    bool m_drawsGlyphs;
    bool m_isOpaque;
    QHash<QChar, Cell> m_cells;
    QRawFont m_font;
    QVector<quint32> m_glyphs;
    QVector<QPointF> m_places;

    Q_DISABLE_COPY(CellText)
};

#endif
