#include "pages/pagelistwidgetitem.h"
#include "pages/pagelistwidgetitemarea.h"
#include "support/signaltools.h"
#include "support/testing.h"

#include <QMouseEvent>

namespace
{

const QColor selectColor(67, 172, 232);
const QColor hoverColor(232, 242, 254);

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

/// An area on screen with some rows, and a log of its signals.
struct Fixture {
    explicit Fixture(int count)
        : area(new CPageListWidgetItemArea),
          texts(&log, "text", area, SIGNAL(currentItemChanged(QString))),
          indexes(&log, "index", area, SIGNAL(currentItemChanged(int)))
    {
        area->setSize(220, 148);
        area->addItems(numberedTexts(count));
        area->setVisibleItems(numbers(0, count - 1));
        area->show();
    }

    ~Fixture()
    {
        delete area;
    }

    CPageListWidgetItem* row(int index) const
    {
        return area->findChildren<CPageListWidgetItem*>().at(index);
    }

    bool hasColor(int index, const QColor& color) const
    {
        return testing::render(row(index)).pixel(1, 1) == color.rgba();
    }

    QPoint center(int index) const
    {
        return row(index)->geometry().center();
    }

    QPointer<CPageListWidgetItemArea> area;
    QStringList log;
    SignalTap texts;
    SignalTap indexes;
};

void press(QWidget* widget, const QPoint& point = QPoint(5, 5))
{
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, point);
}

void release(QWidget* widget, const QPoint& point = QPoint(5, 5))
{
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, point);
}

/// A move as Qt delivers it: with or without a button held.
void moveTo(QWidget* widget, const QPoint& point, Qt::MouseButtons buttons = Qt::NoButton)
{
    QMouseEvent event(QEvent::MouseMove, point, widget->mapToGlobal(point), Qt::NoButton, buttons,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

} // namespace

class tst_pagelistwidgetitemarea_touch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void touchTellsTextAndThenIndex();
    void touchOnAnotherPage();
    void touchMarksWithoutUnmarking();
    void touchWithinTheRowOnly();
    void dragToAnotherRowChoosesNothing();
    void dragOutAndBackChooses();
    void touchBesideTheRowsChoosesNothing();
    void releaseWithoutPressChoosesNothing();
    void secondReleaseChoosesNothing();
    void touchOnACurrentRowTellsAgain();
    void hoverFollowsTheMouse();
    void hoverFollowsTheDraggedFinger();
    void hoverEndsBesideTheRows();
    void clearWhileTouched();
    void clearKeepsTheCurrentText();
    void areaMayDieInItsSignals();
    void rowsMayGoInTheSignals();
    void indexIsTheOneAtThatMoment();
    void releaseReachesTheParent();
    void releaseStopsWhereTheAreaWasDeleted();
    void slotsSeeTheNewEntry();
    void rowDeletedUnderTheMouse();
};

void tst_pagelistwidgetitemarea_touch::touchTellsTextAndThenIndex()
{
    Fixture f(5);
    QTest::mouseClick(f.row(3), Qt::LeftButton);
    QCOMPARE(f.log, QStringList() << text("text(item 3)") << text("index(3)"));
    QCOMPARE(f.area->currentIndex(), 3);
    QCOMPARE(f.area->currentText(), text("item 3"));
}

void tst_pagelistwidgetitemarea_touch::touchOnAnotherPage()
{
    Fixture f(11);
    f.area->setCurrentPage(1);
    QTest::mouseClick(f.area, Qt::LeftButton, Qt::NoModifier, f.center(6));
    QCOMPARE(f.log, QStringList() << text("text(item 6)") << text("index(6)"));
}

void tst_pagelistwidgetitemarea_touch::touchMarksWithoutUnmarking()
{
    Fixture f(5);
    f.area->setCurrentIndex(1);
    QTest::mouseClick(f.row(3), Qt::LeftButton);
    QVERIFY(f.hasColor(3, selectColor));
    QVERIFY(f.hasColor(1, selectColor));
    f.area->updateStatus();
    QVERIFY(f.hasColor(3, selectColor));
    QVERIFY(!f.hasColor(1, selectColor));
}

void tst_pagelistwidgetitemarea_touch::touchWithinTheRowOnly()
{
    Fixture f(5);
    press(f.row(2), QPoint(0, 0));
    release(f.row(2), QPoint(215, 27));
    QCOMPARE(f.log.size(), 2);
    press(f.row(2), QPoint(0, 0));
    release(f.row(2), QPoint(215, 28)); // the gap below
    QCOMPARE(f.log.size(), 2);
}

void tst_pagelistwidgetitemarea_touch::dragToAnotherRowChoosesNothing()
{
    Fixture f(5);
    f.area->setCurrentIndex(0);
    press(f.row(1));
    moveTo(f.row(1), f.row(1)->mapFrom(f.area, f.center(3)), Qt::LeftButton);
    release(f.row(1), f.row(1)->mapFrom(f.area, f.center(3)));
    QCOMPARE(f.log, QStringList());
    QCOMPARE(f.area->currentIndex(), 0);
    QCOMPARE(f.area->currentText(), QString());
    QVERIFY(f.hasColor(0, selectColor));
    QVERIFY(!f.hasColor(1, selectColor));
    QVERIFY(!f.hasColor(3, selectColor));
}

void tst_pagelistwidgetitemarea_touch::dragOutAndBackChooses()
{
    Fixture f(5);
    press(f.row(1));
    moveTo(f.row(1), QPoint(5, 70), Qt::LeftButton);
    moveTo(f.row(1), QPoint(6, 6), Qt::LeftButton);
    release(f.row(1), QPoint(6, 6));
    QCOMPARE(f.log, QStringList() << text("text(item 1)") << text("index(1)"));
}

void tst_pagelistwidgetitemarea_touch::touchBesideTheRowsChoosesNothing()
{
    Fixture f(2);
    QTest::mouseClick(f.area, Qt::LeftButton, Qt::NoModifier, QPoint(100, 140));
    QCOMPARE(f.log, QStringList());
    press(f.area, QPoint(100, 140));
    release(f.area, f.center(1));
    QCOMPARE(f.log, QStringList());
    press(f.area, f.center(1));
    release(f.area, QPoint(100, 140));
    QCOMPARE(f.log, QStringList());
}

void tst_pagelistwidgetitemarea_touch::releaseWithoutPressChoosesNothing()
{
    Fixture f(5);
    release(f.row(2));
    QCOMPARE(f.log, QStringList());
    release(f.area, QPoint(100, 147)); // beside the rows, where both are none
    QCOMPARE(f.log, QStringList());
}

void tst_pagelistwidgetitemarea_touch::secondReleaseChoosesNothing()
{
    Fixture f(5);
    QTest::mouseClick(f.row(2), Qt::LeftButton);
    release(f.row(2));
    QCOMPARE(f.log.size(), 2);
}

void tst_pagelistwidgetitemarea_touch::touchOnACurrentRowTellsAgain()
{
    Fixture f(5);
    QTest::mouseClick(f.row(2), Qt::LeftButton);
    QTest::mouseClick(f.row(2), Qt::LeftButton);
    QCOMPARE(f.log.size(), 4);
}

void tst_pagelistwidgetitemarea_touch::hoverFollowsTheMouse()
{
    Fixture f(5);
    moveTo(f.row(2), QPoint(5, 5));
    QVERIFY(f.hasColor(2, hoverColor));
    moveTo(f.row(3), QPoint(5, 5));
    QVERIFY(!f.hasColor(2, hoverColor));
    QVERIFY(f.hasColor(3, hoverColor));
    QCOMPARE(f.log, QStringList());
}

void tst_pagelistwidgetitemarea_touch::hoverFollowsTheDraggedFinger()
{
    Fixture f(5);
    press(f.row(1));
    moveTo(f.row(1), QPoint(5, 5), Qt::LeftButton);
    QVERIFY(f.hasColor(1, hoverColor));
    moveTo(f.row(1), QPoint(5, 5 + 29), Qt::LeftButton);
    QVERIFY(!f.hasColor(1, hoverColor));
    QVERIFY(f.hasColor(2, hoverColor));
    release(f.row(1), QPoint(5, 5 + 29));
    QVERIFY(f.hasColor(2, hoverColor)); // until the next move
}

void tst_pagelistwidgetitemarea_touch::hoverEndsBesideTheRows()
{
    Fixture f(2);
    moveTo(f.row(1), QPoint(5, 5));
    QVERIFY(f.hasColor(1, hoverColor));
    moveTo(f.area, QPoint(100, 140));
    QVERIFY(!f.hasColor(1, hoverColor));
    moveTo(f.area, QPoint(100, 141));
    QVERIFY(!f.hasColor(0, hoverColor));
}

void tst_pagelistwidgetitemarea_touch::clearWhileTouched()
{
    Fixture f(5);
    moveTo(f.row(2), QPoint(5, 5));
    press(f.row(2));
    f.area->clear();
    moveTo(f.area, QPoint(100, 70));
    release(f.area, QPoint(100, 70));
    QCOMPARE(f.log, QStringList());
    f.area->addItems(numberedTexts(5));
    f.area->setVisibleItems(numbers(0, 4));
    release(f.area, f.center(2)); // the press is forgotten
    QCOMPARE(f.log, QStringList());
}

void tst_pagelistwidgetitemarea_touch::clearKeepsTheCurrentText()
{
    Fixture f(5);
    QTest::mouseClick(f.row(4), Qt::LeftButton);
    f.area->clear();
    QCOMPARE(f.area->currentText(), text("item 4"));
    QCOMPARE(f.area->currentIndex(), 0);
}

void tst_pagelistwidgetitemarea_touch::areaMayDieInItsSignals()
{
    {
        Fixture f(5);
        CPageListWidgetItemArea* area = f.area;
        Reaction reaction(area, SIGNAL(currentItemChanged(QString)), [area]() { delete area; });
        QTest::mouseClick(f.row(1), Qt::LeftButton);
        QVERIFY(!f.area);
        QCOMPARE(f.log, QStringList(text("text(item 1)")));
    }
    {
        Fixture f(5);
        CPageListWidgetItemArea* area = f.area;
        Reaction reaction(area, SIGNAL(currentItemChanged(int)), [area]() { delete area; });
        QTest::mouseClick(f.row(1), Qt::LeftButton);
        QVERIFY(!f.area);
        QCOMPARE(f.log.size(), 2);
    }
}

void tst_pagelistwidgetitemarea_touch::rowsMayGoInTheSignals()
{
    Fixture f(5);
    CPageListWidgetItemArea* area = f.area;
    Reaction reaction(area, SIGNAL(currentItemChanged(QString)), [area]() {
        area->clear();
        area->addItems(numberedTexts(2));
    });
    QTest::mouseClick(f.row(3), Qt::LeftButton);
    QCOMPARE(f.log, QStringList() << text("text(item 3)") << text("index(0)"));
}

void tst_pagelistwidgetitemarea_touch::indexIsTheOneAtThatMoment()
{
    Fixture f(5);
    CPageListWidgetItemArea* area = f.area;
    Reaction reaction(area, SIGNAL(currentItemChanged(QString)),
                      [area]() { area->setCurrentIndex(1); });
    QTest::mouseClick(f.row(3), Qt::LeftButton);
    QCOMPARE(f.log, QStringList() << text("text(item 3)") << text("index(1)"));
    QCOMPARE(area->currentText(), text("item 3"));
}

void tst_pagelistwidgetitemarea_touch::releaseReachesTheParent()
{
    QWidget parent;
    Fixture f(5);
    f.area->setParent(&parent);
    parent.show();
    f.area->show();
    testing::EventCounter releases(&parent, QEvent::MouseButtonRelease);
    QTest::mouseClick(f.row(2), Qt::LeftButton);
    QCOMPARE(f.log.size(), 2);
    QCOMPARE(releases.count(), 1);
    QTest::mouseClick(f.area, Qt::LeftButton, Qt::NoModifier, QPoint(100, 147)); // beside the rows
    QCOMPARE(releases.count(), 2);
}

void tst_pagelistwidgetitemarea_touch::releaseStopsWhereTheAreaWasDeleted()
{
    QWidget parent;
    Fixture f(5);
    f.area->setParent(&parent);
    parent.show();
    f.area->show();
    testing::EventCounter releases(&parent, QEvent::MouseButtonRelease);
    CPageListWidgetItemArea* area = f.area;
    Reaction reaction(area, SIGNAL(currentItemChanged(int)), [area]() { delete area; });
    QTest::mouseClick(f.row(2), Qt::LeftButton);
    QVERIFY(!f.area);
    QCOMPARE(releases.count(), 0);
}

void tst_pagelistwidgetitemarea_touch::slotsSeeTheNewEntry()
{
    Fixture f(5);
    QString seenText;
    int seenIndex = -1;
    CPageListWidgetItemArea* area = f.area;
    Reaction reaction(area, SIGNAL(currentItemChanged(QString)), [&]() {
        seenText = area->currentText();
        seenIndex = area->currentIndex();
    });
    QTest::mouseClick(f.row(4), Qt::LeftButton);
    QCOMPARE(seenText, text("item 4"));
    QCOMPARE(seenIndex, 4);
}

void tst_pagelistwidgetitemarea_touch::rowDeletedUnderTheMouse()
{
    Fixture f(5);
    QVERIFY(testcompat::waitForWindow(f.area));
    QTest::mouseMove(f.row(2), QPoint(5, 5)); // the window system knows of it
    QCoreApplication::processEvents();
    moveTo(f.row(2), QPoint(5, 5));
    f.area->clear();
    QTest::qWait(20);
    QTest::mouseMove(f.area, QPoint(90, 90));
    QCoreApplication::processEvents();
    f.area->addItems(numberedTexts(5));
    f.area->setVisibleItems(numbers(0, 4));
    moveTo(f.row(1), QPoint(5, 5));
    QVERIFY(f.hasColor(1, hoverColor));
}

QTEST_MAIN(tst_pagelistwidgetitemarea_touch)
#include "tst_pagelistwidgetitemarea_touch.moc"
