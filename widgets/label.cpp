#include "widgets/label.h"

#include "style/qtcompat.h"
#include "style/stylewalk_p.h"
#include "style/widgetstyle.h"
#include "widgets/characterlayout_p.h"
#include "widgets/metrics_p.h"

#include <QPainter>
#include <QPointer>

namespace
{

const int defaultTextSize = 9;
const int margin = 2;
const int wrappedLineHeight = 20;

} // namespace

/// An empty label of 28 pixels height on a lavender background; its font is that of the style
/// file's entry "CLabel".
CLabel::CLabel(QWidget* parent)
    : CWidget(parent),
      m_textSize(defaultTextSize),
      m_textColor(Qt::black),
      m_alignment(Qt::AlignLeft | Qt::AlignVCenter),
      m_autoStyleEnabled(true),
      m_wrapMode(NoWrap),
      m_leftMargin(margin),
      m_rightMargin(margin),
      m_lineHeight(wrappedLineHeight)
{
    setHeight(metrics::controlHeight);
    setWidgetStyle(CWidgetStyle::getWidgetStyle(QLatin1String("CLabel"), nullptr));
    setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::ControlBackgroundColor));
}

CLabel::~CLabel()
{
}

bool CLabel::initialize()
{
    return true;
}

/// The main text, empty by default.
QString CLabel::text() const
{
    return m_text;
}

/// Sets the main text and repaints.
void CLabel::setText(const QString& text)
{
    m_text = text;
    update();
}

/// The text in the right corner, empty by default.
QString CLabel::cornerText() const
{
    return m_cornerText;
}

/// Sets the text that is drawn over the main one, right-aligned and vertically centred. Deliberate:
/// unlike the other setters this one does not repaint; the text shows with the next repaint.
void CLabel::setCornerText(const QString& text)
{
    m_cornerText = text;
}

/// The colour of both texts, black by default.
QColor CLabel::textColor() const
{
    return m_textColor;
}

/// Sets the colour of both texts and repaints.
void CLabel::setTextColor(const QColor& color)
{
    m_textColor = color;
    update();
}

/// The size last given to setTextSize(); 9 by default, whatever the size of the font.
int CLabel::textSize() const
{
    return m_textSize;
}

/// Sets the size of the letters, in pixels, and repaints. 0 hides the main text, and so does
/// anything negative; the letters then keep their size.
void CLabel::setTextSize(int size)
{
    m_textSize = qMax(0, size);
    QFont resized = font();
    if (m_textSize > 0) // Qt keeps a font's own size at 0, but warns
        resized.setPixelSize(m_textSize);
    setFont(resized);
    update();
}

/// Where the main text stands, by default left and vertically centred.
Qt::Alignment CLabel::alignment() const
{
    return m_alignment;
}

/// Places the main text where it is not wrapped, and repaints.
void CLabel::setAlignment(Qt::Alignment alignment)
{
    m_alignment = alignment;
    update();
}

/// How the main text is wrapped; by default it is not.
CLabel::WrapMode CLabel::wrapMode() const
{
    return m_wrapMode;
}

/// Sets how the main text is wrapped, and repaints. Wrapped lines are 20 pixels high and start 5
/// pixels below the top. An unknown mode does not wrap.
void CLabel::setWrapMode(WrapMode mode)
{
    m_wrapMode = mode;
    update();
}

/// Whether setWidgetStyle() applies anything; true by default.
bool CLabel::isAutoStyleEnabled() const
{
    return m_autoStyleEnabled;
}

/// Sets whether setWidgetStyle() applies anything, and repaints.
void CLabel::setAutoStyleEnabled(bool enabled)
{
    m_autoStyleEnabled = enabled;
    update();
}

/// Takes the font of the FieldAll entry of \a style. Colours and other entries are ignored.
void CLabel::setWidgetStyle(WidgetStyle style)
{
    stylewalk::setFont(this, m_autoStyleEnabled, style);
}

/// Does what every widget does; the click comes with the release.
void CLabel::mousePressEvent(QMouseEvent* event)
{
    QWidget::mousePressEvent(event);
}

/// Emits clicked().
void CLabel::mouseReleaseEvent(QMouseEvent* event)
{
    QWidget::mouseReleaseEvent(event);
    const QPointer<CLabel> self(this); // a slot may delete the label
    Q_EMIT clicked();
    if (!self)
        event->accept(); // else Qt passes it on to the parents, which may be gone as well
}

/// Paints background and border, the text and the corner text.
void CLabel::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);
    QPainter painter(this);
    painter.setPen(m_textColor);
    painter.setFont(font());
    drawText(&painter);
    drawCornerText(&painter);
}

QRect CLabel::textRect() const
{
    return QRect(QPoint(m_leftMargin, 0), QPoint(width() - 1 - m_rightMargin, height() - 1));
}

void CLabel::drawText(QPainter* painter)
{
    if (m_text.isEmpty() || m_textSize == 0)
        return;
    const QRect rect = textRect();
    const int available = rect.right() - rect.left();
    if (m_wrapMode == CharWrap)
        CharacterLayout(painter, rect, m_lineHeight).drawCharWrapped(m_text);
    else if (m_wrapMode == WordWrap &&
             qtcompat::textWidth(QFontMetrics(font()), m_text) > available)
        CharacterLayout(painter, rect, m_lineHeight).drawWordWrapped(m_text);
    else
        painter->drawText(rect, static_cast<int>(m_alignment), m_text);
}

void CLabel::drawCornerText(QPainter* painter)
{
    if (m_cornerText.isEmpty())
        return;
    painter->drawText(textRect(), Qt::AlignRight | Qt::AlignVCenter, m_cornerText);
}
