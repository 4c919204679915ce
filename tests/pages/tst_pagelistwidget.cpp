#include "pages/pagebar.h"
#include "pages/pagelistwidget.h"
#include "pages/pagelistwidgetheader.h"
#include "pages/pagelistwidgetitem.h"
#include "pages/pagelistwidgetitemarea.h"
#include "support/signaltools.h"
#include "support/stylefile.h"
#include "support/testing.h"
#include "widgets/pushbutton.h"

#include <QVBoxLayout>

namespace
{

CPageBar* barOf(const CPageListWidget& list)
{
    return list.findChild<CPageBar*>();
}

CPageListWidgetItemArea* areaOf(const CPageListWidget& list)
{
    return list.findChild<CPageListWidgetItemArea*>();
}

QList<CPageListWidgetItem*> rowsOf(const CPageListWidget& list)
{
    return list.findChildren<CPageListWidgetItem*>();
}

/// The indexes of the rows that are not hidden, for example "5 6".
QString shownRows(const CPageListWidget& list)
{
    QStringList shown;
    const QList<CPageListWidgetItem*> rows = rowsOf(list);
    for (int i = 0; i < rows.size(); ++i) {
        if (!rows.at(i)->isHidden())
            shown.append(QString::number(rows.at(i)->index()));
    }
    return shown.join(QString::fromLatin1(" "));
}

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

QStringList texts(int first, int last)
{
    return numberedTexts(last + 1).mid(first);
}

} // namespace

class tst_pagelistwidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newListIsAnEmptyPopup();
    void childrenAreStacked();
    void setSizeDividesTheHeight();
    void smallSizesAreHarmless();
    void addItemsShowsAll();
    void addItemsTwiceKeepsTheOldRows();
    void addItemAddsASecondSetOfRows();
    void pageCount_data();
    void pageCount();
    void selectionKeepsTheCallersOrder();
    void indexesOutsideTheTableHaveNoText();
    void pageIsKeptWhereItExists_data();
    void pageIsKeptWhereItExists();
    void areaKeepsItsPageWhereTheBarIsClamped();
    void arrowsTurnTheRows();
    void currentItemsPageOverAllTexts_data();
    void currentItemsPageOverAllTexts();
    void clearDeletesRowsOnly();
    void setTextAndTitleReachTheHeader();
    void setCurrentIndexReachesTheArea();
    void heightFollowsTheBarOnScreen();
    void fontComesFromTheComboBoxStyle();
};

void tst_pagelistwidget::newListIsAnEmptyPopup()
{
    CPageListWidget list;
    QCOMPARE(list.windowType(), Qt::Popup);
    QVERIFY(list.isWindow());
    QVERIFY(!list.isVisible());
    QCOMPARE(list.visibleItemsIndex(), QList<int>());
    QCOMPARE(list.visibleItems(), QStringList());
    QCOMPARE(list.getCurrentItems(), QStringList());
    QCOMPARE(barOf(list)->count(), 0);
    QVERIFY(barOf(list)->isHidden());
    QWidget parent;
    CPageListWidget* child = new CPageListWidget(&parent);
    QVERIFY(child->isWindow());
    QCOMPARE(child->parentWidget(), &parent);
}

void tst_pagelistwidget::childrenAreStacked()
{
    CPageListWidget list;
    QVBoxLayout* layout = qobject_cast<QVBoxLayout*>(list.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 1, 0));
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->count(), 4);
    QVERIFY(qobject_cast<CPageListWidgetHeader*>(layout->itemAt(0)->widget()));
    QVERIFY(qobject_cast<CPageListWidgetItemArea*>(layout->itemAt(1)->widget()));
    QVERIFY(qobject_cast<CPageBar*>(layout->itemAt(2)->widget()));
    QVERIFY(layout->itemAt(3)->spacerItem());
    QCOMPARE(barOf(list)->getBackgroundColor(), QColor(Qt::white));
    QCOMPARE(barOf(list)->getBorderColor(), QColor(Qt::black));
    QCOMPARE(barOf(list)->getBorderWidth(), 1);
    QCOMPARE(barOf(list)->findChildren<CPushButton*>().first()->size(), QSize(26, 20));
}

void tst_pagelistwidget::setSizeDividesTheHeight()
{
    CPageListWidget list;
    QCOMPARE(list.size(), QSize(220, 208)); // no page bar on screen
    QCOMPARE(list.findChild<CPageListWidgetHeader*>()->size(), QSize(220, 60));
    QCOMPARE(areaOf(list)->size(), QSize(220, 148));
    QCOMPARE(barOf(list)->size(), QSize(220, 30));
    list.setSize(QSize(300, 400));
    QCOMPARE(list.size(), QSize(300, 370));
    QCOMPARE(list.findChild<CPageListWidgetHeader*>()->size(), QSize(300, 60));
    QCOMPARE(areaOf(list)->size(), QSize(300, 310));
    QCOMPARE(barOf(list)->size(), QSize(300, 30));
}

void tst_pagelistwidget::smallSizesAreHarmless()
{
    testing::Messages messages;
    CPageListWidget list;
    list.addItems(numberedTexts(7));
    list.setSize(3, 20);
    list.show(0);
    list.setSize(0, 0);
    QCOMPARE(messages.warnings().filter(text("QWidget::")), QStringList()); // no negative sizes
    QCOMPARE(areaOf(list)->height(), 0);
}

void tst_pagelistwidget::addItemsShowsAll()
{
    CPageListWidget list;
    list.addItems(numberedTexts(7));
    QCOMPARE(list.visibleItemsIndex(), numbers(0, 6));
    QCOMPARE(list.visibleItems(), numberedTexts(7));
    QCOMPARE(rowsOf(list).size(), 7);
    QCOMPARE(shownRows(list), text("0 1 2 3 4"));
    QCOMPARE(barOf(list)->count(), 2);
    QCOMPARE(barOf(list)->currentIndex(), 0);
}

void tst_pagelistwidget::addItemsTwiceKeepsTheOldRows()
{
    CPageListWidget list;
    list.addItems(numberedTexts(2));
    list.addItems(QStringList() << text("a") << text("b") << text("c"));
    QCOMPARE(rowsOf(list).size(), 5);
    QCOMPARE(list.visibleItemsIndex(), numbers(0, 2));
    QCOMPARE(shownRows(list), text("0 1 2"));
    QCOMPARE(rowsOf(list).at(0)->text(), text("item 0"));
    QCOMPARE(rowsOf(list).at(2)->text(), text("a"));
    QCOMPARE(list.visibleItems(), QStringList() << text("a") << text("b") << text("c"));
}

void tst_pagelistwidget::addItemAddsASecondSetOfRows()
{
    CPageListWidget list;
    list.addItem(text("a"));
    QCOMPARE(rowsOf(list).size(), 1);
    list.addItem(text("b"));
    QCOMPARE(rowsOf(list).size(), 3); // a, and then a and b
    QCOMPARE(list.visibleItems(), QStringList() << text("a") << text("b"));
    QCOMPARE(shownRows(list), text("0 1"));
    QCOMPARE(rowsOf(list).at(1)->text(), text("a"));
    list.addItem(text("c"));
    QCOMPARE(rowsOf(list).size(), 6);
    QCOMPARE(rowsOf(list).at(5)->index(), 5);
    QCOMPARE(shownRows(list), text("0 1 2"));
    QCOMPARE(rowsOf(list).at(2)->text(), text("b"));
    QVERIFY(!rowsOf(list).at(3)->isActive());
}

void tst_pagelistwidget::pageCount_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("pages");
    QTest::addColumn<bool>("hasBar");
    QTest::newRow("0") << 0 << 0 << false;
    QTest::newRow("1") << 1 << 1 << false;
    QTest::newRow("5") << 5 << 1 << false;
    QTest::newRow("6") << 6 << 2 << true;
    QTest::newRow("10") << 10 << 2 << true;
    QTest::newRow("11") << 11 << 3 << true;
}

void tst_pagelistwidget::pageCount()
{
    QFETCH(int, count);
    QFETCH(int, pages);
    QFETCH(bool, hasBar);
    CPageListWidget list;
    list.addItems(numberedTexts(count));
    QCOMPARE(barOf(list)->count(), pages);
    QCOMPARE(barOf(list)->currentIndex(), count == 0 ? -1 : 0);
    QCOMPARE(!barOf(list)->isHidden(), hasBar);
    list.addItems(numberedTexts(20));
    list.setVisibleItems(numbers(3, 2 + count));
    QCOMPARE(barOf(list)->count(), pages);
    list.adjustPageCount();
    QCOMPARE(barOf(list)->count(), pages);
    QCOMPARE(barOf(list)->currentIndex(), count == 0 ? -1 : 0);
}

void tst_pagelistwidget::selectionKeepsTheCallersOrder()
{
    CPageListWidget list;
    list.addItems(numberedTexts(10));
    list.setVisibleItems(QList<int>() << 7 << 2);
    QCOMPARE(list.visibleItemsIndex(), QList<int>() << 7 << 2);
    QCOMPARE(list.visibleItems(), QStringList() << text("item 7") << text("item 2"));
    QCOMPARE(shownRows(list), text("2 7"));
}

void tst_pagelistwidget::indexesOutsideTheTableHaveNoText()
{
    CPageListWidget list;
    list.addItems(numberedTexts(3));
    list.setVisibleItems(QList<int>() << 1 << 40 << -1);
    QCOMPARE(list.visibleItems(), QStringList() << text("item 1") << QString() << QString());
    QCOMPARE(shownRows(list), text("1"));
    QCOMPARE(barOf(list)->count(), 1);
}

void tst_pagelistwidget::pageIsKeptWhereItExists_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("expected");
    QTest::newRow("exists") << 1 << 20 << 1;
    QTest::newRow("was the last") << 3 << 16 << 3;
    QTest::newRow("past the last") << 3 << 12 << 2;
    QTest::newRow("single page") << 3 << 4 << 0;
    QTest::newRow("no page") << 3 << 0 << -1;
}

void tst_pagelistwidget::pageIsKeptWhereItExists()
{
    QFETCH(int, page);
    QFETCH(int, count);
    QFETCH(int, expected);
    CPageListWidget list;
    list.addItems(numberedTexts(20));
    list.show(5 * page);
    QCOMPARE(barOf(list)->currentIndex(), page);
    list.setVisibleItems(numbers(0, count - 1));
    QCOMPARE(barOf(list)->currentIndex(), expected);
}

void tst_pagelistwidget::areaKeepsItsPageWhereTheBarIsClamped()
{
    CPageListWidget list;
    list.addItems(numberedTexts(20));
    list.show(16);
    QCOMPARE(shownRows(list), text("15 16 17 18 19"));
    list.setVisibleItems(numbers(0, 5));
    QCOMPARE(barOf(list)->currentIndex(), 1);
    QCOMPARE(shownRows(list), text("0 1 2 3 4 5")); // no such page: all of them
    list.setVisibleItems(numbers(0, 17));
    QCOMPARE(barOf(list)->currentIndex(), 1);
    QCOMPARE(shownRows(list), text("15 16 17")); // the area is still on its fourth page
}

void tst_pagelistwidget::arrowsTurnTheRows()
{
    CPageListWidget list;
    list.addItems(numberedTexts(11));
    list.show(0);
    const QList<CPushButton*> arrows = barOf(list)->findChildren<CPushButton*>();
    QTest::mouseClick(arrows.at(1), Qt::LeftButton);
    QCOMPARE(shownRows(list), text("5 6 7 8 9"));
    QTest::mouseClick(arrows.at(1), Qt::LeftButton);
    QCOMPARE(shownRows(list), text("10"));
    QTest::mouseClick(arrows.at(1), Qt::LeftButton);
    QCOMPARE(shownRows(list), text("0 1 2 3 4"));
    QTest::mouseClick(arrows.at(0), Qt::LeftButton);
    QCOMPARE(shownRows(list), text("10"));
}

void tst_pagelistwidget::currentItemsPageOverAllTexts_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("entry");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("first of 7") << 7 << 0 << texts(0, 4);
    QTest::newRow("second of 7") << 7 << 5 << texts(5, 6);
    QTest::newRow("second of 10") << 10 << 9 << texts(5, 9);
    QTest::newRow("single") << 1 << 0 << texts(0, 0);
}

void tst_pagelistwidget::currentItemsPageOverAllTexts()
{
    QFETCH(int, count);
    QFETCH(int, entry);
    QFETCH(QStringList, expected);
    CPageListWidget list;
    list.addItems(numberedTexts(count));
    list.show(entry);
    QCOMPARE(list.getCurrentItems(), expected);
    list.setVisibleItems(numbers(0, 0)); // the bar goes back to its first page
    QCOMPARE(list.getCurrentItems(), texts(0, qMin(4, count - 1)));
}

void tst_pagelistwidget::clearDeletesRowsOnly()
{
    CPageListWidget list;
    list.addItems(numberedTexts(7));
    list.show(6);
    list.clear();
    QVERIFY(rowsOf(list).isEmpty());
    QCOMPARE(list.visibleItemsIndex(), numbers(0, 6));
    QCOMPARE(list.visibleItems(), numberedTexts(7));
    QCOMPARE(barOf(list)->count(), 2);
    QCOMPARE(barOf(list)->currentIndex(), 1);
    QCOMPARE(list.getCurrentItems(), texts(5, 6));
}

void tst_pagelistwidget::setTextAndTitleReachTheHeader()
{
    CPageListWidget list;
    CPageListWidgetHeader* header = list.findChild<CPageListWidgetHeader*>();
    list.setText(text("9600"));
    QCOMPARE(header->text(), text("9600"));
    const QImage before = testing::render(header);
    list.setTitle(text("Baud rate"));
    CPageListWidgetHeader expected(text("Baud rate"), text("9600"));
    expected.setSize(220, 60);
    QVERIFY(testing::render(header) != before);
    CWIDGET_COMPARE_IMAGES(testing::render(header), testing::render(&expected));
}

void tst_pagelistwidget::setCurrentIndexReachesTheArea()
{
    CPageListWidget list;
    list.addItems(numberedTexts(7));
    QVERIFY(QMetaObject::invokeMethod(&list, "setCurrentIndex", Q_ARG(int, 6)));
    QCOMPARE(areaOf(list)->currentIndex(), 6);
    QCOMPARE(shownRows(list), text("0 1 2 3 4"));
}

void tst_pagelistwidget::heightFollowsTheBarOnScreen()
{
    CPageListWidget list;
    list.addItems(numberedTexts(6));
    QCOMPARE(list.height(), 208); // hidden, so the bar does not count
    list.show(0);
    QCOMPARE(list.height(), 238);
    list.setVisibleItems(numbers(0, 4));
    QCOMPARE(list.height(), 208);
    list.setVisibleItems(numbers(0, 5));
    QCOMPARE(list.height(), 238);
    list.hide();
    QCOMPARE(list.height(), 238); // until somebody adjusts it
    list.adjustHeight();
    QCOMPARE(list.height(), 208);
    list.show(text("item 1"));
    QCOMPARE(list.height(), 238);
}

void tst_pagelistwidget::fontComesFromTheComboBoxStyle()
{
    const testing::StyleFile file("CComboBox", 21);
    CPageListWidget list;
    list.addItems(numberedTexts(1));
    QCOMPARE(list.font().pixelSize(), 21);
    QCOMPARE(areaOf(list)->font().pixelSize(), 21);
    QCOMPARE(rowsOf(list).first()->font().pixelSize(), 21);
    QCOMPARE(list.findChild<CPageListWidgetHeader*>()->font().pixelSize(), 21);
}

QTEST_MAIN(tst_pagelistwidget)
#include "tst_pagelistwidget.moc"
