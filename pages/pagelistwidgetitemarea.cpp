#include "pages/pagelistwidgetitemarea.h"

#include "pages/pagelayout_p.h"
#include "pages/pagelistwidgetitem.h"
#include "style/qtcompat.h"
#include "style/widgetstyle.h"
#include "widgets/metrics_p.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QSet>

namespace
{

const int rowMargins = 4; // left and right of a row together

/// Whether Qt paints \a row, and no more than its place, when the area is painted there.
bool isSeeThrough(const QWidget* row)
{
    return !row->autoFillBackground() && !row->testAttribute(Qt::WA_OpaquePaintEvent) &&
           !row->testAttribute(Qt::WA_PaintOnScreen) && !row->internalWinId() &&
           !row->graphicsEffect() && row->mask().isEmpty() && row->updatesEnabled();
}

bool areSeeThrough(const QList<QWidget*>& rows)
{
    for (int i = 0; i < rows.size(); ++i) {
        if (!isSeeThrough(rows.at(i)))
            return false;
    }
    return true;
}

} // namespace

/// An area without rows, white with a thin black border, in the font of the style file's entry
/// "CComboBox".
CPageListWidgetItemArea::CPageListWidgetItemArea(QWidget* parent)
    : CWidget(parent),
      m_currentPage(0),
      m_currentIndex(0),
      m_maxVisibleRows(metrics::rowsOfPage),
      m_layout(new PageLayout(this)),
      m_pressedItem(nullptr),
      m_releasedItem(nullptr),
      m_hoveredItem(nullptr),
      m_firstShown(0),
      m_endShown(0)
{
    setBackgroundColor(Qt::white);
    setBorderColor(Qt::black);
    setBorderWidth(1);
    setMouseTracking(true);
    setWidgetStyle(CWidgetStyle::getWidgetStyle(QLatin1String("CComboBox"), nullptr));
    setMaxVisibleRows(metrics::rowsOfPage);
}

CPageListWidgetItemArea::~CPageListWidgetItemArea()
{
}

/// Appends a row for each of \a texts; their indexes continue after the rows that there are. They
/// take no part in paging until setVisibleItems() says so. The area owns the rows.
void CPageListWidgetItemArea::addItems(const QStringList& texts)
{
    pauseLayout();
    ensurePolished(); // before there are rows, which it would polish as well
    for (int i = 0; i < texts.size(); ++i)
        addItem(texts.at(i));
    resumeLayout();
}

void CPageListWidgetItemArea::addItem(const QString& text)
{
    CPageListWidgetItem* item = new CPageListWidgetItem(text, this);
    // Under a style sheet polishing is slow. A row is polished when it is shown, most never are.
    QCoreApplication::removePostedEvents(item, QEvent::PolishRequest);
    item->setIndex(m_items.size());
    m_items.append(item);
    item->setSize(rowSize());
    item->hide();
    item->setActive(false);
    m_layout->insertWidget(m_layout->count() - 1, item); // before the stretch
    item->installEventFilter(this);
}

/// Deletes all rows. Page and entry are the first ones again; the text of the last touched entry
/// stays.
void CPageListWidgetItemArea::clear()
{
    // Qt may deliver a move of the mouse to the area while a row is deleted: no row is known then.
    QList<CPageListWidgetItem*> items;
    items.swap(m_items);
    m_visibleItems.clear();
    m_pressedItem = nullptr;
    m_releasedItem = nullptr;
    m_hoveredItem = nullptr;
    m_currentIndex = 0;
    m_currentPage = 0;
    m_firstShown = 0;
    m_endShown = 0;
    m_layout->setPage(QList<QWidget*>());
    for (int i = 0; i < items.size(); ++i) {
        items.at(i)->removeEventFilter(this);
        delete items.at(i);
    }
}

/// Lets the rows with the given \a indexes take part in paging, in the order in which they were
/// added, and hides all others. Deliberate: where the current page no longer exists, all of them
/// are shown.
void CPageListWidgetItemArea::setVisibleItems(const QList<int>& indexes)
{
    QSet<int> offered;
    for (int i = 0; i < indexes.size(); ++i)
        offered.insert(indexes.at(i));
    pauseLayout();
    m_visibleItems.clear();
    for (int i = 0; i < m_items.size(); ++i) {
        CPageListWidgetItem* item = m_items.at(i);
        item->setActive(offered.contains(item->index()));
        if (item->isActive())
            m_visibleItems.append(item);
    }
    resumeLayout();
    m_firstShown = 0; // all of them may be on screen and marked, from before
    m_endShown = m_visibleItems.size();
    if (hasCurrentPage())
        updateStatus();
    else
        showRows(0, m_visibleItems.size());
}

/// The index of the current entry in the owner's list of texts, 0 by default.
int CPageListWidgetItemArea::currentIndex() const
{
    return m_currentIndex;
}

/// Sets the index of the current entry, which is marked if it is on screen. The page stays.
void CPageListWidgetItemArea::setCurrentIndex(int index)
{
    m_currentIndex = index;
    updateStatus();
}

/// The page that is shown, from 0.
int CPageListWidgetItemArea::currentPage() const
{
    return m_currentPage;
}

/// The text of the entry that was touched last; empty at first.
QString CPageListWidgetItemArea::currentText() const
{
    return m_currentText;
}

/// How many rows a page has, 5 by default.
int CPageListWidgetItemArea::maxVisibleRows() const
{
    return m_maxVisibleRows;
}

/// Sets how many rows a page has.
void CPageListWidgetItemArea::setMaxVisibleRows(int rows)
{
    m_maxVisibleRows = rows;
    updateStatus();
}

/// Shows page \a page, from 0. A page that does not exist leaves the rows as they are.
void CPageListWidgetItemArea::setCurrentPage(int page)
{
    m_currentPage = page;
    updateStatus();
}

/// Shows the rows of the current page, hides those of the other pages, and marks the row of the
/// current entry if it is on screen. Does nothing when the current page does not exist.
void CPageListWidgetItemArea::updateStatus()
{
    if (!hasCurrentPage())
        return;
    const int first = m_currentPage * m_maxVisibleRows;
    const qint64 end = static_cast<qint64>(first) + qMax(0, m_maxVisibleRows);
    showRows(first, static_cast<int>(qMin<qint64>(end, m_visibleItems.size())));
}

bool CPageListWidgetItemArea::hasCurrentPage() const
{
    const qint64 start = static_cast<qint64>(m_currentPage) * m_maxVisibleRows;
    return start >= 0 && start < m_visibleItems.size();
}

/// Hands the rows that may be on screen now and those from \a first to the one before \a end to \a
/// visit, from the top, and says of each whether it is one of the latter.
template <typename Visitor>
void CPageListWidgetItemArea::visitRows(int first, int end, Visitor visit) const
{
    for (int i = m_firstShown; i < qMin(m_endShown, first); ++i)
        visit(m_visibleItems.at(i), false);
    for (int i = first; i < end; ++i)
        visit(m_visibleItems.at(i), true);
    for (int i = qMax(m_firstShown, end); i < m_endShown; ++i)
        visit(m_visibleItems.at(i), false);
}

/// Shows the rows from \a first to the one before \a end and no others, and marks that of the
/// current entry.
void CPageListWidgetItemArea::showRows(int first, int end)
{
    QList<QWidget*> page;
    QList<QWidget*> appearing;
    pauseLayout();
    visitRows(first, end, [&](CPageListWidgetItem* item, bool isOnPage) {
        if (isOnPage)
            page.append(item);
        if (item->isActive() && showRow(item, isOnPage))
            appearing.append(item);
    });
    m_layout->setPage(page);
    resumeLayout();
    m_firstShown = first;
    m_endShown = end;
    if (hasCurrentPage())
        repaintRows(appearing, updatesEnabled() && hasRowsOnly() && areSeeThrough(page));
}

/// Shows or hides \a item and marks it, and tells whether it appears. A row that does is marked
/// before: it is painted in any case and need not ask for it.
bool CPageListWidgetItemArea::showRow(CPageListWidgetItem* item, bool isOnPage)
{
    const bool appears = isOnPage && item->isHidden();
    if (!appears)
        item->setVisible(isOnPage);
    if (hasCurrentPage())
        item->setSelect(item->index() == m_currentIndex && isOnPage && isVisible());
    if (appears)
        item->setVisible(true);
    return appears;
}

/// Has \a rows painted that appear. Each asks for it by itself, but Qt goes through all rows for
/// each one that does; so the area asks in their place if that \a isAreaEnough.
void CPageListWidgetItemArea::repaintRows(const QList<QWidget*>& rows, bool isAreaEnough)
{
    for (int i = 0; i < rows.size(); ++i) {
        if (isAreaEnough) {
            QCoreApplication::removePostedEvents(rows.at(i), QEvent::UpdateLater);
            update(rows.at(i)->geometry());
        } else {
            rows.at(i)->update();
        }
    }
}

/// Whether the area has no other children than its rows and their layout.
bool CPageListWidgetItemArea::hasRowsOnly() const
{
    return children().size() == m_items.size() + 1;
}

/// Until resumeLayout(), rows come and go without a layout of all rows for each of them.
void CPageListWidgetItemArea::pauseLayout()
{
    m_layout->setEnabled(false);
}

void CPageListWidgetItemArea::resumeLayout()
{
    m_layout->setEnabled(true);
    if (isVisible())
        m_layout->activatePage();
}

/// Fixes the size of the area, and with it that of all rows, in pixels.
void CPageListWidgetItemArea::setSize(int width, int height)
{
    CWidget::setSize(width, height);
    for (int i = 0; i < m_items.size(); ++i)
        m_items.at(i)->setSize(rowSize());
}

QSize CPageListWidgetItemArea::rowSize() const
{
    return QSize(qMax(0, width() - rowMargins), metrics::controlHeight);
}

/// Remembers the row that was touched.
void CPageListWidgetItemArea::mousePressEvent(QMouseEvent* event)
{
    CWidget::mousePressEvent(event);
    m_releasedItem = nullptr;
    m_pressedItem = itemAt(qtcompat::eventPos(event));
}

/// A row is chosen where the finger went down and is lifted on that same row.
void CPageListWidgetItemArea::mouseReleaseEvent(QMouseEvent* event)
{
    CWidget::mouseReleaseEvent(event);
    m_releasedItem = itemAt(qtcompat::eventPos(event));
    CPageListWidgetItem* chosen = m_releasedItem == m_pressedItem ? m_releasedItem : nullptr;
    m_pressedItem = nullptr;
    m_releasedItem = nullptr;
    const QPointer<CPageListWidgetItemArea> self(this); // a slot may delete the area
    if (chosen)
        choose(chosen);
    if (!self)
        event->accept(); // else Qt passes it on to the parents, which may be gone as well
}

/// Deliberate: the row that was marked before keeps its mark until the next updateStatus(). The
/// index is told as the slots of the text have left it.
void CPageListWidgetItemArea::choose(CPageListWidgetItem* item)
{
    item->setSelect(true);
    const QString text = item->text();
    m_currentText = text;
    m_currentIndex = item->index();
    const QPointer<CPageListWidgetItemArea> self(this); // a slot may delete the area or its rows
    Q_EMIT currentItemChanged(text);
    if (self)
        Q_EMIT currentItemChanged(m_currentIndex);
}

/// Highlights the row under the finger or the mouse.
void CPageListWidgetItemArea::mouseMoveEvent(QMouseEvent* event)
{
    CWidget::mouseMoveEvent(event);
    if (m_hoveredItem)
        m_hoveredItem->setHoverOut();
    m_hoveredItem = itemAt(qtcompat::eventPos(event));
    if (m_hoveredItem)
        m_hoveredItem->setHoverIn();
}

/// The row at \a point; null when there is none.
CPageListWidgetItem* CPageListWidgetItemArea::itemAt(const QPoint& point) const
{
    if (!rect().contains(point))
        return nullptr;
    for (int i = m_endShown - 1; i >= m_firstShown; --i) {
        CPageListWidgetItem* item = m_visibleItems.at(i);
        if (!item->isHidden() && item->geometry().contains(point))
            return item;
    }
    return nullptr;
}
