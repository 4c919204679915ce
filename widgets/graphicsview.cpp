#include "widgets/graphicsview.h"

#include "style/widgetstyle.h"
#include "widgets/painting_p.h"

#include <QPainter>

/// A view with a lavender background and, once it gets a width, a white border. It updates the
/// whole viewport, as the border stays where it is while the scene scrolls.
CGraphicsView::CGraphicsView(QWidget* parent)
    : QGraphicsView(parent),
      m_borderWidth(0),
      m_borderColor(Qt::white),
      m_backgroundColor(CWidgetStyle::getColor(CWidgetStyle::ContainerBackgroundColor))
{
    setViewportUpdateMode(FullViewportUpdate);
}

CGraphicsView::~CGraphicsView()
{
}

/// For derived classes: takes over changed parameters, as CWidget::updateParm(). Does nothing here.
void CGraphicsView::updateParm(void* data, unsigned int size)
{
    Q_UNUSED(data);
    Q_UNUSED(size);
}

/// The width of the border in pixels as it was set, 0 by default.
int CGraphicsView::getBorderWidth() const
{
    return m_borderWidth;
}

/// Sets the width of the border in pixels and repaints. A negative width is kept as it is and draws
/// no border.
void CGraphicsView::setBorderWidth(int width)
{
    m_borderWidth = width;
    viewport()->update();
    update();
}

/// The colour of the border, white by default.
QColor CGraphicsView::getBorderColor() const
{
    return m_borderColor;
}

/// Sets the colour of the border and repaints; an invalid one means the colour of the background.
void CGraphicsView::setBorderColor(const QColor& color)
{
    m_borderColor = color;
    viewport()->update();
    update();
}

/// The colour of the background, lavender by default.
QColor CGraphicsView::getBackgroundColor() const
{
    return m_backgroundColor;
}

/// Sets the colour of the background and repaints; an invalid one draws none.
void CGraphicsView::setBackgroundColor(const QColor& color)
{
    m_backgroundColor = color;
    viewport()->update();
    update();
}

/// Fixes the size, in pixels.
void CGraphicsView::setSize(int width, int height)
{
    setFixedSize(width, height);
}

/// Fixes the width, in pixels.
void CGraphicsView::setWidth(int width)
{
    setFixedWidth(width);
}

/// Fixes the height, in pixels.
void CGraphicsView::setHeight(int height)
{
    setFixedHeight(height);
}

/// Paints background and border, and the scene over both.
void CGraphicsView::paintEvent(QPaintEvent* event)
{
    {
        QPainter painter(viewport());
        if (m_backgroundColor.isValid()) {
            painter.setPen(m_backgroundColor);
            painter.fillRect(QRectF(0.0, 0.0, viewport()->width(), viewport()->height()),
                             QBrush(m_backgroundColor, Qt::SolidPattern));
        }
        painting::drawBorder(&painter, viewport()->size(), m_borderWidth, m_borderColor,
                             m_backgroundColor);
    }
    QGraphicsView::paintEvent(event);
}
