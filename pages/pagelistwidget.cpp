#include "pages/pagelistwidget.h"

#include "pages/pagebar.h"
#include "pages/pagelistwidgetheader.h"
#include "pages/pagelistwidgetitemarea.h"
#include "style/widgetstyle.h"
#include "widgets/metrics_p.h"

#include <QVBoxLayout>

namespace
{

const int defaultWidth = 220;
const int defaultHeight = 238;
const int headerHeight = 60;

} // namespace

/// An empty list of 220 x 238 pixels, the page bar included, in the font of the style file's entry
/// "CComboBox". It is a popup, so a touch outside it hides it.
CPageListWidget::CPageListWidget(QWidget* parent)
    : CWidget(parent),
      m_width(0),
      m_height(0),
      m_maxVisibleRows(metrics::rowsOfPage),
      m_header(new CPageListWidgetHeader(this)),
      m_itemArea(new CPageListWidgetItemArea(this)),
      m_pageBar(new CPageBar(this, CWidgetStyle::HorizontalPageBar))
{
    setWindowFlags(Qt::Popup);
    buildLayout();
    m_pageBar->setBackgroundColor(Qt::white);
    m_pageBar->setBorderColor(Qt::black);
    m_pageBar->setBorderWidth(1);
    setWidgetStyle(CWidgetStyle::getWidgetStyle(QLatin1String("CComboBox"), nullptr));
    connect(m_itemArea, SIGNAL(currentItemChanged(QString)), this,
            SIGNAL(currentItemChanged(QString)));
    connect(m_itemArea, SIGNAL(currentItemChanged(int)), this, SIGNAL(currentItemChanged(int)));
    connect(m_pageBar, SIGNAL(pageChanged(int)), m_itemArea, SLOT(setCurrentPage(int)));
    setSize(defaultWidth, defaultHeight);
}

CPageListWidget::~CPageListWidget()
{
}

void CPageListWidget::buildLayout()
{
    QVBoxLayout* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 1, 0);
    layout->setSpacing(0);
    layout->addWidget(m_header);
    layout->addWidget(m_itemArea);
    layout->addWidget(m_pageBar);
    m_pageBar->hide();
    layout->addStretch();
}

/// The list of texts, empty by default.
QStringList CPageListWidget::items() const
{
    return m_items;
}

/// Makes \a texts the entries of the list, all of them taking part in paging, in place of those
/// that are there. The current index stays.
void CPageListWidget::setItems(const QStringList& texts)
{
    const int current = currentIndex();
    clear();
    addItems(texts);
    setCurrentIndex(current);
}

/// Makes \a texts the list of texts, adds a row for each of them and lets all of them take part in
/// paging. Deliberate: rows that are there already stay; call clear() first.
void CPageListWidget::addItems(const QStringList& texts)
{
    m_items = texts;
    m_itemArea->addItems(m_items);
    QList<int> all;
    for (int i = 0; i < m_items.size(); ++i)
        all.append(i);
    setVisibleItems(all);
}

/// Appends \a text to the list of texts. Deliberate: rows are added for the whole list; of the old
/// and the new rows together, as many take part in paging as there are texts.
void CPageListWidget::addItem(const QString& text)
{
    const QStringList texts = QStringList(m_items) << text;
    addItems(texts);
}

/// Deletes the rows. Texts, the selection that takes part in paging and the page bar stay as they
/// are.
void CPageListWidget::clear()
{
    m_itemArea->clear();
}

/// Lets the entries with the given \a indexes take part in paging; the rows keep their order. The
/// page bar keeps its page as far as it exists. Deliberate: the rows keep theirs in any case.
void CPageListWidget::setVisibleItems(const QList<int>& indexes)
{
    m_visibleIndex = indexes;
    m_itemArea->setVisibleItems(m_visibleIndex);
    const int page = m_pageBar->currentIndex();
    m_pageBar->setVisible(needsPageBar());
    adjustHeight();
    adjustPageCount();
    m_pageBar->setCurrentIndex(qMin(qMax(0, page), m_pageBar->count() - 1));
}

/// The indexes of the entries that take part in paging, in the order in which they were given.
QList<int> CPageListWidget::visibleItemsIndex() const
{
    return m_visibleIndex;
}

/// The texts of the entries that take part in paging, in the order in which their indexes were
/// given. An index outside the list of texts has an empty one.
QStringList CPageListWidget::visibleItems() const
{
    QStringList texts;
    for (int i = 0; i < m_visibleIndex.size(); ++i)
        texts.append(m_items.value(m_visibleIndex.at(i)));
    return texts;
}

/// The texts of the page that the page bar shows. Deliberate: counted over all texts and not only
/// over those that take part in paging. Empty where there is no such page.
QStringList CPageListWidget::getCurrentItems() const
{
    const int start = m_pageBar->currentIndex() * m_maxVisibleRows;
    if (start < 0 || start >= m_items.size())
        return QStringList();
    return m_items.mid(start, m_maxVisibleRows);
}

/// Opens the list on the entry with \a index: on its page, with its text in the header, and marked.
/// For an entry that takes no part in paging the page bar turns to the last page and the rows stay
/// as they are; for one outside the list of texts the header is empty as well.
void CPageListWidget::show(int index)
{
    setVisible(true);
    m_pageBar->setVisible(needsPageBar());
    adjustHeight();
    adjustPageCount();
    const int page = pageOf(index);
    m_pageBar->setCurrentIndex(page);
    m_header->setText(m_items.value(index));
    m_itemArea->setCurrentPage(page);
    m_itemArea->setCurrentIndex(index);
}

/// Opens the list with \a text in the header; the entry with that text is marked if it is on the
/// page that was shown last. Deliberate: unlike show(int) this does not turn the page.
void CPageListWidget::show(const QString& text)
{
    setVisible(true);
    m_header->setText(text);
    m_itemArea->setCurrentIndex(m_items.indexOf(text));
    adjustHeight();
}

bool CPageListWidget::needsPageBar() const
{
    return m_maxVisibleRows < m_visibleIndex.size();
}

/// The page, from 0, of the entry with \a index; -1 when it takes no part in paging.
int CPageListWidget::pageOf(int index) const
{
    const int position = m_visibleIndex.indexOf(index);
    return position < 0 ? -1 : position / m_maxVisibleRows;
}

/// The title in the header, empty by default.
QString CPageListWidget::title() const
{
    return m_title;
}

/// Sets the title in the header.
void CPageListWidget::setTitle(const QString& title)
{
    m_title = title;
    m_header->setTitle(m_title);
}

/// What was last given to setText(), empty by default.
QString CPageListWidget::text() const
{
    return m_text;
}

/// Sets the current value in the header. Opening the list replaces it.
void CPageListWidget::setText(const QString& text)
{
    m_text = text;
    m_header->setText(m_text);
}

/// Fixes the size of the list with its page bar, in pixels. Without page bar the list is 30 pixels
/// less high.
void CPageListWidget::setSize(int width, int height)
{
    m_width = width;
    m_height = height;
    CWidget::setSize(width, height);
    m_header->setSize(width, headerHeight);
    m_pageBar->setSize(width, metrics::pageBarHeight);
    const int besideRows = headerHeight + metrics::pageBarHeight;
    m_itemArea->setSize(width, qMax(besideRows, height) - besideRows);
    adjustHeight();
}

/// Gives the list its full height, or that without the page bar while this is not on screen.
void CPageListWidget::adjustHeight()
{
    setHeight(m_pageBar->isVisible() ? m_height
                                     : qMax(m_pageBar->height(), m_height) - m_pageBar->height());
}

/// Has the page bar count the pages that the entries need which take part in paging.
void CPageListWidget::adjustPageCount()
{
    m_pageBar->clear();
    m_pageBar->addPages((m_visibleIndex.size() + m_maxVisibleRows - 1) / m_maxVisibleRows);
}

/// The index of the current entry in the list of texts, 0 by default.
int CPageListWidget::currentIndex() const
{
    return m_itemArea->currentIndex();
}

/// Marks the row of the entry with \a index if it is on screen. The page stays.
void CPageListWidget::setCurrentIndex(int index)
{
    m_itemArea->setCurrentIndex(index);
}
