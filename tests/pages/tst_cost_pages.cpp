#include "support/costs.h"
#include "support/heap.h"

#include "pages/combobox.h"
#include "pages/pagelistwidget.h"
#include "pages/pagelistwidgetitem.h"
#include "pages/pagelistwidgetitemarea.h"

// What lists and boxes may cost, counted in events and bytes and not in time.

using testing::Cost;

namespace
{

const int rowsPerPage = 5;

// clang-format off

/// Rows that were never on screen are polished, sized and placed when they come. No row asks for its
/// paint, then or later: Qt goes through all rows of a list for each one that does.
const Cost firstTurn[] = {
    {"rows shown",    QEvent::Show,          rowsPerPage, rowsPerPage},
    {"rows hidden",   QEvent::Hide,          rowsPerPage, rowsPerPage},
    {"moves",         QEvent::Move,          rowsPerPage, 2 * rowsPerPage},
    {"resizes",       QEvent::Resize,        0,           rowsPerPage},
    {"polishes",      QEvent::Polish,        0,           rowsPerPage},
    {"layout passes", QEvent::LayoutRequest, 0,           1},
    {"paints",        QEvent::Paint,         rowsPerPage, rowsPerPage + 2},
    {"asking rows",   QEvent::UpdateLater,   0,           0},
    {"flushes",       QEvent::UpdateRequest, 1,           1},
};

const Cost laterTurn[] = {
    {"rows shown",    QEvent::Show,          rowsPerPage, rowsPerPage},
    {"rows hidden",   QEvent::Hide,          rowsPerPage, rowsPerPage},
    {"moves",         QEvent::Move,          0,           0},
    {"resizes",       QEvent::Resize,        0,           0},
    {"polishes",      QEvent::Polish,        0,           0},
    {"layout passes", QEvent::LayoutRequest, 0,           1},
    {"paints",        QEvent::Paint,         rowsPerPage, rowsPerPage + 2},
    {"asking rows",   QEvent::UpdateLater,   0,           0},
    {"flushes",       QEvent::UpdateRequest, 1,           1},
};

/// The list with its header, its area and its bar of two buttons.
const Cost reopening[] = {
    {"widgets shown", QEvent::Show,          11,          12},
    {"rows hidden",   QEvent::Hide,          0,           0},
    {"moves",         QEvent::Move,          0,           0},
    {"resizes",       QEvent::Resize,        0,           0},
    {"polishes",      QEvent::Polish,        0,           0},
    {"layout passes", QEvent::LayoutRequest, 0,           0},
    {"paints",        QEvent::Paint,         rowsPerPage, rowsPerPage + 7},
    {"flushes",       QEvent::UpdateRequest, 1,           1},
};

const Cost selection[] = {
    {"rows shown",    QEvent::Show,          0,           0},
    {"rows hidden",   QEvent::Hide,          0,           0},
    {"layout passes", QEvent::LayoutRequest, 0,           0},
    {"paints",        QEvent::Paint,         1,           3},
    {"flushes",       QEvent::UpdateRequest, 1,           1},
};

/// The sheet is applied once, after the font, to the box, to its list and to what that consists of.
/// Qt's own popup is not made.
const Cost boxConstruction[] = {
    {"applied sheets", QEvent::StyleChange,  1,           8},
    {"polishes",       QEvent::Polish,       0,           0},
};

// clang-format on

QStringList numberedTexts(int count)
{
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts.append(QString::fromLatin1("item %1").arg(i));
    return texts;
}

CPageListWidgetItem* visibleRow(const CPageListWidget& list)
{
    const QList<CPageListWidgetItem*> rows = list.findChildren<CPageListWidgetItem*>();
    for (int i = 0; i < rows.size(); ++i) {
        if (rows.at(i)->isVisible())
            return rows.at(i);
    }
    return nullptr;
}

} // namespace

class tst_cost_pages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listOfAnyLength_data();
    void listOfAnyLength();
    void heapOfARow();
    void constructedBox();
};

void tst_cost_pages::listOfAnyLength_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("two pages") << 2 * rowsPerPage;
    QTest::newRow("many pages") << 1000;
}

void tst_cost_pages::listOfAnyLength()
{
    QFETCH(int, count);
    CPageListWidget list;
    list.addItems(numberedTexts(count));
    list.show(0);
    QVERIFY(testcompat::waitForWindow(&list));
    CPageListWidgetItemArea* area = list.findChild<CPageListWidgetItemArea*>();
    CWIDGET_VERIFY_COSTS(firstTurn, [&] { area->setCurrentPage(1); });
    CWIDGET_VERIFY_COSTS(laterTurn, [&] { area->setCurrentPage(0); });
    CWIDGET_VERIFY_COSTS(laterTurn, [&] { area->setCurrentPage(1); });
    CWIDGET_VERIFY_COSTS(selection, [&] { QTest::mouseClick(visibleRow(list), Qt::LeftButton); });
    list.hide();
    CWIDGET_VERIFY_COSTS(reopening, [&] { list.show(rowsPerPage); });
}

void tst_cost_pages::heapOfARow()
{
    if (!testing::isHeapKnown())
        CWIDGET_SKIP("the heap of this program cannot be measured");
    const int count = 1000;
    const size_t most = 2000;
    CPageListWidget list;
    const QStringList texts = numberedTexts(count);
    const size_t before = testing::heapInUse();
    list.addItems(texts);
    const size_t each = (testing::heapInUse() - before) / count;
    QVERIFY2(each > 0 && each <= most, qPrintable(QString::number(each)));
}

void tst_cost_pages::constructedBox()
{
    CWIDGET_VERIFY_COSTS(boxConstruction, [] { delete new CComboBox; });
}

QTEST_MAIN(tst_cost_pages)
#include "tst_cost_pages.moc"
