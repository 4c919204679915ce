#include "pages/pagelayout_p.h"

namespace
{

void setUp(QVBoxLayout* layout)
{
    layout->setContentsMargins(0, 2, 0, 1);
    layout->setSpacing(1);
    layout->setAlignment(Qt::AlignCenter);
    layout->addStretch();
}

} // namespace

/// The layout of \a parent, without rows, with a stretch at its end.
PageLayout::PageLayout(QWidget* parent) : QVBoxLayout(parent), m_isWalked(false)
{
    setUp(this);
    setUp(&m_page);
}

PageLayout::~PageLayout()
{
}

/// Makes \a rows, which are rows of this layout in its order, those that are on screen.
void PageLayout::setPage(const QList<QWidget*>& rows)
{
    if (rows == m_rows)
        return;
    m_rows = rows;
    while (m_page.count() > 1) // all but the stretch
        delete m_page.takeAt(m_page.count() - 2);
    for (int i = 0; i < rows.size(); ++i)
        m_page.insertItem(i, new QWidgetItem(rows.at(i)));
    invalidate();
}

/// Activates the layout. Qt begins with a walk over the items and has each of them forget its
/// sizes, which rows off the page need not: a row tells its item when its size changes. So that
/// walk, and nothing after it, gets to see the items of the page only.
void PageLayout::activatePage()
{
    m_isWalked = true;
    activate();
    m_isWalked = false;
}

QLayoutItem* PageLayout::itemAt(int index) const
{
    if (!m_isWalked)
        return QVBoxLayout::itemAt(index);
    QLayoutItem* const item = m_page.itemAt(index);
    m_isWalked = item != nullptr;
    return item;
}

bool PageLayout::hasHeightForWidth() const
{
    return m_page.hasHeightForWidth();
}

QSize PageLayout::sizeHint() const
{
    return m_page.sizeHint();
}

QSize PageLayout::minimumSize() const
{
    return m_page.minimumSize();
}

QSize PageLayout::maximumSize() const
{
    return m_page.maximumSize();
}

Qt::Orientations PageLayout::expandingDirections() const
{
    return m_page.expandingDirections();
}

void PageLayout::invalidate()
{
    m_page.invalidate();
    QVBoxLayout::invalidate();
}

/// Where rows must be squeezed, all rows have a say in which of them is a pixel smaller.
void PageLayout::setGeometry(const QRect& rect)
{
    if (m_page.minimumSize().height() > rect.height()) {
        QVBoxLayout::setGeometry(rect);
        return;
    }
    QLayout::setGeometry(rect); // NOLINT(bugprone-parent-virtual-call): not the box's, of all rows
    m_page.setGeometry(rect);
}
