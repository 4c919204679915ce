#include "pages/pagebar.h"
#include "pages/pagewidget.h"
#include "support/signaltools.h"
#include "support/stylefile.h"
#include "support/testing.h"
#include "widgets/graphicsview.h"
#include "widgets/pushbutton.h"

#include <QLayout>
#include <QStackedWidget>

namespace
{

CPageBar* barOf(const CPageWidget& pages)
{
    return pages.findChild<CPageBar*>();
}

QStackedWidget* stackOf(const CPageWidget& pages)
{
    return pages.findChild<QStackedWidget*>();
}

int numberOf(const QWidget* page)
{
    return page->property("PageIndex").toInt();
}

QList<QWidget*> addPages(CPageWidget* pages, int count)
{
    QList<QWidget*> added;
    for (int i = 0; i < count; ++i) {
        added.append(new QWidget);
        pages->addPage(added.last());
    }
    return added;
}

/// Writes down what is shown when the change is announced.
class Observer : public QObject
{
    Q_OBJECT

public:
    explicit Observer(CPageWidget* pages) : position(-2), barPosition(-2), m_pages(pages)
    {
        connect(pages, SIGNAL(currentPageChanged(int)), this, SLOT(note()));
    }

    int position;
    int barPosition;

public Q_SLOTS:
    void note()
    {
        position = m_pages->currentIndex();
        barPosition = barOf(*m_pages)->currentIndex();
    }

private:
    CPageWidget* m_pages;
};

} // namespace

class tst_pagewidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newPageWidgetIsEmpty();
    void layoutIsTight();
    void setSizeLeavesRoomForTheBar();
    void layoutCentersTheBar_data();
    void layoutCentersTheBar();
    void arrowsHaveRoomInANarrowLayout();
    void setSizeAfterALayout();
    void sizesBelowTheBarAreHarmless();
    void backgroundReachesTheBar();
    void addedPagesAreNumberedByPosition();
    void insertedPageKeepsItsNumberAndOthersTheirs();
    void insertPageOutOfRangeAppends();
    void removedPageBelongsToTheCaller();
    void removePageOutOfRange();
    void nullPagesAreIgnored();
    void setCurrentPageTurnsBarAndStack();
    void currentPageChangedComesFirst();
    void setCurrentPageOutOfRange_data();
    void setCurrentPageOutOfRange();
    void arrowsTurnThePages();
    void pageWidgetMayDieInItsSignal();
    void fontComesFromItsOwnStyle();
};

void tst_pagewidget::newPageWidgetIsEmpty()
{
    CPageWidget pages;
    QCOMPARE(pages.count(), 0);
    QCOMPARE(pages.currentIndex(), -1);
    QCOMPARE(pages.hideCount(), 0);
    QVERIFY(!pages.widget(0));
    QCOMPARE(barOf(pages)->size(), QSize(150, 30));
}

void tst_pagewidget::layoutIsTight()
{
    CPageWidget pages;
    QCOMPARE(pages.layout()->alignment(), Qt::Alignment(Qt::AlignLeft));
    QCOMPARE(pages.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(pages.layout()->spacing(), 0);
    QCOMPARE(stackOf(pages)->layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(stackOf(pages)->layout()->spacing(), 0);
}

void tst_pagewidget::setSizeLeavesRoomForTheBar()
{
    CPageWidget pages;
    QWidget* page = addPages(&pages, 1).first();
    pages.setSize(QSize(400, 300));
    pages.show();
    QVERIFY(testcompat::waitForWindow(&pages));
    QCOMPARE(pages.size(), QSize(400, 300));
    QCOMPARE(stackOf(pages)->geometry(), QRect(0, 0, 400, 270));
    QCOMPARE(barOf(pages)->geometry(), QRect(0, 270, 400, 30));
    QCOMPARE(page->size(), QSize(400, 270));
}

void tst_pagewidget::layoutCentersTheBar_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("wide") << 700;
    QTest::newRow("odd") << 401;
    QTest::newRow("narrow") << 160;
}

void tst_pagewidget::layoutCentersTheBar()
{
    QFETCH(int, width);
    QWidget window;
    QVBoxLayout* column = new QVBoxLayout(&window);
    column->setContentsMargins(0, 0, 0, 0);
    CPageWidget* pages = new CPageWidget;
    QWidget* page = addPages(pages, 2).first();
    column->addWidget(pages);
    window.resize(width, 300);
    window.show();
    QVERIFY(testcompat::waitForWindow(&window));
    QCOMPARE(barOf(*pages)->geometry(), QRect(0, 270, width, 30));
    QCOMPARE(page->size(), QSize(width, 270));
    const QList<CPushButton*> arrows = barOf(*pages)->findChildren<CPushButton*>();
    const int left = arrows.at(0)->x();
    const int right = width - arrows.at(1)->geometry().right() - 1;
    QVERIFY2(left >= 0 && qAbs(left - right) <= 1, qPrintable(QString::number(left - right)));
    QCOMPARE(arrows.at(0)->size(), QSize(26, 20));
    QCOMPARE(arrows.at(1)->size(), QSize(26, 20));
}

void tst_pagewidget::arrowsHaveRoomInANarrowLayout()
{
    QWidget window;
    QVBoxLayout* column = new QVBoxLayout(&window);
    column->setContentsMargins(0, 0, 0, 0);
    CPageWidget* pages = new CPageWidget;
    addPages(pages, 2);
    column->addWidget(pages);
    window.resize(10, 100);
    window.show();
    QVERIFY(testcompat::waitForWindow(&window));
    const QRect bar = barOf(*pages)->rect();
    const QList<CPushButton*> arrows = barOf(*pages)->findChildren<CPushButton*>();
    QVERIFY(bar.contains(arrows.at(0)->geometry()));
    QVERIFY(bar.contains(arrows.at(1)->geometry()));
    QVERIFY(pages->rect().contains(barOf(*pages)->geometry()));
}

void tst_pagewidget::setSizeAfterALayout()
{
    QWidget window;
    QVBoxLayout* column = new QVBoxLayout(&window);
    CPageWidget* pages = new CPageWidget;
    addPages(pages, 2);
    column->addWidget(pages);
    window.resize(500, 400);
    window.show();
    QVERIFY(testcompat::waitForWindow(&window));
    pages->setSize(300, 200);
    QCoreApplication::processEvents();
    QCOMPARE(pages->size(), QSize(300, 200));
    QCOMPARE(barOf(*pages)->geometry(), QRect(0, 170, 300, 30));
}

void tst_pagewidget::sizesBelowTheBarAreHarmless()
{
    testing::Messages messages;
    CPageWidget pages;
    pages.setSize(100, 20);
    QCOMPARE(pages.size(), QSize(100, 20));
    QCOMPARE(stackOf(pages)->maximumHeight(), 0);
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_pagewidget::backgroundReachesTheBar()
{
    CPageWidget pages;
    const QColor background = CWidgetStyle::getColor(CWidgetStyle::ContainerBackgroundColor);
    QCOMPARE(pages.getBackgroundColor(), background);
    QCOMPARE(barOf(pages)->getBackgroundColor(), background);
    pages.setBackgroundColor(Qt::green);
    QCOMPARE(pages.getBackgroundColor(), QColor(Qt::green));
    QCOMPARE(barOf(pages)->getBackgroundColor(), QColor(Qt::green));
}

void tst_pagewidget::addedPagesAreNumberedByPosition()
{
    CPageWidget pages;
    const QList<QWidget*> added = addPages(&pages, 3);
    QCOMPARE(pages.count(), 3);
    QCOMPARE(pages.currentIndex(), 0);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(pages.widget(i), added.at(i));
        QCOMPARE(numberOf(added.at(i)), i);
        QVERIFY(pages.isAncestorOf(added.at(i)));
    }
}

void tst_pagewidget::insertedPageKeepsItsNumberAndOthersTheirs()
{
    CPageWidget pages;
    const QList<QWidget*> added = addPages(&pages, 3);
    QWidget* inserted = new QWidget;
    pages.insertPage(1, inserted);
    QCOMPARE(pages.count(), 4);
    QCOMPARE(pages.widget(1), inserted);
    QCOMPARE(numberOf(inserted), 1);
    QCOMPARE(pages.widget(2), added.at(1));
    QCOMPARE(numberOf(added.at(1)), 1); // repeated
    QCOMPARE(numberOf(added.at(2)), 2);
    QWidget* appended = new QWidget;
    pages.addPage(appended);
    QCOMPARE(numberOf(appended), 4);
}

void tst_pagewidget::insertPageOutOfRangeAppends()
{
    CPageWidget pages;
    addPages(&pages, 2);
    QWidget* before = new QWidget;
    pages.insertPage(-1, before);
    QCOMPARE(pages.widget(2), before);
    QCOMPARE(numberOf(before), -1);
    QWidget* behind = new QWidget;
    pages.insertPage(99, behind);
    QCOMPARE(pages.widget(3), behind);
    QCOMPARE(numberOf(behind), 99);
    QCOMPARE(pages.count(), 4);
}

void tst_pagewidget::removedPageBelongsToTheCaller()
{
    QPointer<QWidget> page;
    {
        CPageWidget pages;
        const QList<QWidget*> added = addPages(&pages, 3);
        page = added.at(1);
        pages.removePage(1);
        QCOMPARE(pages.count(), 2);
        QCOMPARE(pages.widget(1), added.at(2));
        QCOMPARE(numberOf(added.at(2)), 2); // never renumbered
        QVERIFY(!pages.isAncestorOf(page));
    }
    QVERIFY(page);
    delete page;
}

void tst_pagewidget::removePageOutOfRange()
{
    testing::Messages messages;
    CPageWidget pages;
    addPages(&pages, 2);
    pages.removePage(-1);
    QCOMPARE(pages.count(), 2);
    pages.removePage(5); // the bar counts one less
    QCOMPARE(pages.count(), 1);
    QCOMPARE(stackOf(pages)->count(), 2);
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_pagewidget::nullPagesAreIgnored()
{
    CPageWidget pages;
    pages.addPage(nullptr);
    pages.insertPage(0, nullptr);
    QCOMPARE(pages.count(), 0);
    QCOMPARE(stackOf(pages)->count(), 0);
    pages.setCurrentPage(0);
    pages.updateParm(nullptr, 1);
    QCOMPARE(pages.currentIndex(), -1);
}

void tst_pagewidget::setCurrentPageTurnsBarAndStack()
{
    CPageWidget pages;
    addPages(&pages, 3);
    QSignalSpy changes(&pages, SIGNAL(currentPageChanged(int)));
    pages.setCurrentPage(2);
    QCOMPARE(pages.currentIndex(), 2);
    QCOMPARE(barOf(pages)->currentIndex(), 2);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.at(0).at(0).toInt(), 2);
    pages.setCurrentPage(2); // announced again
    QCOMPARE(changes.count(), 2);
}

void tst_pagewidget::currentPageChangedComesFirst()
{
    CPageWidget pages;
    addPages(&pages, 3);
    Observer observer(&pages);
    pages.setCurrentPage(1);
    QCOMPARE(observer.position, 0);
    QCOMPARE(observer.barPosition, 0);
    QTest::mouseClick(barOf(pages)->findChildren<CPushButton*>().at(1), Qt::LeftButton);
    QCOMPARE(observer.position, 1);
    QCOMPARE(observer.barPosition, 2); // the bar has turned by itself
}

void tst_pagewidget::setCurrentPageOutOfRange_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("barIndex");
    QTest::newRow("before the first") << -1 << 2;
    QTest::newRow("past the last") << 3 << 0;
}

void tst_pagewidget::setCurrentPageOutOfRange()
{
    QFETCH(int, index);
    QFETCH(int, barIndex);
    CPageWidget pages;
    addPages(&pages, 3);
    pages.setCurrentPage(1);
    QSignalSpy changes(&pages, SIGNAL(currentPageChanged(int)));
    pages.setCurrentPage(index);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.at(0).at(0).toInt(), index);
    QCOMPARE(barOf(pages)->currentIndex(), barIndex);
    QCOMPARE(pages.currentIndex(), 1); // the stack ignores it
}

void tst_pagewidget::arrowsTurnThePages()
{
    CPageWidget pages;
    const QList<QWidget*> added = addPages(&pages, 3);
    pages.setSize(300, 200);
    pages.show();
    QVERIFY(testcompat::waitForWindow(&pages));
    QSignalSpy changes(&pages, SIGNAL(currentPageChanged(int)));
    const QList<CPushButton*> arrows = barOf(pages)->findChildren<CPushButton*>();
    QTest::mouseClick(arrows.at(1), Qt::LeftButton);
    QVERIFY(added.at(1)->isVisible());
    QVERIFY(!added.at(0)->isVisible());
    QTest::mouseClick(arrows.at(0), Qt::LeftButton);
    QTest::mouseClick(arrows.at(0), Qt::LeftButton);
    QVERIFY(added.at(2)->isVisible());
    QCOMPARE(changes.count(), 3);
    QCOMPARE(changes.at(2).at(0).toInt(), 2);
}

void tst_pagewidget::pageWidgetMayDieInItsSignal()
{
    CPageWidget* pages = new CPageWidget;
    addPages(pages, 3);
    QPointer<CPageWidget> guard(pages);
    Reaction reaction(pages, SIGNAL(currentPageChanged(int)), [pages]() { delete pages; });
    QTest::mouseClick(barOf(*pages)->findChildren<CPushButton*>().at(1), Qt::LeftButton);
    QVERIFY(!guard);
}

void tst_pagewidget::fontComesFromItsOwnStyle()
{
    const testing::StyleFile file("CPageWidget", 23);
    CPageWidget pages;
    QCOMPARE(pages.font().pixelSize(), 23);
    QVERIFY(pages.font().bold());
}

QTEST_MAIN(tst_pagewidget)
#include "tst_pagewidget.moc"
