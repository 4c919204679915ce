#include "widgets/progressbar.h"

#include "style/table_p.h"

#include <QLinearGradient>
#include <QPainter>

#include <limits>

namespace
{

const int barWidth = 300;
const int barHeight = 50;
const int defaultInset = 4;
const int borderWidth = 4;
const qreal groundOpacity = 0.8;

// The colour of a value above this fraction of the range, best first.
const struct ColorRow {
    double above;
    QRgb color;
} colors[] = {
    // clang-format off
    {0.8, 0xFF00CD00},
    {0.6, 0xFFA6FF01},
    {0.4, 0xFFFFA600},
    {0.2, 0xFFFF6B01},
    // clang-format on
};

// Where the gloss of the filled part is white, and where not, from top to bottom.
const struct GlossRow {
    qreal position;
    bool white;
} gloss[] = {
    // clang-format off
    {0.0, false},
    {0.3, false},
    {0.5, true},
    {0.7, false},
    {1.0, false},
    // clang-format on
};

} // namespace

/// An empty bar of 300 x 50 pixels with the range 0 to 100 and a grey border.
CProgressBar::CProgressBar(QWidget* parent)
    : QWidget(parent),
      m_minimum(0),
      m_maximum(100),
      m_value(0),
      m_inset(defaultInset),
      m_borderColor(Qt::gray),
      m_progressColor(Qt::gray),
      m_gradientEnabled(true)
{
    setFixedSize(barWidth, barHeight);
}

CProgressBar::~CProgressBar()
{
}

/// Sets the range and repaints. A negative \a minimum becomes 0; then bounds in the wrong order are
/// swapped. The value stays, even outside of the range.
void CProgressBar::setRange(int minimum, int maximum)
{
    m_minimum = qMax(0, minimum);
    m_maximum = maximum;
    if (m_maximum < m_minimum)
        qSwap(m_minimum, m_maximum);
    update();
}

/// The lower end of the range, 0 by default.
int CProgressBar::minimum() const
{
    return m_minimum;
}

/// Sets the lower end of the range, and with it the upper one where this would be below, and
/// repaints.
void CProgressBar::setMinimum(int minimum)
{
    setRange(minimum, qMax(minimum, m_maximum));
}

/// The upper end of the range, 100 by default.
int CProgressBar::maximum() const
{
    return m_maximum;
}

/// Sets the upper end of the range, and with it the lower one where this would be above, and
/// repaints.
void CProgressBar::setMaximum(int maximum)
{
    setRange(qMin(m_minimum, maximum), qMax(0, maximum));
}

/// The value, 0 by default.
int CProgressBar::value() const
{
    return m_value;
}

/// Sets the value, clamped to the range, and repaints.
void CProgressBar::setValue(int value)
{
    m_value = qMax(m_minimum, qMin(value, m_maximum));
    update();
}

/// The colour of the border, grey by default.
QColor CProgressBar::borderColor() const
{
    return m_borderColor;
}

/// Sets the colour of the border and repaints.
void CProgressBar::setBorderColor(const QColor& color)
{
    m_borderColor = color;
    update();
}

/// The one colour of the filled part for when the changing colours are switched off, grey by
/// default.
QColor CProgressBar::progressColor() const
{
    return m_progressColor;
}

/// Sets the one colour of the filled part for when the changing colours are switched off. It shows
/// with the next repaint.
void CProgressBar::setProgressColor(const QColor& color)
{
    m_progressColor = color;
}

/// Whether the colour follows the value; true by default.
bool CProgressBar::isGradientEnabled() const
{
    return m_gradientEnabled;
}

/// Sets whether the colour follows the value. It shows with the next repaint. (The
/// spelling of the name is kept.)
void CProgressBar::setGradientEabled(bool enabled)
{
    m_gradientEnabled = enabled;
}

/// The filled part, in pixels. Empty at the minimum and below; for the smallest values it may be
/// invalid, and nothing is filled then. A value above the maximum reaches past the right edge, or
/// fills the bar if the range is a single value.
QRect CProgressBar::getProgressRect() const
{
    if (m_value <= m_minimum)
        return QRect();
    const qint64 range = static_cast<qint64>(m_maximum) - m_minimum;
    const qint64 progress = static_cast<qint64>(m_value) - m_minimum;
    const qint64 filled = range > 0 ? width() * progress / range : width();
    const int start = m_inset / 2;
    const qint64 right = start - m_inset + filled - 1;
    const qint64 rightmost = std::numeric_limits<int>::max();
    return QRect(QPoint(start, start),
                 QPoint(static_cast<int>(qMin(right, rightmost)), start - m_inset + height() - 1));
}

/// The colour of the filled part. Deliberate: the value itself is compared with fractions of the
/// length of the range, so that one that does not start at 0 turns green early.
QColor CProgressBar::getCurrentColor() const
{
    if (!m_gradientEnabled)
        return m_progressColor;
    const double count = static_cast<double>(m_maximum) + 1 - m_minimum;
    for (int i = 0; i < table::count(colors); ++i) {
        if (m_value > colors[i].above * count)
            return QColor(colors[i].color);
    }
    return QColor(Qt::red);
}

/// Paints the box and, in the colour of the value, what is done.
void CProgressBar::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    drawGround(&painter);
    drawProgress(&painter);
}

void CProgressBar::drawGround(QPainter* painter)
{
    painter->setOpacity(groundOpacity);
    painter->setPen(QPen(m_borderColor, borderWidth));
    painter->setBrush(Qt::white);
    painter->drawRect(0, 0, width(), height());
    painter->setOpacity(1.0);
}

void CProgressBar::drawProgress(QPainter* painter)
{
    const QRect progress = getProgressRect();
    if (!progress.isValid())
        return;
    const QColor color = getCurrentColor();
    QLinearGradient gradient(0, 0, 0, height() - 1);
    for (int i = 0; i < table::count(gloss); ++i)
        gradient.setColorAt(gloss[i].position, gloss[i].white ? QColor(Qt::white) : color);
    painter->fillRect(progress & rect(), gradient);
}
