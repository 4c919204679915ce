#include "widgets/checkbox.h"

#include "style/qtcompat.h"
#include "style/stylewalk_p.h"
#include "style/table_p.h"
#include "style/widgetstyle.h"
#include "widgets/metrics_p.h"

#include <QPainter>
#include <QPointer>

namespace
{

const int bareSize = 20;
const int captionPointSize = 9;
const int captionMargin = 10; // between box and caption
const int borderExtent = 40;  // of the frame, beyond the caption's width
const qreal boxPenWidth = 2;
const qreal tickPenWidth = 1.8;

} // namespace

/// An unchecked box alone: 20 x 20 pixels, white, without caption and frame, and without a style
/// from the style file.
CCheckBox::CCheckBox(QWidget* parent)
    : QCheckBox(parent),
      m_borderVisible(false),
      m_autoStyleEnabled(false),
      m_foregroundColor(Qt::white),
      m_checkState(Qt::Unchecked)
{
    setFixedSize(bareSize, bareSize);
}

/// An unchecked white box with the caption \a text and a frame, 28 pixels high; its font is that of
/// the style file's entry "CCheckBox".
CCheckBox::CCheckBox(const QString& text, QWidget* parent)
    : QCheckBox(parent),
      m_borderVisible(true),
      m_autoStyleEnabled(true),
      m_foregroundColor(Qt::white),
      m_checkState(Qt::Unchecked)
{
    setText(text); // here, where assistive technology already sees this class
    setFixedHeight(metrics::controlHeight);
    setFont(QFont(QLatin1String("Arial"), captionPointSize, QFont::Bold));
    setWidgetStyle(CWidgetStyle::getWidgetStyle(QLatin1String("CCheckBox"), nullptr));
}

CCheckBox::~CCheckBox()
{
}

/// Whether the box is ticked; false by default.
bool CCheckBox::isChecked() const
{
    return m_checkState == Qt::Checked;
}

/// Ticks the box or not and repaints. Deliberate: it never emits stateChanged(), as only a finger's
/// changes are announced.
void CCheckBox::setChecked(bool checked)
{
    const Qt::CheckState state = checked ? Qt::Checked : Qt::Unchecked;
    m_checkState = state;
    setCheckState(state);
}

/// The state of the box, Qt::Unchecked by default.
Qt::CheckState CCheckBox::checkState() const
{
    return static_cast<Qt::CheckState>(m_checkState);
}

/// Sets the state and repaints; emits stateChanged() when it was another one. Only Qt::Checked has
/// a tick.
void CCheckBox::setCheckState(Qt::CheckState state)
{
    const bool changed = state != m_checkState;
    m_checkState = state;
    update();
    if (changed)
        Q_EMIT stateChanged(state);
}

/// Whether there is a black frame around box and caption; by default only if the box was made with
/// a caption.
bool CCheckBox::isBorderVisible() const
{
    return m_borderVisible;
}

/// Sets whether there is a black frame around box and caption, and repaints.
void CCheckBox::setBorderVisible(bool visible)
{
    m_borderVisible = visible;
    update();
}

/// The colour of box, tick and caption, white by default.
QColor CCheckBox::foregroundColor() const
{
    return m_foregroundColor;
}

/// Sets the colour of box, tick and caption, and repaints.
void CCheckBox::setForegroundColor(const QColor& color)
{
    m_foregroundColor = color;
    update();
}

/// The colour of the background; invalid, the default, when it is that of the parent.
QColor CCheckBox::backgroundColor() const
{
    return m_backgroundColor;
}

/// Sets the colour of the background and repaints.
void CCheckBox::setBackgroundColor(const QColor& color)
{
    m_backgroundColor = color;
    update();
}

/// Whether setWidgetStyle() applies anything; by default only if the box was made with a caption.
bool CCheckBox::isAutoStyleEnabled() const
{
    return m_autoStyleEnabled;
}

/// Sets whether setWidgetStyle() applies anything, and repaints.
void CCheckBox::setAutoStyleEnabled(bool enabled)
{
    m_autoStyleEnabled = enabled;
    update();
}

/// Takes the font of the FieldAll entry of \a style. Colours and other entries are ignored.
void CCheckBox::setWidgetStyle(WidgetStyle style)
{
    stylewalk::setFont(this, m_autoStyleEnabled, style);
}

/// Changes the state at once and emits stateChanged(). Lifting the finger does nothing more.
void CCheckBox::mousePressEvent(QMouseEvent* event)
{
    const QPointer<CCheckBox> self(this); // a slot of pressed() may delete the box
    QAbstractButton::mousePressEvent(event);
    if (self)
        setCheckState(isChecked() ? Qt::Unchecked : Qt::Checked);
}

/// The size of box, caption and frame, whether the frame is visible or not; a box without caption
/// is as wide as high.
QSize CCheckBox::sizeHint() const
{
    const int side = qBound(minimumHeight(), metrics::controlHeight, maximumHeight());
    if (text().isEmpty() && !m_borderVisible)
        return QSize(side, side);
    const int captionEnd = boxRect(side).right() + captionMargin + captionWidth();
    const int borderEnd = captionWidth() + borderExtent + 1; // and the line itself
    return QSize(qMax(captionEnd, borderEnd), side);
}

/// The caption is never cut in a layout.
QSize CCheckBox::minimumSizeHint() const
{
    return sizeHint();
}

/// A touch anywhere counts.
bool CCheckBox::hitButton(const QPoint& point) const
{
    return rect().contains(point);
}

/// The finger's change came with the touch; lifting it changes nothing more.
void CCheckBox::nextCheckState()
{
}

/// Qt's own state is not announced.
void CCheckBox::checkStateSet()
{
}

/// Places the box, by the height alone.
void CCheckBox::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_box = boxRect(height());
}

/// Paints background, box, tick, caption and frame.
void CCheckBox::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawBackground(&painter);
    drawBox(&painter);
    drawTick(&painter);
    drawCaption(&painter);
    drawBorder(&painter);
}

/// The box has half of \a height and stands as far from the left edge as from top and bottom.
QRect CCheckBox::boxRect(int height) const
{
    const int side = height / 2;
    return QRect((height - 1) / 2 - side / 2, (height + 1) / 2 - side / 2, side, side);
}

int CCheckBox::captionWidth() const
{
    return qtcompat::textWidth(QFontMetrics(font()), text());
}

/// The caption's space reaches past the right edge, where the widget cuts it.
QRect CCheckBox::captionRect() const
{
    return QRect(m_box.right() + captionMargin, 1, width() - m_box.width(), height());
}

QRect CCheckBox::borderRect() const
{
    return QRect(0, 0, captionWidth() + borderExtent, height() - 1);
}

void CCheckBox::drawBackground(QPainter* painter)
{
    if (m_backgroundColor.isValid())
        painter->fillRect(0, 0, width(), height(), m_backgroundColor);
}

void CCheckBox::drawBox(QPainter* painter)
{
    painter->setPen(
        QPen(m_foregroundColor, boxPenWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->drawRect(m_box);
}

void CCheckBox::drawTick(QPainter* painter)
{
    if (!isChecked())
        return;
    const int side = m_box.width();
    const QPoint points[] = {
        QPoint(m_box.left() + 2, m_box.top() + side / 2),
        QPoint(m_box.left() + side / 3 + 1, m_box.bottom() - 2),
        QPoint(m_box.right() - 1, m_box.top() + 3),
    };
    painter->setPen(
        QPen(m_foregroundColor, tickPenWidth, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin));
    painter->drawPolyline(points, table::count(points));
}

void CCheckBox::drawCaption(QPainter* painter)
{
    if (text().isEmpty())
        return;
    painter->setFont(font());
    painter->drawText(captionRect(), Qt::AlignLeft | Qt::AlignVCenter, text());
}

void CCheckBox::drawBorder(QPainter* painter)
{
    if (!m_borderVisible)
        return;
    painter->setPen(QPen(Qt::black, 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->drawRect(borderRect());
}
