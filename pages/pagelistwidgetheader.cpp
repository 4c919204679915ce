#include "pages/pagelistwidgetheader.h"

#include "style/widgetstyle.h"

#include <QPainter>

namespace
{

const int margin = 10;

} // namespace

/// A header without title and text.
CPageListWidgetHeader::CPageListWidgetHeader(QWidget* parent) : CWidget(parent)
{
    initialize();
}

/// A header with the given texts.
CPageListWidgetHeader::CPageListWidgetHeader(const QString& title, const QString& text,
                                             QWidget* parent)
    : CWidget(parent), m_title(title), m_text(text)
{
    initialize();
}

CPageListWidgetHeader::~CPageListWidgetHeader()
{
}

/// Sets the header up: white with a thin black border, in the font of the style file's entry
/// "CComboBox". Returns true.
bool CPageListWidgetHeader::initialize()
{
    setBackgroundColor(Qt::white);
    setBorderColor(Qt::black);
    setBorderWidth(1);
    setWidgetStyle(CWidgetStyle::getWidgetStyle(QLatin1String("CComboBox"), nullptr));
    return true;
}

/// The title, empty by default.
QString CPageListWidgetHeader::title() const
{
    return m_title;
}

/// Sets the title and repaints.
void CPageListWidgetHeader::setTitle(const QString& title)
{
    m_title = title;
    update();
}

/// The current value, empty by default.
QString CPageListWidgetHeader::text() const
{
    return m_text;
}

/// Sets the current value and repaints.
void CPageListWidgetHeader::setText(const QString& text)
{
    m_text = text;
    update();
}

/// Paints the title at the top left and the text at the bottom right.
void CPageListWidgetHeader::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);
    QPainter painter(this);
    painter.setFont(font());
    drawTitle(&painter);
    drawText(&painter);
}

QRect CPageListWidgetHeader::titleRect() const
{
    return QRect(margin, margin, width(), height());
}

QRect CPageListWidgetHeader::textRect() const
{
    return QRect(0, 0, width() - margin, height() - margin);
}

void CPageListWidgetHeader::drawTitle(QPainter* painter)
{
    if (!m_title.isEmpty())
        painter->drawText(titleRect(), Qt::AlignLeft | Qt::AlignTop, m_title);
}

void CPageListWidgetHeader::drawText(QPainter* painter)
{
    if (!m_text.isEmpty())
        painter->drawText(textRect(), Qt::AlignRight | Qt::AlignBottom, m_text);
}
