#include "pages/pagebar.h"
#include "pages/pagewidget.h"
#include "support/testing.h"

#include <QStackedWidget>

namespace
{

/// The numbers of the pages in the stack, for example "0 1 3".
QString numbersOf(const CPageWidget& pages)
{
    const QStackedWidget* stack = pages.findChild<QStackedWidget*>();
    QStringList numbers;
    for (int i = 0; i < stack->count(); ++i)
        numbers.append(QString::number(stack->widget(i)->property("PageIndex").toInt()));
    return numbers.join(QString::fromLatin1(" "));
}

void addPages(CPageWidget* pages, int count)
{
    for (int i = 0; i < count; ++i)
        pages->addPage(new QWidget);
}

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

} // namespace

class tst_pagewidget_hiding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hiddenPageComesBackInItsPlace_data();
    void hiddenPageComesBackInItsPlace();
    void hiddenPagesComeBackInAnyOrder();
    void unknownNumbersAreIgnored();
    void neighboursWithTheSameNumber();
    void distantPagesWithTheSameNumber();
    void firstHiddenOfTheSameNumberComesBackFirst();
    void barTakesTheNumberForAPosition();
    void pageComesBackToAnEmptyStack();
    void hiddenPagesStayChildren();
    void hiddenPageIsNotSeen();
    void pagesDeletedWhileHidden();
    void hidingAndShowingAreSlots();
};

void tst_pagewidget_hiding::hiddenPageComesBackInItsPlace_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("hidden");
    QTest::addColumn<QString>("shown");
    QTest::newRow("first") << 0 << text("1 2 3") << text("0 1 2 3");
    QTest::newRow("second") << 1 << text("0 2 3") << text("0 1 2 3");
    QTest::newRow("third") << 2 << text("0 1 3") << text("0 1 2 3");
    QTest::newRow("highest, before the last") << 3 << text("0 1 2") << text("0 1 3 2");
}

void tst_pagewidget_hiding::hiddenPageComesBackInItsPlace()
{
    QFETCH(int, number);
    QFETCH(QString, hidden);
    QFETCH(QString, shown);
    CPageWidget pages;
    addPages(&pages, 4);
    pages.hidePage(number);
    QCOMPARE(numbersOf(pages), hidden);
    QCOMPARE(pages.count(), 3);
    QCOMPARE(pages.hideCount(), 1);
    pages.showPage(number);
    QCOMPARE(numbersOf(pages), shown);
    QCOMPARE(pages.count(), 4);
    QCOMPARE(pages.hideCount(), 0);
}

void tst_pagewidget_hiding::hiddenPagesComeBackInAnyOrder()
{
    CPageWidget pages;
    addPages(&pages, 5);
    pages.hidePage(1);
    pages.hidePage(3);
    pages.hidePage(0);
    QCOMPARE(numbersOf(pages), text("2 4"));
    QCOMPARE(pages.hideCount(), 3);
    pages.showPage(3);
    pages.showPage(0);
    pages.showPage(1);
    QCOMPARE(numbersOf(pages), text("0 1 2 3 4"));
    QCOMPARE(pages.hideCount(), 0);
}

void tst_pagewidget_hiding::unknownNumbersAreIgnored()
{
    CPageWidget pages;
    addPages(&pages, 3);
    pages.hidePage(7);
    pages.hidePage(-1);
    pages.showPage(1); // not hidden
    pages.showPage(7);
    QCOMPARE(numbersOf(pages), text("0 1 2"));
    QCOMPARE(pages.count(), 3);
    QCOMPARE(pages.hideCount(), 0);
}

void tst_pagewidget_hiding::neighboursWithTheSameNumber()
{
    CPageWidget pages;
    addPages(&pages, 2);
    pages.insertPage(1, new QWidget);
    QCOMPARE(numbersOf(pages), text("0 1 1"));
    pages.hidePage(1); // the walk steps over the neighbour that moved up
    QCOMPARE(numbersOf(pages), text("0 1"));
    QCOMPARE(pages.hideCount(), 1);
    QCOMPARE(pages.count(), 2);
    pages.hidePage(1);
    QCOMPARE(numbersOf(pages), text("0"));
    QCOMPARE(pages.hideCount(), 2);
}

void tst_pagewidget_hiding::distantPagesWithTheSameNumber()
{
    CPageWidget pages;
    addPages(&pages, 3);
    pages.insertPage(2, new QWidget); // 0 1 2 2
    pages.insertPage(1, new QWidget); // 0 1 1 2 2
    pages.insertPage(1, new QWidget); // 0 1 1 1 2 2
    QCOMPARE(numbersOf(pages), text("0 1 1 1 2 2"));
    pages.hidePage(1);
    QCOMPARE(numbersOf(pages), text("0 1 2 2"));
    QCOMPARE(pages.hideCount(), 2);
    QCOMPARE(pages.count(), 4);
}

void tst_pagewidget_hiding::firstHiddenOfTheSameNumberComesBackFirst()
{
    CPageWidget pages;
    addPages(&pages, 3);
    QWidget* first = new QWidget;
    pages.insertPage(1, first);
    QWidget* second = pages.widget(2);
    pages.hidePage(1);
    pages.hidePage(1);
    QCOMPARE(pages.hideCount(), 2);
    pages.showPage(1);
    QCOMPARE(pages.widget(1), first);
    pages.showPage(1);
    QCOMPARE(pages.widget(2), second);
}

void tst_pagewidget_hiding::barTakesTheNumberForAPosition()
{
    CPageWidget pages;
    addPages(&pages, 4);
    CPageBar* bar = pages.findChild<CPageBar*>();
    pages.hidePage(0); // now the pages 1, 2 and 3 are at 0, 1 and 2
    pages.setCurrentPage(1);
    pages.hidePage(2); // at position 1, but the bar removes its page 2, behind the current one
    QCOMPARE(bar->count(), 2);
    QCOMPARE(bar->currentIndex(), 1);
    QCOMPARE(numbersOf(pages), text("1 3"));
}

void tst_pagewidget_hiding::pageComesBackToAnEmptyStack()
{
    CPageWidget pages;
    addPages(&pages, 1);
    QWidget* page = pages.widget(0);
    pages.hidePage(0);
    QCOMPARE(pages.count(), 0);
    QCOMPARE(pages.currentIndex(), -1);
    pages.showPage(0);
    QCOMPARE(pages.widget(0), page);
    QCOMPARE(pages.count(), 1);
    QCOMPARE(pages.currentIndex(), 0);
}

void tst_pagewidget_hiding::hiddenPagesStayChildren()
{
    QPointer<QWidget> page;
    {
        CPageWidget pages;
        addPages(&pages, 2);
        page = pages.widget(1);
        pages.hidePage(1);
        QVERIFY(pages.isAncestorOf(page));
    }
    QVERIFY(!page);
}

void tst_pagewidget_hiding::hiddenPageIsNotSeen()
{
    CPageWidget pages;
    addPages(&pages, 2);
    pages.setSize(200, 100);
    pages.show();
    QVERIFY(testcompat::waitForWindow(&pages));
    QWidget* first = pages.widget(0);
    QWidget* second = pages.widget(1);
    pages.hidePage(0);
    QVERIFY(!first->isVisible());
    QVERIFY(second->isVisible());
    pages.showPage(0);
    pages.setCurrentPage(0);
    QVERIFY(first->isVisible());
    QVERIFY(!second->isVisible());
}

void tst_pagewidget_hiding::pagesDeletedWhileHidden()
{
    CPageWidget pages;
    addPages(&pages, 3);
    QWidget* page = pages.widget(1);
    pages.hidePage(1);
    pages.openPageAutoUpdate(1);
    delete page;
    QCOMPARE(pages.hideCount(), 0);
    pages.updateParm(nullptr, 1);
    pages.showPage(1);
    QCOMPARE(numbersOf(pages), text("0 2"));
    QCOMPARE(pages.count(), 2);
}

void tst_pagewidget_hiding::hidingAndShowingAreSlots()
{
    CPageWidget pages;
    addPages(&pages, 2);
    QVERIFY(QMetaObject::invokeMethod(&pages, "hidePage", Q_ARG(int, 1)));
    QCOMPARE(pages.hideCount(), 1);
    QVERIFY(QMetaObject::invokeMethod(&pages, "showPage", Q_ARG(int, 1)));
    QCOMPARE(pages.hideCount(), 0);
    QVERIFY(QMetaObject::invokeMethod(&pages, "setCurrentPage", Q_ARG(int, 1)));
    QCOMPARE(pages.currentIndex(), 1);
}

QTEST_MAIN(tst_pagewidget_hiding)
#include "tst_pagewidget_hiding.moc"
