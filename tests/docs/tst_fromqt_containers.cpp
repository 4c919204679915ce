#include "fromqt.h"

#include <CComboBox>
#include <CDialog>
#include <CGraphicsView>
#include <CKeyPadFactory>
#include <CLabel>
#include <CPageBar>
#include <CPageListWidget>
#include <CPageListWidgetItem>
#include <CPageListWidgetItemArea>
#include <CPageWidget>
#include <CParmComboBox>
#include <CProgressBar>
#include <CTopTitleArea>
#include <KQWidgetStack>
#include <QAbstractItemView>

// Each function is a row of docs/from-qt.md, and rows says which.

using fromqt::KeypadCloser;
using fromqt::texts;

namespace
{

const fromqt::Row rows[] = {
    // clang-format off
    {"CComboBox", "`addItems`", "comboAddItems"},
    {"CComboBox", "`addItems` with the same texts", "comboAddSameItems"},
    {"CComboBox", "`addItem`", "comboAddItem"},
    {"CComboBox", "`currentIndex`", "comboCurrentIndex"},
    {"CComboBox", "index out of range", "comboIndexOutOfRange"},
    {"CComboBox", "popup", "comboPopup"},
    {"CComboBox", "`currentIndexChanged`", "comboIndexChanged"},
    {"CProgressBar", "base class", "progressBase"},
    {"CProgressBar", "value out of range", "progressValue"},
    {"CProgressBar", "negative minimum", "progressMinimum"},
    {"CProgressBar", "minimum above maximum", "progressSwapped"},
    {"CProgressBar", "`setProgressColor`, `setGradientEabled`", "progressRepaints"},
    {"CProgressBar", "size", "progressSize"},
    {"CPageWidget", "signal of a change", "pagesSignal"},
    {"CPageWidget", "index out of range", "pagesIndexOutOfRange"},
    {"CPageWidget", "hidden and shown again", "pagesShownAgain"},
    {"CPageListWidget", "`addItem`", "listAddItem"},
    {"CPageListWidget", "`clear`", "listClear"},
    {"CPageListWidget", "press on one row, release on another", "listTwoRows"},
    {"CPageListWidget", "base class", "listIsPopup"},
    {"CDialog and CSoftKeyPad", "`CDialog::visible`", "dialogVisible"},
    {"CDialog and CSoftKeyPad", "`CSoftKeyPad` rejected", "keypadRejected"},
    {"CDialog and CSoftKeyPad", "`CSoftKeyPad::setText`", "keypadSetText"},
    {"CGraphicsView", "background", "viewBackground"},
    {"CGraphicsView", "negative border width", "viewBorderWidth"},
    {"CWidget", "`setSize`, `setWidth`, `setHeight`", "widgetSize"},
    {"CWidget", "`setTransparency` out of 0 to 255", "widgetTransparency"},
    {"CWidget", "`setAutoManagment`", "widgetAutoManagment"},
    {"CWidget", "`type`", "widgetType"},
    // clang-format on
};

} // namespace

class tst_fromqt_containers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyRowIsTested();
    void init();

    void comboAddItems();
    void comboAddSameItems();
    void comboAddItem();
    void comboCurrentIndex();
    void comboIndexOutOfRange();
    void comboPopup();
    void comboIndexChanged();

    void progressBase();
    void progressValue();
    void progressMinimum();
    void progressSwapped();
    void progressRepaints();
    void progressSize();

    void pagesSignal();
    void pagesIndexOutOfRange();
    void pagesShownAgain();

    void listAddItem();
    void listClear();
    void listTwoRows();
    void listIsPopup();

    void dialogVisible();
    void keypadRejected();
    void keypadSetText();

    void viewBackground();
    void viewBorderWidth();

    void widgetSize();
    void widgetTransparency();
    void widgetAutoManagment();
    void widgetType();
};

void tst_fromqt_containers::everyRowIsTested()
{
    QCOMPARE(fromqt::testedRows(rows, this), fromqt::documentedRows(texts(fromqt::containers)));
}

void tst_fromqt_containers::init()
{
    CWidgetStyle::setDeviceAvailable(CWidgetStyle::DeviceKeyboard, false);
}

void tst_fromqt_containers::comboAddItems()
{
    CComboBox combo;
    combo.addItems(texts("a,b,c"));
    combo.addItems(texts("x,y"));
    QCOMPARE(combo.items(), texts("x,y"));
    QCOMPARE(combo.count(), 2);
}

void tst_fromqt_containers::comboAddSameItems()
{
    CComboBox combo;
    combo.addItems(texts("a,b,c"));
    combo.setCurrentIndex(2);
    combo.addItems(texts("a,b,c"));
    QCOMPARE(combo.count(), 3);
    QCOMPARE(combo.currentIndex(), 2);
}

void tst_fromqt_containers::comboAddItem()
{
    CComboBox combo;
    combo.addItems(texts("a,b"));
    static_cast<QComboBox*>(&combo)->addItem(QLatin1String("c"));
    QCOMPARE(combo.count(), 3);
    QCOMPARE(combo.items(), texts("a,b"));
    QCOMPARE(combo.findChild<CPageListWidget*>()->visibleItems(), texts("a,b"));
}

void tst_fromqt_containers::comboCurrentIndex()
{
    CComboBox combo;
    combo.addItems(texts("a,b,c,d"));
    combo.setVisibleItems(texts("c,d"), 3);
    QCOMPARE(combo.currentIndex(), 3);
    QCOMPARE(static_cast<QComboBox*>(&combo)->currentIndex(), 1);
}

void tst_fromqt_containers::comboIndexOutOfRange()
{
    CComboBox combo;
    combo.addItems(texts("a,b,c"));
    combo.setCurrentIndex(2);
    combo.setCurrentIndex(-1);
    QCOMPARE(combo.currentIndex(), 0);
    combo.setCurrentIndex(2);
    combo.setCurrentIndex(3);
    QCOMPARE(combo.currentIndex(), 0);
}

void tst_fromqt_containers::comboPopup()
{
    CComboBox combo;
    combo.addItems(texts("a,b,c"));
    combo.show();
    QVERIFY(testcompat::waitForWindow(&combo));
    combo.showPopup();
    QVERIFY(combo.findChild<CPageListWidget*>()->isVisible());
    QVERIFY(!combo.view()->isVisible());
    combo.hidePopup();
    QVERIFY(!combo.findChild<CPageListWidget*>()->isVisible());
}

void tst_fromqt_containers::comboIndexChanged()
{
    CComboBox combo;
    combo.addItems(texts("a,b,c,d"));
    combo.setVisibleItems(texts("c,d"), 2);
    QSignalSpy rowChanges(&combo, SIGNAL(currentIndexChanged(int)));
    QSignalSpy activated(&combo, SIGNAL(currentItemActivated(int)));
    combo.changeCurrentItem(3); // as a touch on its row does
    QCOMPARE(rowChanges.last().at(0).toInt(), 1);
    QCOMPARE(activated.last().at(0).toInt(), 3);
}

void tst_fromqt_containers::progressBase()
{
    CProgressBar bar;
    QVERIFY(!bar.inherits("QProgressBar"));
    QCOMPARE(bar.metaObject()->superClass()->className(), "QWidget");
    for (int i = bar.metaObject()->methodOffset(); i < bar.metaObject()->methodCount(); ++i)
        QVERIFY(bar.metaObject()->method(i).methodType() != QMetaMethod::Signal);
}

void tst_fromqt_containers::progressValue()
{
    CProgressBar bar;
    bar.setValue(50);
    bar.setValue(200);
    QCOMPARE(bar.value(), 100);
    bar.setValue(-1);
    QCOMPARE(bar.value(), 0);
}

void tst_fromqt_containers::progressMinimum()
{
    CProgressBar bar;
    bar.setRange(-5, 50);
    QCOMPARE(bar.minimum(), 0);
    QCOMPARE(bar.maximum(), 50);
}

void tst_fromqt_containers::progressSwapped()
{
    CProgressBar bar;
    bar.setRange(80, 20);
    QCOMPARE(bar.minimum(), 20);
    QCOMPARE(bar.maximum(), 80);
}

void tst_fromqt_containers::progressRepaints()
{
    CProgressBar bar;
    bar.show();
    QVERIFY(testcompat::waitForWindow(&bar));
    QVERIFY(!testing::repaints(&bar, [&bar]() { bar.setProgressColor(Qt::blue); }));
    QVERIFY(!testing::repaints(&bar, [&bar]() { bar.setGradientEabled(false); }));
    QVERIFY(testing::repaints(&bar, [&bar]() { bar.setValue(50); }));
}

void tst_fromqt_containers::progressSize()
{
    CProgressBar bar;
    QCOMPARE(bar.minimumSize(), QSize(300, 50));
    QCOMPARE(bar.maximumSize(), QSize(300, 50));
}

namespace
{

/// Notes which page stood while the signal came.
class PageWitness : public QObject
{
    Q_OBJECT

public:
    explicit PageWitness(CPageWidget* pages) : m_pages(pages)
    {
        connect(pages, SIGNAL(currentPageChanged(int)), this, SLOT(note(int)));
    }

    QList<int> told;
    QList<int> shown;

private Q_SLOTS:
    void note(int index)
    {
        told.append(index);
        shown.append(m_pages->currentIndex());
    }

private:
    CPageWidget* m_pages;
};

} // namespace

void tst_fromqt_containers::pagesSignal()
{
    CPageWidget pages;
    pages.addPage(new QWidget);
    pages.addPage(new QWidget);
    PageWitness witness(&pages);
    pages.setCurrentPage(1);
    pages.setCurrentPage(1);
    QCOMPARE(witness.told, QList<int>() << 1 << 1);
    QCOMPARE(witness.shown, QList<int>() << 0 << 1);
}

void tst_fromqt_containers::pagesIndexOutOfRange()
{
    CPageWidget pages;
    for (int i = 0; i < 3; ++i)
        pages.addPage(new QWidget);
    pages.setCurrentPage(1);
    pages.setCurrentPage(9);
    QCOMPARE(pages.currentIndex(), 1);
    QCOMPARE(pages.findChild<CPageBar*>()->currentIndex(), 0);
    pages.setCurrentPage(-1);
    QCOMPARE(pages.currentIndex(), 1);
    QCOMPARE(pages.findChild<CPageBar*>()->currentIndex(), 2);
}

void tst_fromqt_containers::pagesShownAgain()
{
    CPageWidget pages;
    QWidget* page[3];
    for (int i = 0; i < 3; ++i) {
        page[i] = new QWidget;
        pages.addPage(page[i]);
    }
    pages.hidePage(2);
    pages.showPage(2);
    QVERIFY(pages.widget(0) == page[0]);
    QVERIFY(pages.widget(1) == page[2]);
    QVERIFY(pages.widget(2) == page[1]);
}

void tst_fromqt_containers::listAddItem()
{
    CPageListWidget list;
    list.addItems(texts("a,b"));
    QCOMPARE(list.findChildren<CPageListWidgetItem*>().size(), 2);
    list.addItem(QLatin1String("c"));
    QCOMPARE(list.findChildren<CPageListWidgetItem*>().size(), 5);
    QCOMPARE(list.visibleItems(), texts("a,b,c"));
}

void tst_fromqt_containers::listClear()
{
    CPageListWidget list;
    list.addItems(texts("a,b"));
    list.clear();
    QCOMPARE(list.findChildren<CPageListWidgetItem*>().size(), 0);
    QCOMPARE(list.visibleItems(), texts("a,b"));
}

void tst_fromqt_containers::listTwoRows()
{
    CPageListWidget list;
    list.addItems(texts("a,b,c"));
    list.show(0);
    QVERIFY(testcompat::waitForWindow(&list));
    QCoreApplication::processEvents();
    QSignalSpy chosen(&list, SIGNAL(currentItemChanged(int)));
    const QList<CPageListWidgetItem*> items = list.findChildren<CPageListWidgetItem*>();
    CPageListWidgetItemArea* const area = list.findChild<CPageListWidgetItemArea*>();
    QTest::mousePress(area, Qt::LeftButton, Qt::NoModifier, items.at(1)->geometry().center());
    QTest::mouseRelease(area, Qt::LeftButton, Qt::NoModifier, items.at(2)->geometry().center());
    QCOMPARE(chosen.count(), 0);
    QTest::mousePress(area, Qt::LeftButton, Qt::NoModifier, items.at(1)->geometry().center());
    QTest::mouseRelease(area, Qt::LeftButton, Qt::NoModifier, items.at(1)->geometry().center());
    QCOMPARE(chosen.count(), 1);
    QCOMPARE(chosen.at(0).at(0).toInt(), 1);
}

void tst_fromqt_containers::listIsPopup()
{
    QWidget parent;
    CPageListWidget list(&parent);
    QVERIFY(list.isWindow());
    QCOMPARE(static_cast<int>(list.windowType()), static_cast<int>(Qt::Popup));
}

void tst_fromqt_containers::dialogVisible()
{
    CDialog dialog;
    QSignalSpy visible(&dialog, SIGNAL(visible(bool)));
    dialog.show();
    QVERIFY(testcompat::waitForWindow(&dialog));
    dialog.hide();
    QCOMPARE(visible.count(), 0);
}

void tst_fromqt_containers::keypadRejected()
{
    KeypadCloser closer(QLatin1String("99"), false);
    const QString result = CKeyPadFactory::accessKeyPad(QLatin1String("Title"), QLatin1String("22"),
                                                        CKeyPadFactory::SKP_DECIMAL, 5, 30);
    QCOMPARE(closer.closed(), 1);
    QCOMPARE(result, QString::fromLatin1("99"));
}

void tst_fromqt_containers::keypadSetText()
{
    CSoftKeyPad keypad(CKeyPadFactory::SKP_DECIMAL);
    keypad.setText(QLatin1String("Title"), QLatin1String("3"));
    keypad.setText(QLatin1String("Title"), QLatin1String("5"));
    QCOMPARE(keypad.getInput(), QString::fromLatin1("35"));
}

void tst_fromqt_containers::viewBackground()
{
    CGraphicsView view;
    view.setFrameShape(QFrame::NoFrame);
    view.setSize(60, 40);
    view.setBackgroundColor(Qt::yellow);
    view.setBorderWidth(0);
    view.show();
    QVERIFY(testcompat::waitForWindow(&view));
    QCOMPARE(QColor(testing::render(&view).pixel(30, 20)), QColor(Qt::yellow));
    QGraphicsScene scene;
    scene.addRect(QRectF(-100, -100, 200, 200), QPen(Qt::NoPen), QBrush(Qt::blue));
    view.setScene(&scene);
    QCOMPARE(QColor(testing::render(&view).pixel(30, 20)), QColor(Qt::blue));
}

void tst_fromqt_containers::viewBorderWidth()
{
    CGraphicsView view;
    view.setBorderWidth(-3);
    QCOMPARE(view.getBorderWidth(), -3);
    CDialog dialog;
    dialog.setBorderWidth(-3);
    QCOMPARE(dialog.getBorderWidth(), 0);
    CWidget widget;
    widget.setBorderWidth(-3);
    QCOMPARE(widget.getBorderWidth(), 0);
}

void tst_fromqt_containers::widgetSize()
{
    CWidget widget;
    widget.setSize(100, 40);
    QCOMPARE(widget.minimumSize(), QSize(100, 40));
    QCOMPARE(widget.maximumSize(), QSize(100, 40));
    widget.setWidth(50);
    widget.setHeight(20);
    QCOMPARE(widget.maximumSize(), QSize(50, 20));
}

void tst_fromqt_containers::widgetTransparency()
{
    CWidget widget;
    widget.setBackgroundColor(Qt::red);
    widget.setTransparency(100);
    widget.setTransparency(256);
    widget.setTransparency(-1);
    QCOMPARE(widget.getBackgroundColor().alpha(), 100);
}

void tst_fromqt_containers::widgetAutoManagment()
{
    CWidget first;
    CWidget second;
    first.setAutoManagment(true);
    second.setAutoManagment(true);
    first.show();
    second.show();
    QVERIFY(!first.isVisible());
    QVERIFY(second.isVisible());
    KQWidgetStack::instance()->popAll();
}

void tst_fromqt_containers::widgetType()
{
    QCOMPARE(CWidget().type(), 65635u);
    QCOMPARE(CLabel().type(), 65635u);
    QCOMPARE(CPageWidget().type(), 65635u);
    QCOMPARE(CPageListWidget().type(), 65635u);
    QCOMPARE(CTopTitleArea().type(), 65635u);
    QCOMPARE(CParmComboBox(QString(), QStringList(), QString()).type(), 65635u);
}

QTEST_MAIN(tst_fromqt_containers)
#include "tst_fromqt_containers.moc"
