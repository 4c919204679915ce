#include "widgets/toptitlearea.h"

#include <QPainter>

namespace
{

const QPointF titleBaseline(20.0, 20.0);

} // namespace

/// A strip without a title.
CTopTitleArea::CTopTitleArea(QWidget* parent) : CWidget(parent)
{
}

CTopTitleArea::~CTopTitleArea()
{
}

/// The title, empty by default.
QString CTopTitleArea::title() const
{
    return m_title;
}

/// Sets the title and repaints. It is drawn in the widget's font, with its baseline 20 pixels from
/// the top, 20 from the left; what does not fit is cut off.
void CTopTitleArea::setTitle(const QString& title)
{
    m_title = title;
    update();
}

void CTopTitleArea::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);
    QPainter painter(this);
    painter.drawText(titleBaseline, m_title);
}
