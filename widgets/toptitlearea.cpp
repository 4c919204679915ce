#include "widgets/toptitlearea.h"

#include "style/qtcompat.h"
#include "style/widgetstyle.h"

#include <QPainter>

namespace
{

const QPointF titleBaseline(20.0, 20.0);
const int stripHeight = 30;

} // namespace

/// A strip without a title, in the font of the style file's entry "CTopTitleArea".
CTopTitleArea::CTopTitleArea(QWidget* parent) : CWidget(parent)
{
    setWidgetStyle(CWidgetStyle::getWidgetStyle(QLatin1String("CTopTitleArea"), nullptr));
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
    updateGeometry();
    update();
}

/// The title with the same margin on both sides, and 30 pixels, or as many as a larger font needs
/// below the baseline.
QSize CTopTitleArea::sizeHint() const
{
    const QFontMetrics metrics(font());
    const int left = static_cast<int>(titleBaseline.x());
    const int below = static_cast<int>(titleBaseline.y()) + metrics.descent() + 1;
    return QSize(left + qtcompat::textWidth(metrics, m_title) + left, qMax(stripHeight, below));
}

/// The height of the size hint. A title may be cut off.
QSize CTopTitleArea::minimumSizeHint() const
{
    return QSize(0, sizeHint().height());
}

/// Paints background and border, and the title.
void CTopTitleArea::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);
    QPainter painter(this);
    painter.drawText(titleBaseline, m_title);
}
