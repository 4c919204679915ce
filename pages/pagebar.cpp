#include "pages/pagebar.h"

#include "style/keptpictures_p.h"
#include "widgets/metrics_p.h"
#include "widgets/pushbutton.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

namespace
{

const int horizontalWidth = 150;
const int verticalWidth = 24;
const int arrowSpacing = 100; // leaves room for the text between the arrows
const int textSize = 14;

const QPointF turnedBaseline(0.0, 4.0);

// What an arrow looks like, and its size in pixels.
struct ArrowRow {
    CWidgetStyle::PageSwitchStatus released;
    CWidgetStyle::PageSwitchStatus pressed;
    int width;
    int height;
};

// clang-format off
const ArrowRow leftArrow  = {CWidgetStyle::PrevReleased, CWidgetStyle::PrevPressed, 26, 20};
const ArrowRow rightArrow = {CWidgetStyle::NextReleased, CWidgetStyle::NextPressed, 26, 20};
const ArrowRow upArrow    = {CWidgetStyle::UpReleased,   CWidgetStyle::UpPressed,   24, 40};
const ArrowRow downArrow  = {CWidgetStyle::DownReleased, CWidgetStyle::DownPressed, 24, 40};
// clang-format on

void dress(CPushButton* button, const ArrowRow& arrow)
{
    const QPixmap released = keptpictures::pageSwitch(arrow.released);
    button->setBackground(released);
    button->setExtraAttr(CPushButton::PressedPixmap, keptpictures::pageSwitch(arrow.pressed));
    button->setExtraAttr(CPushButton::ReleasedPixmap, released);
    button->setFixedSize(arrow.width, arrow.height);
}

} // namespace

/// A bar without pages. A horizontal one is 150 x 30 pixels with the arrows left and right of the
/// text; a vertical one, which is any other type, is 24 pixels wide with the arrows above and below
/// and the text turned. Its font is that of the style file's entry "CPageBar".
CPageBar::CPageBar(QWidget* parent, CWidgetStyle::PageBarType type)
    : CWidget(parent),
      m_count(0),
      m_currentIndex(-1),
      m_textColor(Qt::black),
      m_leftButton(new CPushButton(this)),
      m_rightButton(new CPushButton(this)),
      m_type(type == CWidgetStyle::HorizontalPageBar ? type : CWidgetStyle::VerticalPageBar)
{
    if (m_type == CWidgetStyle::HorizontalPageBar)
        buildHorizontal();
    else
        buildVertical();
    setWidgetStyle(CWidgetStyle::getWidgetStyle(QLatin1String("CPageBar"), nullptr));
    setText();
    connect(m_leftButton, SIGNAL(clicked(bool)), this, SLOT(leftClicked()));
    connect(m_rightButton, SIGNAL(clicked(bool)), this, SLOT(rightClicked()));
}

CPageBar::~CPageBar()
{
}

void CPageBar::buildHorizontal()
{
    dress(m_leftButton, leftArrow);
    dress(m_rightButton, rightArrow);
    QHBoxLayout* layout = new QHBoxLayout(this);
    layout->setAlignment(Qt::AlignCenter);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(arrowSpacing);
    layout->addWidget(m_leftButton);
    layout->addWidget(m_rightButton);
    setSize(horizontalWidth, metrics::pageBarHeight);
}

/// Deliberate: the arrow up steps forward, and the arrow down back.
void CPageBar::buildVertical()
{
    dress(m_rightButton, upArrow);
    dress(m_leftButton, downArrow);
    QVBoxLayout* layout = new QVBoxLayout(this);
    layout->setAlignment(Qt::AlignCenter);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_rightButton);
    layout->addStretch();
    layout->addWidget(m_leftButton);
    setWidth(verticalWidth);
}

/// The number of pages, 0 at first.
int CPageBar::count() const
{
    return m_count;
}

/// The page that is shown, from 0; -1 without pages.
int CPageBar::currentIndex() const
{
    return m_currentIndex;
}

/// Counts \a count pages. The current page stays as far as it exists. Emits nothing.
void CPageBar::setCount(int count)
{
    m_count = qMax(0, count);
    m_currentIndex = qMin(qMax(0, m_currentIndex), m_count - 1);
    setText();
}

/// Counts one page more; the first one becomes the current one. Emits nothing.
void CPageBar::addPage()
{
    addPages(1);
}

void CPageBar::addPages(int count)
{
    if (count > 0 && m_currentIndex < 0)
        m_currentIndex = 0;
    m_count += count;
    setText();
}

/// Counts one page less. Where a page up to the current one goes, the current number steps back
/// with it, but if the current one itself goes, the page that followed takes its place. Ignored
/// without pages and for negative numbers. Deliberate: a number past the last page still counts one
/// page less. Emits nothing.
void CPageBar::removePage(int index)
{
    if (index < 0 || m_count == 0)
        return;
    const bool nextTakesPlace = index == m_currentIndex && index != m_count - 1;
    if (index <= m_currentIndex && !nextTakesPlace)
        --m_currentIndex;
    --m_count;
    setText();
}

/// Forgets all pages. Emits nothing.
void CPageBar::clear()
{
    m_currentIndex = -1;
    m_count = 0;
    setText();
}

/// Writes the text anew from the current page and the number of pages, and repaints.
void CPageBar::setText()
{
    //: %1 is the page that is shown, %2 the number of pages. There are 98 pixels for it.
    m_text = tr("Page %1 of %2").arg(m_currentIndex + 1).arg(m_count);
    update();
}

/// The colour of the text, black by default.
QColor CPageBar::textColor() const
{
    return m_textColor;
}

/// Sets the colour of the text and repaints.
void CPageBar::setTextColor(const QColor& color)
{
    m_textColor = color;
    update();
}

/// Sets the colour of the background, of the arrows' too, and repaints.
void CPageBar::setBackgroundColor(const QColor& color)
{
    m_leftButton->setBackgroundColor(color);
    m_rightButton->setBackgroundColor(color);
    CWidget::setBackgroundColor(color);
}

/// Shows page \a index, from 0. A negative number shows the last page, one past the last page the
/// first one; without pages it is ignored. Emits nothing.
void CPageBar::setCurrentIndex(int index)
{
    if (m_count == 0)
        return;
    if (index < 0)
        m_currentIndex = m_count - 1;
    else
        m_currentIndex = index >= m_count ? 0 : index;
    setText();
}

/// Repaints the bar and both arrows.
void CPageBar::update()
{
    QWidget::update();
    m_leftButton->update();
    m_rightButton->update();
}

/// One page back, from the first one to the last. Emits pageChanged(); does nothing without pages.
void CPageBar::leftClicked()
{
    turnTo(m_currentIndex > 0 ? m_currentIndex - 1 : m_count - 1);
}

/// One page forward, from the last one to the first. Emits pageChanged(); does nothing without
/// pages.
void CPageBar::rightClicked()
{
    turnTo(m_currentIndex + 1 < m_count ? m_currentIndex + 1 : 0);
}

void CPageBar::turnTo(int index)
{
    if (m_count == 0 || m_currentIndex < 0)
        return;
    m_currentIndex = index;
    setText();
    Q_EMIT pageChanged(m_currentIndex);
}

/// The text follows the language of the application.
void CPageBar::changeEvent(QEvent* event)
{
    CWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setText();
}

/// Paints background and border, then "Page 1 of 3", turned in a vertical bar.
void CPageBar::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);
    drawText();
}

/// Where the turned text of a vertical bar starts: right of the middle, a little above it.
QRect CPageBar::turnedViewport() const
{
    return QRect(static_cast<int>(width() * 0.5), static_cast<int>(height() * 0.45), width(),
                 height());
}

void CPageBar::drawText()
{
    QPainter painter(this);
    QFont textFont = font();
    textFont.setPixelSize(textSize);
    painter.setFont(textFont);
    painter.setPen(m_textColor);
    if (m_type == CWidgetStyle::HorizontalPageBar) {
        painter.drawText(QRect(0, 0, width(), height()), Qt::AlignCenter, m_text);
        return;
    }
    painter.setViewport(turnedViewport());
    painter.rotate(90.0);
    painter.drawText(turnedBaseline, m_text);
}
