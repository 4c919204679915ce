#include "pages/pagebar.h"
#include "pages/pagelistwidget.h"
#include "pages/pagelistwidgetheader.h"
#include "pages/pagelistwidgetitem.h"
#include "pages/pagelistwidgetitemarea.h"
#include "support/signaltools.h"
#include "support/testing.h"

namespace
{

const QColor selectColor(67, 172, 232);

CPageBar* barOf(const CPageListWidget& list)
{
    return list.findChild<CPageBar*>();
}

QString headerText(const CPageListWidget& list)
{
    return list.findChild<CPageListWidgetHeader*>()->text();
}

QList<CPageListWidgetItem*> rowsOf(const CPageListWidget& list)
{
    return list.findChildren<CPageListWidgetItem*>();
}

/// The indexes of the rows on screen, that of the marked one in brackets: "5 [6] 7".
QString rowsOnScreen(const CPageListWidget& list)
{
    QStringList rows;
    const QList<CPageListWidgetItem*> items = rowsOf(list);
    for (int i = 0; i < items.size(); ++i) {
        if (!items.at(i)->isVisible())
            continue;
        const bool marked = testing::render(items.at(i)).pixel(1, 1) == selectColor.rgba();
        rows.append(QString::fromLatin1(marked ? "[%1]" : "%1").arg(items.at(i)->index()));
    }
    return rows.join(QString::fromLatin1(" "));
}

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

} // namespace

class tst_pagelistwidget_show : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showByIndex_data();
    void showByIndex();
    void heightFitsTheNumberOfPages_data();
    void heightFitsTheNumberOfPages();
    void showOfAnEntryThatIsNotOffered();
    void showOfAnEntryOutsideTheTable_data();
    void showOfAnEntryOutsideTheTable();
    void showOfAnEmptyList();
    void pagesCountOfferedEntriesOnly();
    void pagesFollowTheCallersOrder();
    void showByText();
    void showByTextDoesNotTurnThePage();
    void showByUnknownText();
    void showByRepeatedText();
    void plainShowIsQts();
    void touchReachesTheListsSignals();
    void touchOutsideHidesTheList();
    void escapeHidesTheList();
    void listMayDieInItsSignals_data();
    void listMayDieInItsSignals();
};

void tst_pagelistwidget_show::showByIndex_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("rows");
    QTest::newRow("first") << 0 << 0 << text("[0] 1 2 3 4");
    QTest::newRow("last of the first page") << 4 << 0 << text("0 1 2 3 [4]");
    QTest::newRow("first of the second page") << 5 << 1 << text("[5] 6 7 8 9");
    QTest::newRow("last") << 10 << 2 << text("[10]");
}

void tst_pagelistwidget_show::showByIndex()
{
    QFETCH(int, index);
    QFETCH(int, page);
    QFETCH(QString, rows);
    CPageListWidget list;
    list.addItems(numberedTexts(11));
    list.show(index);
    QVERIFY(list.isVisible());
    QVERIFY(barOf(list)->isVisible());
    QCOMPARE(barOf(list)->currentIndex(), page);
    QCOMPARE(barOf(list)->count(), 3);
    QCOMPARE(headerText(list), numberedTexts(11).at(index));
    QCOMPARE(rowsOnScreen(list), rows);
    list.hide();
    list.show(index);
    QCOMPARE(rowsOnScreen(list), rows);
}

void tst_pagelistwidget_show::heightFitsTheNumberOfPages_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("height");
    QTest::newRow("1") << 1 << 208;
    QTest::newRow("5") << 5 << 208;
    QTest::newRow("6") << 6 << 238;
    QTest::newRow("10000") << 10000 << 238;
}

void tst_pagelistwidget_show::heightFitsTheNumberOfPages()
{
    QFETCH(int, count);
    QFETCH(int, height);
    CPageListWidget list;
    list.addItems(numberedTexts(count));
    list.show(0);
    QCOMPARE(list.size(), QSize(220, height));
    QCOMPARE(barOf(list)->isVisible(), count > 5);
    QVERIFY(testcompat::waitForWindow(&list));
    QCOMPARE(list.findChild<CPageListWidgetHeader*>()->geometry(), QRect(0, 0, 220, 60));
    QCOMPARE(list.findChild<CPageListWidgetItemArea*>()->geometry(), QRect(0, 60, 220, 148));
    if (count > 5)
        QCOMPARE(barOf(list)->geometry(), QRect(0, 208, 220, 30));
}

void tst_pagelistwidget_show::showOfAnEntryThatIsNotOffered()
{
    CPageListWidget list;
    list.addItems(numberedTexts(20));
    list.show(6);
    QList<int> offered = numbers(0, 19);
    offered.removeAll(12);
    list.setVisibleItems(offered);
    list.show(12);
    QCOMPARE(barOf(list)->currentIndex(), 3); // the last page
    QCOMPARE(headerText(list), text("item 12"));
    QCOMPARE(rowsOnScreen(list), text("5 [6] 7 8 9")); // as they were
}

void tst_pagelistwidget_show::showOfAnEntryOutsideTheTable_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("before the first") << -1;
    QTest::newRow("past the last") << 11;
    QTest::newRow("far past the last") << 2147483647;
    QTest::newRow("far before the first") << -2147483647 - 1;
}

void tst_pagelistwidget_show::showOfAnEntryOutsideTheTable()
{
    QFETCH(int, index);
    CPageListWidget list;
    list.addItems(numberedTexts(11));
    list.show(index);
    QVERIFY(list.isVisible());
    QCOMPARE(headerText(list), QString());
    QCOMPARE(barOf(list)->currentIndex(), 2);
    QCOMPARE(rowsOnScreen(list), text("0 1 2 3 4"));
}

void tst_pagelistwidget_show::showOfAnEmptyList()
{
    CPageListWidget list;
    list.show(0);
    QVERIFY(list.isVisible());
    QCOMPARE(list.height(), 208);
    QCOMPARE(headerText(list), QString());
    QCOMPARE(barOf(list)->currentIndex(), -1);
    list.show(text("nothing"));
    QCOMPARE(headerText(list), text("nothing"));
    QCOMPARE(list.getCurrentItems(), QStringList());
}

void tst_pagelistwidget_show::pagesCountOfferedEntriesOnly()
{
    CPageListWidget list;
    list.addItems(numberedTexts(20));
    list.setVisibleItems(QList<int>() << 1 << 3 << 5 << 7 << 9 << 11 << 13);
    list.show(11); // the 6th of them
    QCOMPARE(barOf(list)->currentIndex(), 1);
    QCOMPARE(rowsOnScreen(list), text("[11] 13"));
    list.show(9);
    QCOMPARE(rowsOnScreen(list), text("1 3 5 7 [9]"));
}

void tst_pagelistwidget_show::pagesFollowTheCallersOrder()
{
    CPageListWidget list;
    list.addItems(numberedTexts(7));
    list.setVisibleItems(QList<int>() << 6 << 5 << 4 << 3 << 2 << 1 << 0);
    list.show(0); // the 7th in the caller's order, so the second page, which shows rows 5 and 6
    QCOMPARE(barOf(list)->currentIndex(), 1);
    QCOMPARE(rowsOnScreen(list), text("5 6"));
}

void tst_pagelistwidget_show::showByText()
{
    CPageListWidget list;
    list.addItems(numberedTexts(11));
    list.show(text("item 3"));
    QVERIFY(list.isVisible());
    QCOMPARE(headerText(list), text("item 3"));
    QCOMPARE(rowsOnScreen(list), text("0 1 2 [3] 4"));
    QCOMPARE(list.height(), 238);
}

void tst_pagelistwidget_show::showByTextDoesNotTurnThePage()
{
    CPageListWidget list;
    list.addItems(numberedTexts(11));
    list.show(text("item 7"));
    QCOMPARE(barOf(list)->currentIndex(), 0);
    QCOMPARE(rowsOnScreen(list), text("0 1 2 3 4"));
    list.show(9);
    list.show(text("item 7"));
    QCOMPARE(barOf(list)->currentIndex(), 1);
    QCOMPARE(rowsOnScreen(list), text("5 6 [7] 8 9"));
}

void tst_pagelistwidget_show::showByUnknownText()
{
    CPageListWidget list;
    list.addItems(numberedTexts(11));
    list.show(2);
    list.show(text("something else"));
    QCOMPARE(headerText(list), text("something else"));
    QCOMPARE(rowsOnScreen(list), text("0 1 2 3 4"));
}

void tst_pagelistwidget_show::showByRepeatedText()
{
    CPageListWidget list;
    list.addItems(QStringList() << text("a") << text("b") << text("b") << QString());
    list.show(text("b"));
    QCOMPARE(rowsOnScreen(list), text("0 [1] 2 3"));
    list.show(QString());
    QCOMPARE(rowsOnScreen(list), text("0 1 2 [3]"));
}

void tst_pagelistwidget_show::plainShowIsQts()
{
    CPageListWidget list;
    list.addItems(numberedTexts(3));
    list.show();
    QVERIFY(list.isVisible());
    QCOMPARE(headerText(list), QString());
}

void tst_pagelistwidget_show::touchReachesTheListsSignals()
{
    CPageListWidget list;
    QStringList log;
    SignalTap texts(&log, "text", &list, SIGNAL(currentItemChanged(QString)));
    SignalTap indexes(&log, "index", &list, SIGNAL(currentItemChanged(int)));
    list.addItems(numberedTexts(11));
    list.show(7);
    QCOMPARE(log, QStringList());
    QTest::mouseClick(rowsOf(list).at(8), Qt::LeftButton);
    QCOMPARE(log, QStringList() << text("text(item 8)") << text("index(8)"));
    QVERIFY(list.isVisible()); // hiding is up to the owner
}

void tst_pagelistwidget_show::touchOutsideHidesTheList()
{
    CPageListWidget list;
    list.addItems(numberedTexts(3));
    list.move(100, 100);
    list.show(0);
    QVERIFY(testcompat::waitForWindow(&list));
    QTest::mousePress(&list, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10)); // the header
    QVERIFY(list.isVisible());
    QTest::mousePress(&list, Qt::LeftButton, Qt::NoModifier, QPoint(-10, 10));
    QVERIFY(!list.isVisible());
}

void tst_pagelistwidget_show::escapeHidesTheList()
{
    CPageListWidget list;
    list.addItems(numberedTexts(3));
    list.show(0);
    QTest::keyClick(&list, Qt::Key_Escape);
    QVERIFY(!list.isVisible());
}

void tst_pagelistwidget_show::listMayDieInItsSignals_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::newRow("text") << QByteArray(SIGNAL(currentItemChanged(QString)));
    QTest::newRow("index") << QByteArray(SIGNAL(currentItemChanged(int)));
}

void tst_pagelistwidget_show::listMayDieInItsSignals()
{
    QFETCH(QByteArray, signal);
    CPageListWidget* list = new CPageListWidget;
    QPointer<CPageListWidget> guard(list);
    list->addItems(numberedTexts(7));
    list->show(0);
    QVERIFY(testcompat::waitForWindow(list));
    Reaction reaction(list, signal.constData(), [list]() { delete list; });
    QTest::mouseClick(rowsOf(*list).at(1), Qt::LeftButton);
    QVERIFY(!guard);
    QCoreApplication::processEvents();
}

QTEST_MAIN(tst_pagelistwidget_show)
#include "tst_pagelistwidget_show.moc"
