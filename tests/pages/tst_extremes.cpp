#include "pages/combobox.h"
#include "pages/pagebar.h"
#include "pages/pagelistwidget.h"
#include "pages/pagelistwidgetitem.h"
#include "support/signaltools.h"
#include "support/testing.h"
#include "widgets/pushbutton.h"

namespace
{

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

QString longText()
{
    return QString(100000, QLatin1Char('W'));
}

QString rightToLeftText()
{
    return QString::fromUtf8("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d \xd8\xa7\xd9\x84\xd8\xb3 12");
}

int visibleRows(const CPageListWidget& list)
{
    int count = 0;
    const QList<CPageListWidgetItem*> rows = list.findChildren<CPageListWidgetItem*>();
    for (int i = 0; i < rows.size(); ++i)
        count += rows.at(i)->isVisible() ? 1 : 0;
    return count;
}

} // namespace

/// Lists of every length, and texts that nobody expects.
class tst_extremes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsOfEveryLength_data();
    void listsOfEveryLength();
    void boxesOfEveryLength_data();
    void boxesOfEveryLength();
    void strangeTexts_data();
    void strangeTexts();
    void paintingAPageOfAnyList_data();
    void paintingAPageOfAnyList();
    void hugeList();
    void hugeBoxWithManyRestrictions();
};

void tst_extremes::listsOfEveryLength_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("0") << 0;
    QTest::newRow("1") << 1;
    QTest::newRow("5") << 5;
    QTest::newRow("6") << 6;
}

void tst_extremes::listsOfEveryLength()
{
    QFETCH(int, count);
    CPageListWidget list;
    list.addItems(numberedTexts(count));
    list.show(count - 1);
    QVERIFY(testcompat::waitForWindow(&list));
    const int lastPage = count == 6 ? 1 : count;
    QCOMPARE(visibleRows(list), lastPage);
    QCOMPARE(list.findChild<CPageBar*>()->count(), (count + 4) / 5);
    const QList<CPushButton*> arrows = list.findChildren<CPushButton*>();
    QTest::mouseClick(arrows.at(1), Qt::LeftButton);
    QCOMPARE(visibleRows(list), qMin(count, 5));
    list.show(text("item 0"));
    list.setVisibleItems(QList<int>());
    QCOMPARE(visibleRows(list), 0);
    list.clear();
    QVERIFY(!testing::render(&list).isNull());
}

void tst_extremes::boxesOfEveryLength_data()
{
    listsOfEveryLength_data();
}

void tst_extremes::boxesOfEveryLength()
{
    QFETCH(int, count);
    CComboBox box;
    QStringList log;
    SignalTap taps(&log, "index", &box, SIGNAL(currentValueChanged(int)));
    box.addItems(numberedTexts(count));
    box.setCurrentIndex(count - 1);
    QCOMPARE(box.currentIndex(), qMax(0, count - 1));
    box.showPopup();
    const CPageListWidget* list = box.findChild<CPageListWidget*>();
    const QList<CPageListWidgetItem*> rows = list->findChildren<CPageListWidgetItem*>();
    QCOMPARE(rows.size(), count);
    if (count > 0) {
        QTest::mouseClick(rows.last(), Qt::LeftButton);
        QCOMPARE(log, QStringList(QString::fromLatin1("index(%1)").arg(count - 1)));
    }
    box.hidePopup();
}

void tst_extremes::strangeTexts_data()
{
    QTest::addColumn<QString>("strange");
    QTest::newRow("empty") << QString();
    QTest::newRow("blank") << text(" ");
    QTest::newRow("very long") << longText();
    QTest::newRow("right to left") << rightToLeftText();
    QTest::newRow("percent signs") << text("%1 %2 %n");
    QTest::newRow("line breaks") << text("a\nb\r\n\tc");
    QTest::newRow("a null character") << QString(1, QChar(0));
    QTest::newRow("half a character") << QString(1, QChar(0xD800));
}

void tst_extremes::strangeTexts()
{
    QFETCH(QString, strange);
    CComboBox box;
    box.addItems(QStringList() << text("plain") << strange << text("other"));
    QStringList log;
    SignalTap tap(&log, "text", &box, SIGNAL(currentValueChanged(QString)));
    box.setCurrentIndex(1);
    QCOMPARE(log, QStringList(text("text(") + strange + text(")")));
    QCOMPARE(box.currentText(), strange);
    box.setTitle(strange);
    box.showPopup();
    CPageListWidget* list = box.findChild<CPageListWidget*>();
    QVERIFY(testcompat::waitForWindow(list));
    QCOMPARE(visibleRows(*list), 3);
    QCOMPARE(list->size(), QSize(220, 208)); // no text makes the list wider
    QVERIFY(!testing::render(list).isNull());
    QTest::mouseClick(list->findChildren<CPageListWidgetItem*>().at(1), Qt::LeftButton);
    QCOMPARE(log.size(), 2);
    box.setVisibleItem(strange);
    QCOMPARE(list->visibleItemsIndex(), QList<int>() << 1);
}

void tst_extremes::paintingAPageOfAnyList_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("10") << 10;
    QTest::newRow("100") << 100;
    QTest::newRow("1,000") << 1000;
    QTest::newRow("10,000") << 10000;
}

/// However long the list is, what is painted of it is one page: the five rows, the area, the
/// header, the page bar and the list itself. The arrows are opaque, so Qt leaves them as they are.
void tst_extremes::paintingAPageOfAnyList()
{
    QFETCH(int, count);
    CPageListWidget list;
    list.addItems(numberedTexts(count));
    list.show(count / 2);
    QVERIFY(testcompat::waitForWindow(&list));
    QCoreApplication::processEvents();
    testing::EventCounter paints(QCoreApplication::instance(), QEvent::Paint);
    list.repaint();
    QCOMPARE(paints.count(), 9);
}

/// The time is written down, but no part of the test: machines differ.
void tst_extremes::hugeList()
{
    const int count = 100000;
    QTime clock = QTime::currentTime();
    CPageListWidget list;
    list.addItems(numberedTexts(count));
    const int build = clock.msecsTo(QTime::currentTime());
    clock = QTime::currentTime();
    list.show(count - 1);
    QVERIFY(testcompat::waitForWindow(&list));
    QCoreApplication::processEvents();
    const int open = clock.msecsTo(QTime::currentTime());
    QCOMPARE(visibleRows(list), 5);
    QCOMPARE(list.findChild<CPageBar*>()->count(), count / 5);
    clock = QTime::currentTime();
    QTest::mouseClick(list.findChildren<CPushButton*>().at(1), Qt::LeftButton);
    QCoreApplication::processEvents();
    const int turn = clock.msecsTo(QTime::currentTime());
    QVERIFY(list.findChildren<CPageListWidgetItem*>().first()->isVisible());
    clock = QTime::currentTime();
    list.clear();
    const int clear = clock.msecsTo(QTime::currentTime());
    QVERIFY(list.findChildren<CPageListWidgetItem*>().isEmpty());
    qDebug("%d entries: build %d ms, open %d ms, turn %d ms, clear %d ms", count, build, open, turn,
           clear);
}

void tst_extremes::hugeBoxWithManyRestrictions()
{
    const int count = 10000;
    CComboBox box;
    box.addItems(numberedTexts(count));
    QList<int> third;
    QStringList thirdTexts;
    for (int i = 0; i < count; i += 3) {
        third.append(i);
        thirdTexts.append(QString::fromLatin1("item %1").arg(i));
    }
    box.setVisibleItems(third, 9999);
    QCOMPARE(box.findChild<CPageListWidget*>()->visibleItems(), thirdTexts);
    box.setInvisibleItems(third, 1);
    QCOMPARE(box.findChild<CPageListWidget*>()->visibleItemsIndex().size(), count - third.size());
    box.setVisibleItems(thirdTexts, 9999);
    QCOMPARE(box.findChild<CPageListWidget*>()->visibleItemsIndex(), third);
    QCOMPARE(box.currentText(), text("item 9999"));
    box.showPopup();
    QVERIFY(box.findChild<CPageListWidget*>()
                ->findChildren<CPageListWidgetItem*>()
                .at(9999)
                ->isVisible());
}

QTEST_MAIN(tst_extremes)
#include "tst_extremes.moc"
