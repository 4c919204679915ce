#include "pages/combobox.h"
#include "pages/pagebar.h"
#include "pages/pagelistwidget.h"
#include "pages/pagelistwidgetheader.h"
#include "pages/pagelistwidgetitem.h"
#include "support/signaltools.h"
#include "support/testing.h"
#include "widgets/pushbutton.h"

#include <QApplication>

namespace
{

const QColor selectColor(67, 172, 232);

CPageListWidget* listOf(const CComboBox& box)
{
    return box.findChild<CPageListWidget*>();
}

QList<CPageListWidgetItem*> rowsOf(const CComboBox& box)
{
    return listOf(box)->findChildren<CPageListWidgetItem*>();
}

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

bool isMarked(CPageListWidgetItem* row)
{
    return row->isVisible() && testing::render(row).pixel(1, 1) == selectColor.rgba();
}

QPoint centered(const QRect& ground, const QSize& size)
{
    return QPoint((ground.left() + ground.right()) / 2 - size.width() / 2,
                  (ground.top() + ground.bottom()) / 2 - size.height() / 2);
}

bool activate(QWidget* window)
{
    window->show();
    QApplication::setActiveWindow(window);
    for (int i = 0; i < 100 && QApplication::activeWindow() != window; ++i)
        QTest::qWait(10);
    return QApplication::activeWindow() == window;
}

bool deactivate()
{
    QApplication::setActiveWindow(nullptr);
    for (int i = 0; i < 100 && QApplication::activeWindow(); ++i)
        QTest::qWait(10);
    return !QApplication::activeWindow();
}

} // namespace

class tst_combobox_popup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensOnTheCurrentEntry();
    void opensOnAnOfferedEntry();
    void opensOverTheActiveWindow_data();
    void opensOverTheActiveWindow();
    void opensOverTheParentsWindowWithoutAnActiveOne();
    void opensOverTheScreenWithoutAnyWindow();
    void listIsNotCenteredOnItself();
    void hidePopupHidesTheList();
    void opensOnAClick();
    void opensOnAKey();
    void touchClosesTheList();
    void slotsCloseTheListOnTheSameEntry();
    void touchOutsideClosesTheList();
    void touchOutsideLeavesTheEntry();
    void entriesChangedWhileOpen_data();
    void entriesChangedWhileOpen();
    void touchAfterRestrictionWhileOpen();
};

void tst_combobox_popup::opensOnTheCurrentEntry()
{
    CComboBox box;
    box.addItems(numberedTexts(11));
    box.setCurrentIndex(7);
    box.showPopup();
    QVERIFY(listOf(box)->isVisible());
    QCOMPARE(listOf(box)->findChild<CPageListWidgetHeader*>()->text(), text("item 7"));
    QCOMPARE(listOf(box)->findChild<CPageBar*>()->currentIndex(), 1);
    QVERIFY(isMarked(rowsOf(box).at(7)));
    QVERIFY(!isMarked(rowsOf(box).at(6)));
    QVERIFY(!rowsOf(box).at(0)->isVisible());
}

void tst_combobox_popup::opensOnAnOfferedEntry()
{
    CComboBox box;
    box.addItems(numberedTexts(20));
    box.setVisibleItems(0x15555ULL, 14u); // the even ones up to 16
    box.showPopup();
    QCOMPARE(listOf(box)->findChild<CPageBar*>()->count(), 2);
    QCOMPARE(listOf(box)->findChild<CPageBar*>()->currentIndex(), 1);
    QVERIFY(isMarked(rowsOf(box).at(14)));
    QVERIFY(rowsOf(box).at(16)->isVisible());
    QVERIFY(!rowsOf(box).at(13)->isVisible());
}

void tst_combobox_popup::opensOverTheActiveWindow_data()
{
    QTest::addColumn<QRect>("window");
    QTest::addColumn<int>("count");
    QTest::newRow("large, one page") << QRect(100, 50, 600, 400) << 5;
    QTest::newRow("large, more pages") << QRect(100, 50, 600, 400) << 6;
    QTest::newRow("odd") << QRect(101, 53, 601, 403) << 6;
    QTest::newRow("smaller than the list") << QRect(200, 200, 100, 60) << 6;
    QTest::newRow("partly left of the screen") << QRect(-301, -201, 500, 301) << 6;
}

void tst_combobox_popup::opensOverTheActiveWindow()
{
    QFETCH(QRect, window);
    QFETCH(int, count);
    QWidget active;
    active.setGeometry(window);
    QVERIFY(activate(&active));
    QWidget other; // the place of the box does not matter
    other.setGeometry(400, 300, 200, 100);
    CComboBox box(&other);
    box.addItems(numberedTexts(count));
    const QRect ground = active.geometry();
    box.showPopup();
    const QSize size(220, count > 5 ? 238 : 208);
    QCOMPARE(listOf(box)->size(), size);
    QCOMPARE(listOf(box)->pos(), centered(ground, size));
}

void tst_combobox_popup::opensOverTheParentsWindowWithoutAnActiveOne()
{
    QVERIFY(deactivate());
    QWidget window;
    window.setGeometry(150, 120, 400, 300);
    QWidget* between = new QWidget(&window);
    between->setGeometry(10, 10, 200, 200);
    CComboBox* box = new CComboBox(between);
    box->addItems(numberedTexts(3));
    box->showPopup();
    QCOMPARE(listOf(*box)->pos(), centered(window.geometry(), QSize(220, 208)));
}

void tst_combobox_popup::opensOverTheScreenWithoutAnyWindow()
{
    QVERIFY(deactivate());
    CComboBox box;
    box.addItems(numberedTexts(3));
    box.showPopup();
    QCOMPARE(listOf(box)->pos(), centered(testcompat::screenGeometry(), QSize(220, 208)));
}

void tst_combobox_popup::listIsNotCenteredOnItself()
{
    QWidget window;
    window.setGeometry(150, 120, 400, 300);
    CComboBox* box = new CComboBox(&window);
    box->addItems(numberedTexts(3));
    box->showPopup();
    QVERIFY(activate(listOf(*box)));
    listOf(*box)->move(5, 7);
    box->showPopup();
    QCOMPARE(listOf(*box)->pos(), centered(window.geometry(), QSize(220, 208)));
}

void tst_combobox_popup::hidePopupHidesTheList()
{
    CComboBox box;
    box.addItems(numberedTexts(3));
    box.hidePopup();
    box.showPopup();
    QVERIFY(listOf(box)->isVisible());
    static_cast<QComboBox&>(box).hidePopup(); // virtual
    QVERIFY(!listOf(box)->isVisible());
    static_cast<QComboBox&>(box).showPopup();
    QVERIFY(listOf(box)->isVisible());
}

void tst_combobox_popup::opensOnAClick()
{
    CComboBox box;
    box.addItems(numberedTexts(3));
    box.resize(140, 28);
    QVERIFY(activate(&box));
    QTest::mousePress(&box, Qt::LeftButton, Qt::NoModifier, QPoint(20, 14));
    QVERIFY(listOf(box)->isVisible());
    QTest::mouseRelease(&box, Qt::LeftButton, Qt::NoModifier, QPoint(20, 14));
    QVERIFY(listOf(box)->isVisible());
    QCOMPARE(QApplication::activePopupWidget(), static_cast<QWidget*>(listOf(box)));
}

void tst_combobox_popup::opensOnAKey()
{
    CComboBox box;
    box.addItems(numberedTexts(3));
    QVERIFY(activate(&box));
    QTest::keyClick(&box, Qt::Key_F4);
    QVERIFY(listOf(box)->isVisible());
    QTest::keyClick(listOf(box), Qt::Key_Escape);
    QVERIFY(!listOf(box)->isVisible());
    QCOMPARE(box.currentIndex(), 0);
}

void tst_combobox_popup::touchClosesTheList()
{
    CComboBox box;
    box.addItems(numberedTexts(11));
    box.showPopup();
    QTest::mouseClick(listOf(box)->findChild<CPageBar*>()->findChildren<CPushButton*>().at(1),
                      Qt::LeftButton);
    QVERIFY(listOf(box)->isVisible());
    QTest::mouseClick(rowsOf(box).at(8), Qt::LeftButton);
    QVERIFY(!listOf(box)->isVisible());
    QCOMPARE(box.currentIndex(), 8);
    QCOMPARE(box.currentText(), text("item 8"));
}

void tst_combobox_popup::slotsCloseTheListOnTheSameEntry()
{
    CComboBox box;
    box.addItems(numberedTexts(3));
    box.showPopup();
    box.changeCurrentItem(0);
    QVERIFY(!listOf(box)->isVisible());
    box.showPopup();
    box.changeCurrentItem(text("item 0"));
    QVERIFY(!listOf(box)->isVisible());
    box.showPopup();
    box.changeCurrentText(text("item 0"));
    QVERIFY(!listOf(box)->isVisible());
}

void tst_combobox_popup::touchOutsideClosesTheList()
{
    CComboBox box;
    box.addItems(numberedTexts(3));
    QVERIFY(activate(&box));
    box.showPopup();
    QTest::mousePress(listOf(box), Qt::LeftButton, Qt::NoModifier, QPoint(-10, 10));
    QVERIFY(!listOf(box)->isVisible());
}

void tst_combobox_popup::touchOutsideLeavesTheEntry()
{
    CComboBox box;
    QStringList log;
    box.addItems(numberedTexts(3));
    box.setCurrentIndex(1);
    SignalTap values(&log, "index", &box, SIGNAL(currentValueChanged(int)));
    SignalTap texts(&log, "text", &box, SIGNAL(currentValueChanged(QString)));
    SignalTap items(&log, "item", &box, SIGNAL(currentItemActivated(int)));
    box.showPopup();
    QTest::mousePress(listOf(box), Qt::LeftButton, Qt::NoModifier, QPoint(300, 10));
    QTest::mouseRelease(listOf(box), Qt::LeftButton, Qt::NoModifier, QPoint(300, 10));
    QCOMPARE(log, QStringList());
    QCOMPARE(box.currentIndex(), 1);
}

void tst_combobox_popup::entriesChangedWhileOpen_data()
{
    QTest::addColumn<int>("change");
    QTest::newRow("other entries") << 0;
    QTest::newRow("no entries") << 1;
    QTest::newRow("fewer are offered") << 2;
    QTest::newRow("by texts") << 3;
    QTest::newRow("hidden box") << 4;
    QTest::newRow("another entry") << 5;
}

void tst_combobox_popup::entriesChangedWhileOpen()
{
    QFETCH(int, change);
    CComboBox box;
    box.addItems(numberedTexts(20));
    box.setCurrentIndex(12);
    QVERIFY(activate(&box));
    box.showPopup();
    QVERIFY(testcompat::waitForWindow(listOf(box)));
    QTest::mousePress(rowsOf(box).at(11), Qt::LeftButton);
    switch (change) {
    case 0:
        box.addItems(numberedTexts(6));
        break;
    case 1:
        box.addItems(QStringList());
        break;
    case 2:
        box.setVisibleItems(QList<int>() << 1 << 2, 1);
        break;
    case 3:
        box.setVisibleItems(QStringList(text("item 3")), 3);
        break;
    case 4:
        box.setVisibleItems(0u, 0u);
        break;
    default:
        box.setCurrentIndex(3);
        break;
    }
    QCoreApplication::processEvents();
    QTest::mouseRelease(listOf(box), Qt::LeftButton, Qt::NoModifier, QPoint(50, 80));
    QCoreApplication::processEvents();
    box.show();
    box.showPopup();
    QVERIFY(listOf(box)->isVisible());
    QVERIFY(!testing::render(listOf(box)).isNull());
    box.hidePopup();
}

void tst_combobox_popup::touchAfterRestrictionWhileOpen()
{
    CComboBox box;
    box.addItems(numberedTexts(11));
    box.showPopup();
    box.setVisibleItems(QList<int>() << 9 << 10, 9);
    QVERIFY(listOf(box)->isVisible());
    QVERIFY(isMarked(rowsOf(box).at(9)));
    QTest::mouseClick(rowsOf(box).at(10), Qt::LeftButton);
    QCOMPARE(box.currentIndex(), 10);
    QVERIFY(!listOf(box)->isVisible());
}

QTEST_MAIN(tst_combobox_popup)
#include "tst_combobox_popup.moc"
