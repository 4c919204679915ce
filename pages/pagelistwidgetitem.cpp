#include "pages/pagelistwidgetitem.h"

#include "style/widgetstyle.h"
#include "widgets/metrics_p.h"

#include <QPainter>

namespace
{

const int iconSize = 20;
const qreal iconLeft = -1.0; // flush against the border of the area
const int rightMargin = 20;
const int noIndex = -1;

} // namespace

/// The same as a row with an empty text.
CPageListWidgetItem::CPageListWidgetItem(QWidget* parent) : CPageListWidgetItem(QString(), parent)
{
}

/// A row with a text, not active yet and without an index.
CPageListWidgetItem::CPageListWidgetItem(const QString& text, QWidget* parent)
    : CWidget(parent),
      m_index(noIndex),
      m_text(text),
      m_selected(false),
      m_hover(false),
      m_active(false),
      m_selectColor(67, 172, 232),
      m_hoverColor(232, 242, 254)
{
    initialize();
}

/// A row with an icon and a text, active and without an index. Deliberate: it has no colours for
/// the selected row and the row under the finger, so its background is never filled.
CPageListWidgetItem::CPageListWidgetItem(const QIcon& icon, const QString& text, QWidget* parent)
    : CWidget(parent),
      m_index(noIndex),
      m_text(text),
      m_icon(icon),
      m_selected(false),
      m_hover(false),
      m_active(true)
{
    initialize();
}

CPageListWidgetItem::~CPageListWidgetItem()
{
}

/// Sets the row up: 28 pixels high, told of every move of the mouse, in the font of the style
/// file's entry "CComboBox". Returns true.
bool CPageListWidgetItem::initialize()
{
    setHeight(metrics::controlHeight);
    setAttribute(Qt::WA_MouseTracking);
    setWidgetStyle(CWidgetStyle::getWidgetStyle(QLatin1String("CComboBox"), nullptr));
    return true;
}

/// The position of the entry in its owner's list of texts; -1 as long as it has none.
int CPageListWidgetItem::index() const
{
    return m_index;
}

/// Sets the position of the entry in its owner's list of texts.
void CPageListWidgetItem::setIndex(int index)
{
    m_index = index;
}

/// The text of the row.
QString CPageListWidgetItem::text() const
{
    return m_text;
}

/// Sets the text and repaints.
void CPageListWidgetItem::setText(const QString& text)
{
    m_text = text;
    update();
}

/// Whether the row takes part in paging.
bool CPageListWidgetItem::isActive() const
{
    return m_active;
}

/// Sets whether the row takes part in paging. A row that does not is hidden; one that does is not
/// shown by this alone.
void CPageListWidgetItem::setActive(bool active)
{
    m_active = active;
    if (!active)
        setVisible(false);
}

/// Whether the row has the colour of the current entry; false by default.
bool CPageListWidgetItem::isSelected() const
{
    return m_selected;
}

/// Sets whether the row has the colour of the current entry, and repaints.
void CPageListWidgetItem::setSelect(bool selected)
{
    m_selected = selected;
    update();
}

/// Gives the row the colour of the row under the finger, unless it is selected, and repaints.
void CPageListWidgetItem::setHoverIn()
{
    setHover(true);
}

/// Takes the colour of the row under the finger away, and repaints.
void CPageListWidgetItem::setHoverOut()
{
    setHover(false);
}

void CPageListWidgetItem::setHover(bool hover)
{
    m_hover = hover;
    update();
}

/// Removes text and icon, neither selected nor under the finger any more, and repaints.
void CPageListWidgetItem::clear()
{
    m_selected = false;
    m_hover = false;
    m_icon = QIcon();
    m_text.clear();
    update();
}

/// Paints the highlight, the icon at the left border and the text, right-aligned.
void CPageListWidgetItem::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);
    QPainter painter(this);
    drawGround(&painter);
    drawIcon(&painter);
    drawText(&painter);
}

QRectF CPageListWidgetItem::iconRect() const
{
    const int top = (height() - 1) / 2 - iconSize / 2;
    return QRectF(iconLeft, top, iconSize, iconSize);
}

QRect CPageListWidgetItem::textRect() const
{
    return QRect(0, 0, width() - rightMargin, height());
}

void CPageListWidgetItem::drawGround(QPainter* painter)
{
    if (!m_selected && !m_hover)
        return;
    const QColor color = m_selected ? m_selectColor : m_hoverColor;
    if (color.isValid()) // an invalid one would fill with black
        painter->fillRect(rect(), QBrush(color, Qt::SolidPattern));
}

void CPageListWidgetItem::drawIcon(QPainter* painter)
{
    if (m_icon.isNull())
        return;
    const QPixmap pixmap = m_icon.pixmap(QSize(iconSize, iconSize), QIcon::Normal, QIcon::Off);
    painter->drawPixmap(iconRect(), pixmap, QRectF(pixmap.rect()));
}

void CPageListWidgetItem::drawText(QPainter* painter)
{
    if (m_text.isEmpty())
        return;
    painter->setPen(Qt::black);
    painter->setFont(font());
    painter->drawText(textRect(), Qt::AlignRight | Qt::AlignVCenter, m_text);
}
