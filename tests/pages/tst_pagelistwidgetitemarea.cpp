#include "pages/pagelistwidgetitem.h"
#include "pages/pagelistwidgetitemarea.h"
#include "support/rows.h"
#include "support/signaltools.h"
#include "support/testing.h"

#include <QPainter>
#include <QVBoxLayout>

namespace
{

const QColor selectColor(67, 172, 232);

QList<CPageListWidgetItem*> rowsOf(const CPageListWidgetItemArea& area)
{
    return area.findChildren<CPageListWidgetItem*>();
}

/// The indexes of the rows that are not hidden, for example "5 6".
QString shownRows(const CPageListWidgetItemArea& area)
{
    QStringList shown;
    const QList<CPageListWidgetItem*> rows = rowsOf(area);
    for (int i = 0; i < rows.size(); ++i) {
        if (!rows.at(i)->isHidden())
            shown.append(QString::number(rows.at(i)->index()));
    }
    return shown.join(QString::fromLatin1(" "));
}

bool isMarked(CPageListWidgetItem* row)
{
    return testing::render(row).pixel(1, 1) == selectColor.rgba();
}

/// The indexes of the rows in the colour of the current entry.
QString markedRows(const CPageListWidgetItemArea& area)
{
    QStringList marked;
    const QList<CPageListWidgetItem*> rows = rowsOf(area);
    for (int i = 0; i < rows.size(); ++i) {
        if (isMarked(rows.at(i)))
            marked.append(QString::number(rows.at(i)->index()));
    }
    return marked.join(QString::fromLatin1(" "));
}

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

/// An area on screen with some rows, all of which take part in paging.
class FilledArea : public CPageListWidgetItemArea
{
public:
    explicit FilledArea(int count)
    {
        setSize(220, 148);
        addItems(numberedTexts(count));
        setVisibleItems(numbers(0, count - 1));
        show();
    }
};

} // namespace

class tst_pagelistwidgetitemarea : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newArea();
    void addedRowsAreHiddenAndNumbered();
    void addedRowsContinueTheNumbers();
    void rowsStandBeforeTheStretch();
    void setSizeReachesEveryRow();
    void fiveRowsFitOnAPage();
    void pages_data();
    void pages();
    void pageThatDoesNotExistLeavesTheRows_data();
    void pageThatDoesNotExistLeavesTheRows();
    void selectionKeepsTheOrderOfTheRows();
    void selectionIgnoresUnknownAndRepeatedIndexes();
    void emptySelectionHidesEverything();
    void selectionWithoutTheCurrentPageShowsAll();
    void otherNumbersOfRows_data();
    void otherNumbersOfRows();
    void currentEntryIsMarkedOnItsPage();
    void nothingIsMarkedBeforeTheAreaIsOnScreen();
    void markMovesWithTheCurrentIndex();
    void inactiveRowsAreLeftAlone();
    void inactiveRowsKeepTheirMark();
    void clearRemovesEverything();
    void paintsItsBackground();
};

void tst_pagelistwidgetitemarea::newArea()
{
    CPageListWidgetItemArea area;
    QCOMPARE(area.currentIndex(), 0);
    QCOMPARE(area.currentText(), QString());
    QVERIFY(area.hasMouseTracking());
    QCOMPARE(area.getBackgroundColor(), QColor(Qt::white));
    QCOMPARE(area.getBorderColor(), QColor(Qt::black));
    QCOMPARE(area.getBorderWidth(), 1);
    QVBoxLayout* layout = qobject_cast<QVBoxLayout*>(area.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 2, 0, 1));
    QCOMPARE(layout->spacing(), 1);
    QCOMPARE(layout->alignment(), Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(layout->count(), 1);
    QVERIFY(layout->itemAt(0)->spacerItem());
}

void tst_pagelistwidgetitemarea::addedRowsAreHiddenAndNumbered()
{
    CPageListWidgetItemArea area;
    area.setSize(220, 148);
    area.addItems(numberedTexts(7));
    const QList<CPageListWidgetItem*> rows = rowsOf(area);
    QCOMPARE(rows.size(), 7);
    for (int i = 0; i < rows.size(); ++i) {
        const testing::InRow inRow(i);
        QCOMPARE(rows.at(i)->index(), i);
        QCOMPARE(rows.at(i)->text(), numberedTexts(7).at(i));
        QVERIFY(rows.at(i)->isHidden());
        QVERIFY(!rows.at(i)->isActive());
        QCOMPARE(rows.at(i)->size(), QSize(216, 28));
    }
}

void tst_pagelistwidgetitemarea::addedRowsContinueTheNumbers()
{
    CPageListWidgetItemArea area;
    area.addItems(numberedTexts(3));
    area.addItems(numberedTexts(2));
    const QList<CPageListWidgetItem*> rows = rowsOf(area);
    QCOMPARE(rows.size(), 5);
    QCOMPARE(rows.at(3)->index(), 3);
    QCOMPARE(rows.at(3)->text(), text("item 0"));
    QCOMPARE(rows.at(4)->index(), 4);
}

void tst_pagelistwidgetitemarea::rowsStandBeforeTheStretch()
{
    CPageListWidgetItemArea area;
    area.addItems(numberedTexts(3));
    QCOMPARE(area.layout()->count(), 4);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(area.layout()->itemAt(i)->widget(), static_cast<QWidget*>(rowsOf(area).at(i)));
    QVERIFY(area.layout()->itemAt(3)->spacerItem());
}

void tst_pagelistwidgetitemarea::setSizeReachesEveryRow()
{
    CPageListWidgetItemArea area;
    area.setSize(220, 148);
    area.addItems(numberedTexts(7));
    area.setVisibleItems(numbers(0, 2));
    area.setSize(QSize(300, 200));
    QCOMPARE(area.size(), QSize(300, 200));
    for (int i = 0; i < 7; ++i)
        QCOMPARE(rowsOf(area).at(i)->size(), QSize(296, 28));
    testing::Messages messages;
    area.setSize(2, 10);
    QCOMPARE(rowsOf(area).at(0)->size(), QSize(0, 28));
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_pagelistwidgetitemarea::fiveRowsFitOnAPage()
{
    FilledArea area(12);
    for (int page = 0; page < 2; ++page) {
        area.setCurrentPage(page);
        for (int i = 0; i < 5; ++i)
            QCOMPARE(rowsOf(area).at(5 * page + i)->geometry(), QRect(2, 2 + 29 * i, 216, 28));
    }
    area.setCurrentPage(2);
    QCOMPARE(rowsOf(area).at(10)->geometry(), QRect(2, 2, 216, 28));
    QCOMPARE(rowsOf(area).at(11)->geometry(), QRect(2, 31, 216, 28));
}

void tst_pagelistwidgetitemarea::pages_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("shown");
    QTest::newRow("1, first") << 1 << 0 << text("0");
    QTest::newRow("5, first") << 5 << 0 << text("0 1 2 3 4");
    QTest::newRow("6, first") << 6 << 0 << text("0 1 2 3 4");
    QTest::newRow("6, second") << 6 << 1 << text("5");
    QTest::newRow("11, second") << 11 << 1 << text("5 6 7 8 9");
    QTest::newRow("11, last") << 11 << 2 << text("10");
}

void tst_pagelistwidgetitemarea::pages()
{
    QFETCH(int, count);
    QFETCH(int, page);
    QFETCH(QString, shown);
    FilledArea area(count);
    area.setCurrentPage(page);
    QCOMPARE(shownRows(area), shown);
}

void tst_pagelistwidgetitemarea::pageThatDoesNotExistLeavesTheRows_data()
{
    QTest::addColumn<int>("page");
    QTest::newRow("before the first") << -1;
    QTest::newRow("past the last") << 3;
    QTest::newRow("far past the last") << 2000000000;
    QTest::newRow("far before the first") << -2000000000;
    QTest::newRow("the first row past what an int holds") << 858993460; // 5 * it is 2^32 + 4
}

void tst_pagelistwidgetitemarea::pageThatDoesNotExistLeavesTheRows()
{
    QFETCH(int, page);
    FilledArea area(11);
    area.setCurrentPage(1);
    area.setCurrentIndex(6);
    area.setCurrentPage(page);
    QCOMPARE(shownRows(area), text("5 6 7 8 9"));
    QCOMPARE(markedRows(area), text("6"));
    area.setCurrentIndex(7); // not even marked, without a page
    QCOMPARE(markedRows(area), text("6"));
    QCOMPARE(area.currentIndex(), 7);
}

void tst_pagelistwidgetitemarea::selectionKeepsTheOrderOfTheRows()
{
    FilledArea area(10);
    area.setVisibleItems(QList<int>() << 7 << 2);
    QCOMPARE(shownRows(area), text("2 7"));
    QVERIFY(rowsOf(area).at(2)->y() < rowsOf(area).at(7)->y());
    QVERIFY(rowsOf(area).at(7)->isActive());
    QVERIFY(!rowsOf(area).at(3)->isActive());
}

void tst_pagelistwidgetitemarea::selectionIgnoresUnknownAndRepeatedIndexes()
{
    FilledArea area(10);
    area.setVisibleItems(QList<int>() << 3 << 99 << -1 << 3 << 4);
    QCOMPARE(shownRows(area), text("3 4"));
}

void tst_pagelistwidgetitemarea::emptySelectionHidesEverything()
{
    FilledArea area(10);
    area.setVisibleItems(QList<int>());
    QCOMPARE(shownRows(area), QString());
    area.setCurrentPage(0);
    QCOMPARE(shownRows(area), QString());
}

void tst_pagelistwidgetitemarea::selectionWithoutTheCurrentPageShowsAll()
{
    FilledArea area(20);
    area.setCurrentPage(3);
    area.setVisibleItems(numbers(0, 7)); // two pages
    QCOMPARE(shownRows(area), text("0 1 2 3 4 5 6 7"));
    area.setCurrentPage(1);
    QCOMPARE(shownRows(area), text("5 6 7"));
}

void tst_pagelistwidgetitemarea::otherNumbersOfRows_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<QString>("shown");
    QTest::newRow("3") << 3 << text("3 4 5");
    QTest::newRow("8") << 8 << text("8 9");
    QTest::newRow("1") << 1 << text("1");
    QTest::newRow("none") << 0 << QString();
    QTest::newRow("too many for an int") << 2000000000 << text("5 6 7 8 9"); // as before
    QTest::newRow("negative") << -5 << text("5 6 7 8 9");                    // as before
}

void tst_pagelistwidgetitemarea::otherNumbersOfRows()
{
    QFETCH(int, rows);
    QFETCH(QString, shown);
    FilledArea area(10);
    area.setCurrentPage(1);
    area.setMaxVisibleRows(rows);
    QCOMPARE(shownRows(area), shown);
}

void tst_pagelistwidgetitemarea::currentEntryIsMarkedOnItsPage()
{
    FilledArea area(11);
    area.setCurrentIndex(6);
    QCOMPARE(markedRows(area), QString());
    area.setCurrentPage(1);
    QCOMPARE(markedRows(area), text("6"));
    area.setCurrentPage(2);
    QCOMPARE(markedRows(area), QString());
    QCOMPARE(area.currentIndex(), 6);
}

void tst_pagelistwidgetitemarea::nothingIsMarkedBeforeTheAreaIsOnScreen()
{
    CPageListWidgetItemArea area;
    area.addItems(numberedTexts(3));
    area.setVisibleItems(numbers(0, 2));
    area.setCurrentIndex(1);
    QCOMPARE(markedRows(area), QString());
    area.show();
    QCOMPARE(markedRows(area), QString());
    area.updateStatus();
    QCOMPARE(markedRows(area), text("1"));
}

void tst_pagelistwidgetitemarea::markMovesWithTheCurrentIndex()
{
    FilledArea area(5);
    QCOMPARE(area.currentIndex(), 0);
    area.setCurrentIndex(3);
    QCOMPARE(markedRows(area), text("3"));
    area.setCurrentIndex(-1);
    QCOMPARE(markedRows(area), QString());
    area.setCurrentIndex(99);
    QCOMPARE(markedRows(area), QString());
    QCOMPARE(area.currentIndex(), 99);
}

void tst_pagelistwidgetitemarea::inactiveRowsAreLeftAlone()
{
    FilledArea area(5);
    rowsOf(area).at(2)->setActive(false);
    area.updateStatus();
    QCOMPARE(shownRows(area), text("0 1 3 4"));
    rowsOf(area).at(3)->setActive(false);
    rowsOf(area).at(3)->show();
    area.setMaxVisibleRows(2);
    QCOMPARE(shownRows(area), text("0 1 3"));
}

void tst_pagelistwidgetitemarea::inactiveRowsKeepTheirMark()
{
    FilledArea area(5);
    area.setCurrentIndex(2);
    rowsOf(area).at(2)->setActive(false);
    area.setCurrentIndex(3);
    QCOMPARE(markedRows(area), text("2 3"));
    rowsOf(area).at(3)->setActive(false);
    rowsOf(area).at(3)->setSelect(false);
    rowsOf(area).at(3)->show();
    area.updateStatus();
    QCOMPARE(markedRows(area), text("2"));
}

void tst_pagelistwidgetitemarea::clearRemovesEverything()
{
    FilledArea area(11);
    area.setCurrentPage(2);
    area.setCurrentIndex(10);
    const QPointer<CPageListWidgetItem> row(rowsOf(area).first());
    area.clear();
    QVERIFY(!row);
    QVERIFY(rowsOf(area).isEmpty());
    QCOMPARE(area.layout()->count(), 1);
    QCOMPARE(area.currentIndex(), 0);
    area.addItems(numberedTexts(7));
    area.setVisibleItems(numbers(0, 6));
    QCOMPARE(rowsOf(area).first()->index(), 0);
    QCOMPARE(shownRows(area), text("0 1 2 3 4")); // the first page again
}

void tst_pagelistwidgetitemarea::paintsItsBackground()
{
    CPageListWidgetItemArea area;
    area.setSize(220, 148);
    QImage expected = testing::canvas(&area, Qt::black);
    QPainter(&expected).fillRect(1, 1, 218, 146, Qt::white);
    CWIDGET_COMPARE_IMAGES(testing::render(&area), expected);
}

QTEST_MAIN(tst_pagelistwidgetitemarea)
#include "tst_pagelistwidgetitemarea.moc"
