#include "widgets/celltext_p.h"

#include "style/qtcompat.h"
#include "widgets/painting_p.h"

#include <QGlyphRun>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QTextLayout>
#include <QTextOption>

namespace
{

// A character that comes so seldom is drawn before it would be shaped.
const int countWorthShaping = 3;

/// Whether what \a painter draws stays where glyphs are placed, in pixels, and is nothing but
/// glyphs.
bool drawsGlyphsAsText(const QPainter* painter)
{
    const QFont font = painter->font();
    return qtcompat::placesGlyphs() && painter->paintEngine()->type() == QPaintEngine::Raster &&
           painting::isAligned(painter) && !font.underline() && !font.overline() &&
           !font.strikeOut();
}

/// Whether \a ch stands for itself, from left to right. Of all others, drawText() knows best what
/// they are.
bool isPlain(QChar ch)
{
    return ch.isPrint() && !ch.isMark() && !ch.isSurrogate() &&
           (ch.direction() == QChar::DirL || ch.unicode() < 0x80);
}

void drawGlyphs(QPainter* painter, const QRawFont& font, const QVector<quint32>& glyphs,
                const QVector<QPointF>& places)
{
    QGlyphRun run;
    run.setRawFont(font);
    run.setGlyphIndexes(glyphs);
    run.setPositions(places);
    painter->drawGlyphRun(QPointF(), run);
}

bool isBlack(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        const QRgb* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if ((line[x] & RGB_MASK) != 0)
                return false;
        }
    }
    return true;
}

} // namespace

/// All cells have \a height pixels. Draws with the pen and the font that \a painter has now.
CellText::CellText(QPainter* painter, int height)
    : m_painter(painter),
      m_metrics(painter->font()),
      m_height(height),
      m_drawsGlyphs(drawsGlyphsAsText(painter)),
      m_isOpaque(painting::isOpaque(painter->pen().color()))
{
}

CellText::~CellText()
{
    flush();
}

/// The width of the cell of \a ch: its advance.
int CellText::widthOf(QChar ch)
{
    return cellOf(ch).width;
}

/// Draws \a ch in the cell whose upper left corner is \a corner.
void CellText::draw(QChar ch, const QPoint& corner)
{
    Cell& cell = cellOf(ch);
    if (++cell.count == countWorthShaping && m_drawsGlyphs && isPlain(ch))
        shape(ch, &cell);
    if (!cell.isGlyph || !(m_font == cell.font))
        flush(); // what overlaps is drawn in the order of the text
    if (!cell.isGlyph) {
        m_painter->drawText(QRect(corner, QSize(cell.width, m_height)), Qt::AlignCenter,
                            QString(ch));
        return;
    }
    m_font = cell.font;
    m_glyphs.append(cell.glyph);
    m_places.append(cell.place + corner);
}

/// Draws what is left to draw.
void CellText::flush()
{
    if (m_glyphs.isEmpty())
        return;
    drawGlyphs(m_painter, m_font, m_glyphs, m_places);
    m_glyphs.clear();
    m_places.clear();
}

CellText::Cell& CellText::cellOf(QChar ch)
{
    QHash<QChar, Cell>::iterator found = m_cells.find(ch);
    if (found == m_cells.end()) {
        const Cell cell = {qtcompat::charWidth(m_metrics, ch), 0, false, QRawFont(), 0, QPointF()};
        found = m_cells.insert(ch, cell);
    }
    return found.value();
}

/// Makes \a cell a glyph, unless drawText() would cut something off at the edges of the cell. Qt
/// blends other colours where it cuts than where it need not, of glyphs without antialiasing.
void CellText::shape(QChar ch, Cell* cell) const
{
    QTextLayout layout(QString(ch), m_painter->font());
    QTextOption option;
    option.setFlags(QTextOption::IncludeTrailingSpaces); // or a blank is no glyph
    layout.setTextOption(option);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> runs = layout.glyphRuns();
    if (runs.size() != 1 || runs.at(0).glyphIndexes().size() != 1)
        return;
    const QRectF bounds = inMiddle(line.naturalTextWidth(), line, *cell);
    const QRectF text = inMiddle(line.horizontalAdvance(), line, *cell);
    cell->font = runs.at(0).rawFont();
    cell->glyph = runs.at(0).glyphIndexes().at(0);
    cell->place = runs.at(0).positions().at(0) + text.topLeft();
    cell->isGlyph = areaOf(*cell).contains(bounds) || (m_isOpaque && staysInside(*cell));
}

QRectF CellText::areaOf(const Cell& cell) const
{
    return QRectF(0, 0, cell.width, m_height);
}

QRectF CellText::inMiddle(qreal width, const QTextLine& line, const Cell& cell) const
{
    const qreal height = line.ascent() + line.descent();
    return QRectF((cell.width - width) / 2, (m_height - height) / 2, width, height);
}

/// Whether the glyph of \a cell leaves all pixels around the cell alone.
bool CellText::staysInside(const Cell& cell) const
{
    const int margin = m_height;
    const QRect inside(margin, margin, cell.width, m_height);
    QImage image(inside.right() + 1 + margin, inside.bottom() + 1 + margin, QImage::Format_RGB32);
    image.fill(Qt::black);
    {
        QPainter painter(&image);
        painter.setRenderHints(m_painter->renderHints());
        painter.setPen(Qt::white);
        drawGlyphs(&painter, cell.font, QVector<quint32>(1, cell.glyph),
                   QVector<QPointF>(1, cell.place + inside.topLeft()));
        painter.fillRect(inside, Qt::black);
    }
    return isBlack(image);
}
