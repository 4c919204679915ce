#include "pages/combobox.h"

#include "pages/comboboxrow_p.h"
#include "pages/pagelistwidget.h"
#include "style/qtcompat.h"
#include "style/stylewalk_p.h"
#include "style/widgetstyle.h"
#include "widgets/metrics_p.h"
#include "widgets/painting_p.h"
#include "widgets/sheetfont_p.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QSet>

namespace
{

const int maskBits = 64;

// The semicolon at the end is part of it.
const char boxStyleSheet[] =
    "QComboBox{border:0px;} "
    "QComboBox::drop-down{top:4px;right:4px;image:url(:/images/drop-down.png)};";

template <typename Value>
QSet<Value> setOf(const QList<Value>& values)
{
    QSet<Value> set;
    set.reserve(values.size());
    for (int i = 0; i < values.size(); ++i)
        set.insert(values.at(i));
    return set;
}

} // namespace

/// A box without entries, 28 pixels high, in the font of the style file's entry "CComboBox".
CComboBox::CComboBox(QWidget* parent)
    : QComboBox(parent),
      m_currentIndex(0),
      m_autoStyleEnabled(true),
      m_pageList(new CPageListWidget(this)),
      m_borderVisible(true),
      m_row(nullptr)
{
    m_pageList->hide();
    setFixedHeight(metrics::controlHeight);
    // The font comes first, as a sheet would have to go away for it.
    setWidgetStyle(CWidgetStyle::getWidgetStyle(QLatin1String("CComboBox"), nullptr));
    setStyleSheet(QLatin1String(boxStyleSheet));
    m_row = new ComboBoxRow(this);
    connect(this, qtcompat::comboTextActivatedSignal(), this, SLOT(itemActivated(QString)));
    connect(m_pageList, SIGNAL(currentItemChanged(QString)), this,
            SLOT(changeCurrentItem(QString)));
    connect(m_pageList, SIGNAL(currentItemChanged(int)), this, SLOT(changeCurrentItem(int)));
}

CComboBox::~CComboBox()
{
    delete m_row;
}

/// The table of entries, empty by default.
QStringList CComboBox::items() const
{
    return m_items;
}

/// Makes \a texts the table of entries, as addItems(), but the current index stays as far as the
/// new table has it: for the same entries in another language.
void CComboBox::setItems(const QStringList& texts)
{
    const QPointer<CComboBox> self(this); // a slot may delete the box
    const int current = m_currentIndex;
    addItems(texts);
    if (self)
        setCurrentIndex(current);
}

/// Makes \a texts the table of entries, all of them offered, with the first one shown, unless the
/// table holds these texts already. Showing it may emit currentValueChanged() with its text.
void CComboBox::addItems(const QStringList& texts)
{
    if (texts == m_items)
        return;
    const QPointer<CComboBox> self(this);
    setVisibleItems(texts, 0); // fills the box; its indexes are still those of the old table
    if (!self)
        return;
    m_items = texts;
    m_pageList->clear();
    m_pageList->addItems(m_items);
}

/// The index of the current entry in the table, 0 at first. It is not the row of the closed box,
/// which counts only what the box offers.
int CComboBox::currentIndex() const
{
    return m_currentIndex;
}

/// Makes the entry with \a index the current one and shows it in the closed box, or the first row
/// where its text is not offered. An index outside the table is taken for 0. A change of the row
/// emits currentValueChanged() with the text.
void CComboBox::setCurrentIndex(int index)
{
    m_currentIndex = index < 0 || index >= m_items.size() ? 0 : index;
    changeRow(qMax(0, rowOf(m_items.value(m_currentIndex))));
}

/// Offers the entries whose bits are set in \a mask, bit 0 being entry 0, and makes \a current the
/// current one, or the lowest offered one where its bit is not set; the closed box shows \a current
/// in either case. Shows the box, but a mask of 0 hides it and changes nothing of what it offers.
void CComboBox::setVisibleItems(unsigned long long mask, unsigned int current)
{
    const QPointer<CComboBox> self(this); // a slot may delete the box
    setCurrentIndex(static_cast<int>(current));
    if (self)
        setVisible(mask != 0);
    if (!self || mask == 0)
        return;
    QList<int> offered;
    for (int bit = 0; bit < maskBits; ++bit) {
        if ((mask >> bit) & 1)
            offered.append(bit);
    }
    const bool isOffered = current < static_cast<unsigned int>(maskBits) && ((mask >> current) & 1);
    setVisibleItems(offered, isOffered ? static_cast<int>(current) : offered.first());
}

/// The same over the entries 0 to 31.
void CComboBox::setVisibleItems(unsigned int mask, unsigned int current)
{
    setVisibleItems(static_cast<unsigned long long>(mask), current);
}

/// Offers the entries with the given \a indexes in the list and makes \a current the current one,
/// offered or not. The closed box stays as it is.
void CComboBox::setVisibleItems(const QList<int>& indexes, int current)
{
    if (!isChanged(indexes, current))
        return;
    m_currentIndex = current;
    m_pageList->setVisibleItems(indexes);
    m_pageList->setCurrentIndex(m_currentIndex);
}

/// Offers the entries with the given \a texts, in the list and in the closed box, and makes the
/// entry with the index \a current the current one. Emits currentValueChanged() with the text that
/// the closed box shows, unless this is the first row and \a current is above 0.
void CComboBox::setVisibleItems(const QStringList& texts, int current)
{
    if (!isChanged(texts, current))
        return;
    const QPointer<CComboBox> self(this); // a slot may delete the box
    fill(texts, current);
    if (!self)
        return;
    const QSet<QString> offered = setOf<QString>(texts);
    QList<int> indexes;
    for (int i = 0; i < m_items.size(); ++i) {
        if (offered.contains(m_items.at(i)))
            indexes.append(i);
    }
    setVisibleItems(indexes, current);
}

/// Fills the closed box. Deliberate: the order of the steps differs, so that the box is silent
/// about its first row when the current entry is above 0, and else tells it.
void CComboBox::fill(const QStringList& texts, int current)
{
    const bool wasBlocked = blockSignals(true);
    QComboBox::clear();
    if (current > 0) {
        QComboBox::addItems(texts);
        blockSignals(wasBlocked);
        setCurrentIndex(current);
    } else {
        blockSignals(wasBlocked);
        QStringList waiting;
        {
            const ComboBoxRow::Hold hold(m_row, &waiting);
            QComboBox::addItems(texts);
        }
        tellTexts(waiting);
    }
}

/// Offers the entries with the given \a texts and makes the entry with the text \a current the
/// current one; the current entry stays when there is none.
void CComboBox::setVisibleItems(const QStringList& texts, const QString& current)
{
    int index = m_items.indexOf(current);
    if (index < 0)
        index = m_currentIndex;
    if (index > m_items.size()) // Deliberate: an index equal to the count passes
        index = m_items.size() - 1;
    setVisibleItems(texts, index);
}

/// Offers the entry with \a text alone and makes it the current one.
void CComboBox::setVisibleItem(const QString& text)
{
    setVisibleItems(QStringList(text), text);
}

/// Offers all entries but those with the given \a indexes in the list and makes \a current the
/// current one, offered or not. The closed box stays as it is.
void CComboBox::setInvisibleItems(const QList<int>& indexes, int current)
{
    const QSet<int> withheld = setOf(indexes);
    QList<int> offered;
    for (int i = 0; i < m_items.size(); ++i) {
        if (!withheld.contains(i))
            offered.append(i);
    }
    setVisibleItems(offered, current);
}

/// Whether the list offers other entries than \a indexes, or in another order, or \a current is not
/// the current entry.
bool CComboBox::isChanged(const QList<int>& indexes, int current) const
{
    return m_currentIndex != current || m_pageList->visibleItemsIndex() != indexes;
}

/// Whether the list offers entries of other texts than \a texts, or in another order, or \a current
/// is not the current entry.
bool CComboBox::isChanged(const QStringList& texts, int current) const
{
    return m_currentIndex != current || m_pageList->visibleItems() != texts;
}

/// The title of the list, empty by default.
QString CComboBox::title() const
{
    return m_pageList->title();
}

/// Sets the title of the list.
void CComboBox::setTitle(const QString& title)
{
    m_pageList->setTitle(title);
}

/// Whether the closed box has a thin grey frame; true by default.
bool CComboBox::isBorderVisible() const
{
    return m_borderVisible;
}

/// Sets whether the closed box has a thin grey frame, and repaints.
void CComboBox::setBorderVisible(bool visible)
{
    m_borderVisible = visible;
    update();
}

/// Sets the font of the box and of its list.
void CComboBox::setFont(const QFont& font)
{
    if (sheetfont::isStyledBy(this, boxStyleSheet) && sheetfont::hasFont(this, font) &&
        sheetfont::hasFont(m_pageList, font))
        return;
    const QString sheet = styleSheet();
    setStyleSheet(QString()); // a style sheet could mask the font
    QWidget::setFont(font);
    m_pageList->setFont(font);
    setStyleSheet(sheet);
}

/// Whether setWidgetStyle() applies anything; true by default.
bool CComboBox::isAutoStyleEnabled() const
{
    return m_autoStyleEnabled;
}

/// Sets whether setWidgetStyle() applies anything, and repaints.
void CComboBox::setAutoStyleEnabled(bool enabled)
{
    m_autoStyleEnabled = enabled;
    update();
}

/// Takes the font of the FieldAll entry of \a style. Colours and other entries are ignored.
void CComboBox::setWidgetStyle(WidgetStyle style)
{
    stylewalk::setFont(this, m_autoStyleEnabled, style);
}

/// Opens the list on the current entry, over the middle of the active window; without one, of the
/// window of the box's parent, else of the primary screen.
void CComboBox::showPopup()
{
    const QRect ground = groundGeometry();
    centerPopup(ground); // so that it does not flash up where it was
    m_pageList->show(m_currentIndex);
    centerPopup(ground); // it has its height only now
}

QRect CComboBox::groundGeometry() const
{
    QWidget* active = QApplication::activeWindow();
    if (active && active != m_pageList)
        return active->geometry();
    return parentWidget() ? window()->geometry() : qtcompat::primaryScreenGeometry();
}

void CComboBox::centerPopup(const QRect& ground)
{
    m_pageList->move((ground.left() + ground.right()) / 2 - m_pageList->width() / 2,
                     (ground.top() + ground.bottom()) / 2 - m_pageList->height() / 2);
}

/// Closes the list.
void CComboBox::hidePopup()
{
    QComboBox::hidePopup();
    m_pageList->hide();
}

/// The row of \a text in the closed box; -1 when the box does not offer it.
int CComboBox::rowOf(const QString& text) const
{
    return findData(text, Qt::DisplayRole, Qt::MatchFixedString | Qt::MatchCaseSensitive);
}

/// Makes \a row that of the closed box.
void CComboBox::showRow(int row)
{
    const bool isRow = row >= 0 && row < count();
    if (isRow || QComboBox::currentIndex() >= 0) // Qt 6 would announce once more that there is none
        QComboBox::setCurrentIndex(row);
}

/// Makes \a row that of the closed box and then tells its text, if it is another one.
void CComboBox::changeRow(int row)
{
    QStringList waiting;
    {
        const ComboBoxRow::Hold hold(m_row, &waiting);
        showRow(row);
    }
    tellTexts(waiting);
}

/// Emits currentValueChanged() with each of \a texts, unless a slot has deleted the box.
void CComboBox::tellTexts(const QStringList& texts)
{
    const QPointer<CComboBox> self(this);
    for (int i = 0; i < texts.size() && self; ++i)
        Q_EMIT currentValueChanged(texts.at(i));
}

/// Qt has made the row with \a text the current one: does what changeCurrentText() does, except
/// that the text is left in \a waiting where there is such a list.
void CComboBox::followRow(const QString& text, QStringList* waiting)
{
    if (!waiting) {
        changeCurrentText(text);
        return;
    }
    hidePopup();
    showRow(rowOf(text));
    waiting->append(text);
}

/// Closes the list, shows \a text in the closed box, or nothing where it is not offered, and emits
/// currentValueChanged() with it. The index of the current entry stays.
void CComboBox::changeCurrentText(const QString& text)
{
    hidePopup();
    const QPointer<CComboBox> self(this); // a slot may delete the box
    changeRow(rowOf(text));
    if (self)
        Q_EMIT currentValueChanged(text);
}

/// The same as changeCurrentText(), for a touched row of the list.
void CComboBox::changeCurrentItem(const QString& text)
{
    changeCurrentText(text);
}

/// Closes the list and makes the entry with \a index the current one, in the closed box too. Emits
/// currentValueChanged(), activated() and currentItemActivated() with the index.
void CComboBox::changeCurrentItem(int index)
{
    hidePopup();
    m_currentIndex = index;
    const QPointer<CComboBox> self(this); // a slot may delete the box
    changeRow(rowOf(m_items.value(index)));
    if (self)
        Q_EMIT currentValueChanged(index);
    if (self)
        Q_EMIT activated(index);
    if (self)
        Q_EMIT currentItemActivated(index);
}

/// A text was chosen on the closed box: emits currentItemActivated() and activated() with its index
/// in the table, 0 when it is not in it.
void CComboBox::itemActivated(const QString& text)
{
    const int index = qMax(0, m_items.indexOf(text));
    const QPointer<CComboBox> self(this); // a slot may delete the box
    Q_EMIT currentItemActivated(index);
    if (self)
        Q_EMIT activated(index);
}

/// Until the box is complete, Qt's box is not told of its font and sheet: it has nothing yet that
/// depends on them, but would make its own popup for them, which is never shown.
void CComboBox::changeEvent(QEvent* event)
{
    if (m_row)
        QComboBox::changeEvent(event);
    else
        QWidget::changeEvent(event); // NOLINT(bugprone-parent-virtual-call): not the box's
}

/// Paints Qt's combo box and, unless it is switched off, a frame of one pixel.
void CComboBox::paintEvent(QPaintEvent* event)
{
    QComboBox::paintEvent(event);
    if (m_borderVisible)
        painting::drawThinFrame(this);
}
