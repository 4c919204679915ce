#include "pages/pagelistwidgetitem.h"
#include "pages/pagelistwidgetitemarea.h"
#include "support/signaltools.h"
#include "support/testing.h"

#include <QGraphicsDropShadowEffect>
#include <QPaintEvent>

// What is on the screen once the page was turned, with all that an application may do to rows: the
// area asks for the paint of rows that appear, and must leave none out.

namespace
{

const int rowCount = 11; // one of them on the last page
const int inside = 3;    // a row at whose place there is none on the last page

typedef void (*Change)(CPageListWidgetItemArea* area, CPageListWidgetItem* row);

void leaveAsIs(CPageListWidgetItemArea*, CPageListWidgetItem*)
{
}

void mark(CPageListWidgetItemArea* area, CPageListWidgetItem* row)
{
    area->setCurrentIndex(row->index());
}

void fill(QWidget* widget)
{
    widget->setAutoFillBackground(true);
    widget->setPalette(QPalette(Qt::black, Qt::yellow));
}

void fillGround(CPageListWidgetItemArea*, CPageListWidgetItem* row)
{
    fill(row);
}

void setColor(CPageListWidgetItemArea*, CPageListWidgetItem* row)
{
    row->setBackgroundColor(Qt::yellow);
}

void paintAllOfIt(CPageListWidgetItemArea* area, CPageListWidgetItem* row)
{
    setColor(area, row);
    row->setAutoFillBackground(false);
    row->setAttribute(Qt::WA_OpaquePaintEvent);
}

void setTranslucentColor(CPageListWidgetItemArea*, CPageListWidgetItem* row)
{
    row->setBackgroundColor(QColor(200, 100, 0, 120));
}

void setSheet(CPageListWidgetItemArea*, CPageListWidgetItem* row)
{
    row->setStyleSheet(QString::fromLatin1("background: yellow"));
}

/// An effect that paints outside the row as well.
void castShadow(CPageListWidgetItemArea* area, CPageListWidgetItem* row)
{
    QGraphicsDropShadowEffect* shadow = new QGraphicsDropShadowEffect(row);
    shadow->setOffset(-2, -2);
    shadow->setBlurRadius(0);
    row->setGraphicsEffect(shadow);
    mark(area, row);
}

void cutOut(CPageListWidgetItemArea*, CPageListWidgetItem* row)
{
    row->setMask(QRegion(150, 4, 50, 20));
}

/// Rows of a fixed height lie over each other where there is no room.
void crowd(CPageListWidgetItemArea* area, CPageListWidgetItem* row)
{
    setColor(area, row);
    area->setMaxVisibleRows(rowCount - 1);
}

void putUnder(CPageListWidgetItemArea* area, CPageListWidgetItem*)
{
    QWidget* ground = new QWidget(area);
    ground->setGeometry(100, 10, 100, 100);
    ground->lower();
    ground->show();
    fill(ground);
}

void stopUpdates(CPageListWidgetItemArea*, CPageListWidgetItem* row)
{
    row->setUpdatesEnabled(false);
}

void paint()
{
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}

QImage shown(QWidget* window)
{
    paint();
    return testcompat::grabWindow(window);
}

/// An area on screen with rows for three pages, the last of which has one.
class TurnedArea : public CPageListWidgetItemArea
{
public:
    TurnedArea()
    {
        setSize(220, 148);
        addItems(numberedTexts(rowCount));
        setVisibleItems(numbers(0, rowCount - 1));
        show();
    }

    CPageListWidgetItem* row(int index) const
    {
        return findChildren<CPageListWidgetItem*>().at(index);
    }

    void turn(bool toLast)
    {
        setCurrentPage(toLast ? (rowCount - 1) / maxVisibleRows() : 0);
    }

    QRegion painted;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        painted += event->region();
        CPageListWidgetItemArea::paintEvent(event);
    }
};

} // namespace

Q_DECLARE_METATYPE(Change)

class tst_pagelistwidgetitemarea_turn : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyRowIsPainted_data();
    void everyRowIsPainted();
    void nothingElseIsPainted_data();
    void nothingElseIsPainted();
};

void tst_pagelistwidgetitemarea_turn::everyRowIsPainted_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<int>("row");
    QTest::newRow("rows as they are") << &leaveAsIs << inside;
    QTest::newRow("the current entry") << &mark << inside;
    QTest::newRow("a row that Qt fills") << &fillGround << inside;
    QTest::newRow("a row with a background") << &setColor << inside;
    QTest::newRow("a row that hides what is under it") << &paintAllOfIt << inside;
    QTest::newRow("a row with a translucent background") << &setTranslucentColor << inside;
    QTest::newRow("a row with a style sheet") << &setSheet << inside;
    QTest::newRow("a row with a shadow") << &castShadow << 0;
    QTest::newRow("a row with a mask") << &cutOut << inside;
    QTest::newRow("rows that overlap") << &crowd << inside;
    QTest::newRow("a widget under the rows") << &putUnder << inside;
}

/// A paint of the whole area at once is what is expected.
void tst_pagelistwidgetitemarea_turn::everyRowIsPainted()
{
    QFETCH(Change, change);
    QFETCH(int, row);
    TurnedArea area;
    QVERIFY(testcompat::waitForWindow(&area));
    change(&area, area.row(row));
    for (int turn = 0; turn < 4; ++turn) {
        area.turn(turn % 2 == 0);
        const QImage turned = shown(&area);
        area.update();
        CWIDGET_COMPARE_IMAGES(turned, shown(&area));
        CWIDGET_COMPARE_IMAGES(turned, testing::render(&area));
    }
}

void tst_pagelistwidgetitemarea_turn::nothingElseIsPainted_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QRegion>("place"); // of the row, with the area under it
    QTest::newRow("rows as they are") << &leaveAsIs << QRegion(0, 0, 216, 28);
    QTest::newRow("a row with a mask") << &cutOut << QRegion(150, 4, 50, 20);
    QTest::newRow("a row without updates") << &stopUpdates << QRegion();
}

void tst_pagelistwidgetitemarea_turn::nothingElseIsPainted()
{
    QFETCH(Change, change);
    QFETCH(QRegion, place);
    TurnedArea area;
    QVERIFY(testcompat::waitForWindow(&area));
    change(&area, area.row(inside));
    area.turn(true);
    paint();
    area.painted = QRegion();
    area.turn(false);
    paint();
    QRegion expected = place.translated(area.row(inside)->pos());
    for (int i = 0; i < area.maxVisibleRows(); ++i) {
        if (i != inside)
            expected += area.row(i)->geometry();
    }
    QCOMPARE(area.painted, expected);
}

QTEST_MAIN(tst_pagelistwidgetitemarea_turn)
#include "tst_pagelistwidgetitemarea_turn.moc"
