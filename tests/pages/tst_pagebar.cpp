#include "pages/pagebar.h"
#include "support/signaltools.h"
#include "support/stylefile.h"
#include "support/testing.h"
#include "widgets/pushbutton.h"

#include <QLayout>

namespace
{

void addPages(CPageBar* bar, int count)
{
    for (int i = 0; i < count; ++i)
        bar->addPage();
}

CPushButton* arrow(const CPageBar& bar, int index)
{
    return bar.findChildren<CPushButton*>().at(index);
}

} // namespace

class tst_pagebar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newBarHasNoPages();
    void horizontalBarHasItsArrowsSideBySide();
    void verticalBarHasItsArrowsOneOverTheOther();
    void everyOtherTypeIsVertical();
    void firstPageBecomesCurrent();
    void setCurrentIndexWraps_data();
    void setCurrentIndexWraps();
    void setCurrentIndexIsIgnoredWithoutPages();
    void removePage_data();
    void removePage();
    void pageAddedToAnEmptiedBarIsTheFirst();
    void clearForgetsPages();
    void arrowsTurnPagesAndWrap_data();
    void arrowsTurnPagesAndWrap();
    void arrowUpGoesForward();
    void arrowsDoNothingWithoutPages();
    void onlyArrowsEmit();
    void backgroundColorReachesTheArrows();
    void updateRepaintsBarAndArrows();
    void textChangesRepaint();
    void updateIsASlot();
    void barMayDieInItsSignal();
    void fontComesFromItsOwnStyle();
};

void tst_pagebar::newBarHasNoPages()
{
    CPageBar bar;
    QCOMPARE(bar.count(), 0);
    QCOMPARE(bar.currentIndex(), -1);
    QCOMPARE(bar.findChildren<CPushButton*>().size(), 2);
}

void tst_pagebar::horizontalBarHasItsArrowsSideBySide()
{
    CPageBar bar(nullptr, CWidgetStyle::HorizontalPageBar);
    QCOMPARE(bar.size(), QSize(150, 30));
    QCOMPARE(bar.minimumSize(), bar.maximumSize());
    QCOMPARE(bar.layout()->spacing(), 100);
    QCOMPARE(bar.layout()->alignment(), Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(bar.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    bar.setSize(220, 30);
    bar.layout()->activate();
    QCOMPARE(arrow(bar, 0)->geometry(), QRect(34, 5, 26, 20));
    QCOMPARE(arrow(bar, 1)->geometry(), QRect(160, 5, 26, 20));
}

void tst_pagebar::verticalBarHasItsArrowsOneOverTheOther()
{
    CPageBar bar(nullptr, CWidgetStyle::VerticalPageBar);
    QCOMPARE(bar.width(), 24);
    QCOMPARE(bar.minimumWidth(), 24);
    QCOMPARE(bar.maximumWidth(), 24);
    QCOMPARE(bar.layout()->alignment(), Qt::Alignment(Qt::AlignCenter));
    bar.resize(24, 300);
    bar.layout()->activate();
    const QRect left = arrow(bar, 0)->geometry();
    const QRect right = arrow(bar, 1)->geometry();
    QCOMPARE(left.size(), QSize(24, 40));
    QCOMPARE(right.size(), QSize(24, 40));
    QCOMPARE(left.left(), right.left());
    QVERIFY(right.bottom() < left.top());
}

void tst_pagebar::everyOtherTypeIsVertical()
{
    CPageBar bar(nullptr, static_cast<CWidgetStyle::PageBarType>(3));
    QCOMPARE(bar.minimumWidth(), 24);
    QCOMPARE(arrow(bar, 0)->size(), QSize(24, 40));
}

void tst_pagebar::firstPageBecomesCurrent()
{
    CPageBar bar;
    bar.addPage();
    QCOMPARE(bar.count(), 1);
    QCOMPARE(bar.currentIndex(), 0);
    bar.addPage();
    QCOMPARE(bar.count(), 2);
    QCOMPARE(bar.currentIndex(), 0);
}

void tst_pagebar::setCurrentIndexWraps_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("expected");
    QTest::newRow("first") << 0 << 0;
    QTest::newRow("inside") << 2 << 2;
    QTest::newRow("last") << 3 << 3;
    QTest::newRow("one before the first") << -1 << 3;
    QTest::newRow("far before the first") << -1000 << 3;
    QTest::newRow("one past the last") << 4 << 0;
    QTest::newRow("far past the last") << 1000 << 0;
}

void tst_pagebar::setCurrentIndexWraps()
{
    QFETCH(int, index);
    QFETCH(int, expected);
    CPageBar bar;
    addPages(&bar, 4);
    bar.setCurrentIndex(1);
    bar.setCurrentIndex(index);
    QCOMPARE(bar.currentIndex(), expected);
    QCOMPARE(bar.count(), 4);
}

void tst_pagebar::setCurrentIndexIsIgnoredWithoutPages()
{
    CPageBar bar;
    bar.setCurrentIndex(0);
    QCOMPARE(bar.currentIndex(), -1);
    bar.setCurrentIndex(-1);
    QCOMPARE(bar.currentIndex(), -1);
}

void tst_pagebar::removePage_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("removed");
    QTest::addColumn<int>("expectedCount");
    QTest::addColumn<int>("expectedCurrent");
    QTest::newRow("current, the next follows") << 3 << 0 << 0 << 2 << 0;
    QTest::newRow("current in the middle") << 3 << 1 << 1 << 2 << 1;
    QTest::newRow("current and last") << 3 << 2 << 2 << 2 << 1;
    QTest::newRow("before the current") << 3 << 2 << 0 << 2 << 1;
    QTest::newRow("behind the current") << 3 << 0 << 2 << 2 << 0;
    QTest::newRow("the only one") << 1 << 0 << 0 << 0 << -1;
    QTest::newRow("negative") << 3 << 1 << -1 << 3 << 1;
    QTest::newRow("without pages") << 0 << -1 << 0 << 0 << -1;
    QTest::newRow("past the last") << 3 << 1 << 7 << 2 << 1;
}

void tst_pagebar::removePage()
{
    QFETCH(int, count);
    QFETCH(int, current);
    QFETCH(int, removed);
    QFETCH(int, expectedCount);
    QFETCH(int, expectedCurrent);
    CPageBar bar;
    addPages(&bar, count);
    bar.setCurrentIndex(current);
    bar.removePage(removed);
    QCOMPARE(bar.count(), expectedCount);
    QCOMPARE(bar.currentIndex(), expectedCurrent);
}

void tst_pagebar::pageAddedToAnEmptiedBarIsTheFirst()
{
    CPageBar bar;
    bar.addPage();
    bar.removePage(0);
    bar.addPage();
    QCOMPARE(bar.count(), 1);
    QCOMPARE(bar.currentIndex(), 0);
}

void tst_pagebar::clearForgetsPages()
{
    CPageBar bar;
    addPages(&bar, 3);
    bar.clear();
    QCOMPARE(bar.count(), 0);
    QCOMPARE(bar.currentIndex(), -1);
}

void tst_pagebar::arrowsTurnPagesAndWrap_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<bool>("forward");
    QTest::addColumn<int>("expected");
    QTest::newRow("forward") << 0 << true << 1;
    QTest::newRow("forward from the last") << 2 << true << 0;
    QTest::newRow("back") << 2 << false << 1;
    QTest::newRow("back from the first") << 0 << false << 2;
}

void tst_pagebar::arrowsTurnPagesAndWrap()
{
    QFETCH(int, current);
    QFETCH(bool, forward);
    QFETCH(int, expected);
    CPageBar bar;
    addPages(&bar, 3);
    bar.setCurrentIndex(current);
    QSignalSpy changes(&bar, SIGNAL(pageChanged(int)));
    QTest::mouseClick(arrow(bar, forward ? 1 : 0), Qt::LeftButton);
    QCOMPARE(bar.currentIndex(), expected);
    QCOMPARE(bar.count(), 3);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.at(0).at(0).toInt(), expected);
}

void tst_pagebar::arrowUpGoesForward()
{
    CPageBar bar(nullptr, CWidgetStyle::VerticalPageBar);
    addPages(&bar, 3);
    bar.resize(24, 300);
    bar.layout()->activate();
    QSignalSpy changes(&bar, SIGNAL(pageChanged(int)));
    QTest::mouseClick(bar.childAt(12, 10), Qt::LeftButton);
    QCOMPARE(bar.currentIndex(), 1);
    QTest::mouseClick(bar.childAt(12, 290), Qt::LeftButton);
    QCOMPARE(bar.currentIndex(), 0);
    QCOMPARE(changes.count(), 2);
}

void tst_pagebar::arrowsDoNothingWithoutPages()
{
    CPageBar bar;
    QSignalSpy changes(&bar, SIGNAL(pageChanged(int)));
    QTest::mouseClick(arrow(bar, 0), Qt::LeftButton);
    QTest::mouseClick(arrow(bar, 1), Qt::LeftButton);
    QCOMPARE(bar.currentIndex(), -1);
    QCOMPARE(changes.count(), 0);
}

void tst_pagebar::onlyArrowsEmit()
{
    CPageBar bar;
    QSignalSpy changes(&bar, SIGNAL(pageChanged(int)));
    addPages(&bar, 4);
    bar.setCurrentIndex(2);
    bar.setCurrentIndex(-1);
    bar.setCurrentIndex(4);
    bar.removePage(0);
    bar.clear();
    QCOMPARE(changes.count(), 0);
}

void tst_pagebar::backgroundColorReachesTheArrows()
{
    CPageBar bar;
    bar.setBackgroundColor(Qt::cyan);
    QCOMPARE(bar.getBackgroundColor(), QColor(Qt::cyan));
    QCOMPARE(arrow(bar, 0)->getBackgroundColor(), QColor(Qt::cyan));
    QCOMPARE(arrow(bar, 1)->getBackgroundColor(), QColor(Qt::cyan));
}

void tst_pagebar::updateRepaintsBarAndArrows()
{
    CPageBar bar;
    bar.show();
    QVERIFY(testcompat::waitForWindow(&bar));
    QVERIFY(testing::repaints(&bar, [&bar]() { bar.update(); }));
    QVERIFY(testing::repaints(arrow(bar, 0), [&bar]() { bar.update(); }));
    QVERIFY(testing::repaints(arrow(bar, 1), [&bar]() { bar.update(); }));
}

void tst_pagebar::textChangesRepaint()
{
    CPageBar bar;
    bar.show();
    QVERIFY(testcompat::waitForWindow(&bar));
    QVERIFY(testing::repaints(&bar, [&bar]() { bar.addPage(); }));
    QVERIFY(testing::repaints(&bar, [&bar]() { bar.setCurrentIndex(0); }));
    QVERIFY(testing::repaints(&bar, [&bar]() { bar.setTextColor(Qt::red); }));
    QVERIFY(testing::repaints(&bar, [&bar]() { bar.removePage(0); }));
    QVERIFY(testing::repaints(&bar, [&bar]() { bar.clear(); }));
    QVERIFY(testing::repaints(&bar, [&bar]() { bar.setBackgroundColor(Qt::red); }));
}

void tst_pagebar::updateIsASlot()
{
    CPageBar bar;
    bar.show();
    QVERIFY(testcompat::waitForWindow(&bar));
    QVERIFY(
        testing::repaints(arrow(bar, 1), [&bar]() { QMetaObject::invokeMethod(&bar, "update"); }));
}

void tst_pagebar::barMayDieInItsSignal()
{
    for (int side = 0; side < 2; ++side) {
        CPageBar* bar = new CPageBar;
        addPages(bar, 3);
        QPointer<CPageBar> guard(bar);
        Reaction reaction(bar, SIGNAL(pageChanged(int)), [bar]() { delete bar; });
        QTest::mouseClick(arrow(*bar, side), Qt::LeftButton);
        QVERIFY(!guard);
    }
}

void tst_pagebar::fontComesFromItsOwnStyle()
{
    const testing::StyleFile file("CPageBar", 21);
    CPageBar bar;
    QCOMPARE(bar.font().pixelSize(), 21);
    QVERIFY(bar.font().bold());
}

QTEST_MAIN(tst_pagebar)
#include "tst_pagebar.moc"
