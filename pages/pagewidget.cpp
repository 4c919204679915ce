#include "pages/pagewidget.h"

#include "pages/pagebar.h"
#include "style/widgetstyle.h"
#include "widgets/graphicsview.h"
#include "widgets/metrics_p.h"

#include <QHash>
#include <QSet>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <QVariant>
#include <QtDebug>

namespace
{

const char pageNumberProperty[] = "PageIndex";
const unsigned int pageChangeSize = 1024; // what pages are told when another one is shown

int numberOf(const QWidget* page)
{
    return page->property(pageNumberProperty).toInt();
}

void updatePage(QWidget* page, void* data, unsigned int size)
{
    if (CWidget* widget = qobject_cast<CWidget*>(page))
        widget->updateParm(data, size);
    else if (CGraphicsView* view = qobject_cast<CGraphicsView*>(page))
        view->updateParm(data, size);
}

} // namespace

/// A page widget without pages on a lavender background; its font is that of the style file's entry
/// "CPageWidget".
CPageWidget::CPageWidget(QWidget* parent)
    : CWidget(parent),
      m_stack(new QStackedWidget(this)),
      m_pageBar(new CPageBar(this, CWidgetStyle::HorizontalPageBar))
{
    m_stack->layout()->setContentsMargins(0, 0, 0, 0);
    m_stack->layout()->setSpacing(0);
    QVBoxLayout* layout = new QVBoxLayout(this);
    layout->setAlignment(Qt::AlignLeft);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_stack);
    layout->addWidget(m_pageBar);
    letBarGrow();
    setWidgetStyle(CWidgetStyle::getWidgetStyle(QLatin1String("CPageWidget"), nullptr));
    setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::ContainerBackgroundColor));
    connect(m_pageBar, SIGNAL(pageChanged(int)), this, SLOT(setCurrentPage(int)));
}

CPageWidget::~CPageWidget()
{
}

/// In a layout the bar is as wide as the pages, with its arrows in the middle, and not narrower
/// than these; by itself it would stand on the left.
void CPageWidget::letBarGrow()
{
    m_pageBar->setMinimumWidth(0);
    m_pageBar->setMaximumWidth(QWIDGETSIZE_MAX);
    m_pageBar->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

/// Appends \a page, which becomes a child, and gives it the number of its position. A null page is
/// ignored.
void CPageWidget::addPage(QWidget* page)
{
    if (!page)
        return;
    m_stack->addWidget(page);
    m_pageBar->addPage();
    page->setProperty(pageNumberProperty, m_stack->count() - 1);
}

/// Inserts \a page, which becomes a child, at position \a index and gives it that number.
/// Deliberate: the other pages keep theirs, so that numbers may repeat. Out of range it becomes the
/// last page, with the number as given. A null page is ignored.
void CPageWidget::insertPage(int index, QWidget* page)
{
    if (!page)
        return;
    m_stack->insertWidget(index, page);
    m_pageBar->addPage();
    page->setProperty(pageNumberProperty, index);
}

/// Takes the page at position \a index out; it has no parent any more and belongs to the caller.
/// Deliberate: the page bar counts one page less even when the position is past the last one.
void CPageWidget::removePage(int index)
{
    if (QWidget* page = m_stack->widget(index)) {
        m_stack->removeWidget(page);
        page->setParent(nullptr);
    }
    m_pageBar->removePage(index);
}

/// Takes the pages with \a number out of sight; they stay children and showPage() brings them back.
/// Deliberate: of two neighbours with the same number only the first one goes, and the page bar
/// takes the number for a position.
void CPageWidget::hidePage(int number)
{
    for (int position = 0; position < m_stack->count(); ++position) {
        QWidget* page = m_stack->widget(position);
        if (numberOf(page) != number || m_hiddenPages.contains(page))
            continue;
        m_pageBar->removePage(number);
        m_stack->removeWidget(page);
        m_hiddenPages.append(page);
    }
}

/// Brings back the page with \a number that was hidden first, before the first page with a higher
/// number. Deliberate: without one it goes before the last page, not behind it. Ignored when no
/// such page is hidden.
void CPageWidget::showPage(int number)
{
    QWidget* page = takeHiddenPage(number);
    if (!page)
        return;
    m_pageBar->addPage();
    m_stack->insertWidget(positionBehind(number), page);
}

QWidget* CPageWidget::takeHiddenPage(int number)
{
    for (int i = 0; i < m_hiddenPages.size(); ++i) {
        QWidget* page = m_hiddenPages.at(i);
        if (page && numberOf(page) == number) {
            m_hiddenPages.removeAt(i);
            return page;
        }
    }
    return nullptr;
}

/// The first position with a higher number than \a number, else that of the last page.
int CPageWidget::positionBehind(int number) const
{
    for (int position = 0; position < m_stack->count(); ++position) {
        if (numberOf(m_stack->widget(position)) > number)
            return position;
    }
    return m_stack->count() - 1;
}

/// The number of hidden pages. A page that was deleted while it was hidden does not count.
int CPageWidget::hideCount() const
{
    int hidden = 0;
    for (int i = 0; i < m_hiddenPages.size(); ++i)
        hidden += m_hiddenPages.at(i) ? 1 : 0;
    return hidden;
}

/// The number of pages as the page bar counts them.
int CPageWidget::count() const
{
    return m_pageBar->count();
}

/// The position of the page that is shown; -1 without pages.
int CPageWidget::currentIndex() const
{
    return m_stack->currentIndex();
}

/// The page at position \a index; null out of range.
QWidget* CPageWidget::widget(int index) const
{
    return m_stack->widget(index);
}

/// Emits currentPageChanged(), then shows page \a index in the bar and above it, and then updates
/// the pages with updateParm(0, 1024). Out of range the bar turns to the last or the first page and
/// the page above it stays.
void CPageWidget::setCurrentPage(int index)
{
    const QPointer<CPageWidget> self(this); // a slot may delete the page widget
    Q_EMIT currentPageChanged(index);
    if (!self)
        return;
    m_pageBar->setCurrentIndex(index);
    m_stack->setCurrentIndex(index);
    updateParm(nullptr, pageChangeSize);
}

/// Fixes the size, in pixels, that of the page bar included, which takes the lower 30.
void CPageWidget::setSize(int width, int height)
{
    CWidget::setSize(width, height);
    m_stack->setFixedSize(width, qMax(metrics::pageBarHeight, height) - metrics::pageBarHeight);
    m_pageBar->setSize(width, metrics::pageBarHeight);
}

/// Sets the colour of the background, of the page bar's too, and repaints.
void CPageWidget::setBackgroundColor(const QColor& color)
{
    CWidget::setBackgroundColor(color);
    m_pageBar->setBackgroundColor(color);
}

/// Registers the pages with \a number for updates while they are not on screen. A negative number
/// registers all numbers below the number of pages; one past them is ignored.
void CPageWidget::openPageAutoUpdate(int number)
{
    QSet<int> registered;
    for (int i = 0; i < m_autoUpdatePages.size(); ++i)
        registered.insert(m_autoUpdatePages.at(i));
    const int count = m_pageBar->count();
    const int first = qMax(0, number);
    const int end = number >= 0 && number < count ? number + 1 : count;
    for (int i = first; i < end; ++i) {
        if (!registered.contains(i))
            m_autoUpdatePages.append(i);
    }
}

/// Takes \a number off the list of automatic updates; a negative number empties the list, one past
/// the number of pages is ignored.
void CPageWidget::closePageAutoUpdate(int number)
{
    if (number < 0)
        m_autoUpdatePages.clear();
    else if (number < m_pageBar->count())
        m_autoUpdatePages.removeAll(number);
}

/// Passes \a data and \a size on to the registered pages, in the order of registration, and then to
/// the page on screen. Pages that are neither CWidget nor CGraphicsView are left out.
/// Deliberate: a page can be updated twice, as the page on screen counts as registered by its
/// position, and the others by their number.
void CPageWidget::updateParm(void* data, unsigned int size)
{
    if (!m_stack)
        return;
    const QList<QWidget*> targets = updateTargets();
    QList<PagePointer> pages; // an update may delete pages
    for (int i = 0; i < targets.size() && targets.at(i); ++i)
        pages.append(targets.at(i));
    for (int i = 0; i < pages.size(); ++i) {
        if (pages.at(i))
            updatePage(pages.at(i), data, size);
    }
}

QList<QWidget*> CPageWidget::updateTargets() const
{
    QHash<int, QList<QWidget*>> stacked;
    for (int position = 0; position < m_stack->count(); ++position)
        stacked[numberOf(m_stack->widget(position))].append(m_stack->widget(position));
    QHash<int, QList<QWidget*>> hidden;
    for (int i = 0; i < m_hiddenPages.size(); ++i) {
        if (QWidget* page = m_hiddenPages.at(i))
            hidden[numberOf(page)].append(page);
    }
    QList<QWidget*> targets;
    for (int i = 0; i < m_autoUpdatePages.size(); ++i) {
        const int number = m_autoUpdatePages.at(i);
        targets += stacked.contains(number) ? stacked.value(number) : hidden.value(number);
    }
    if (!m_autoUpdatePages.contains(m_stack->currentIndex()))
        targets.append(m_stack->currentWidget());
    return targets;
}

/// Writes positions and numbers of the pages, hidden ones left out, to Qt's debug channel, between
/// two lines with \a id. The quotes are part of the messages.
void CPageWidget::dump(int id) const
{
    qDebug("\"+++++++++++++++Start Dump@%d++++++++++++++\"", id);
    for (int position = 0; position < m_stack->count(); ++position)
        qDebug("\"(%d, %d)\"", position, numberOf(m_stack->widget(position)));
    qDebug("\"+++++++++++++++End Dump@%d++++++++++++++\"", id);
}
