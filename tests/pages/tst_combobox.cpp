#include "pages/combobox.h"
#include "pages/pagelistwidget.h"
#include "pages/pagelistwidgetheader.h"
#include "pages/pagelistwidgetitem.h"
#include "support/signaltools.h"
#include "support/stylefile.h"
#include "support/testing.h"

#include <QAbstractItemView>
#include <QPainter>

namespace
{

const char sheet[] = "QComboBox{border:0px;} "
                     "QComboBox::drop-down{top:4px;right:4px;image:url(:/images/drop-down.png)};";

CPageListWidget* listOf(const CComboBox& box)
{
    return box.findChild<CPageListWidget*>();
}

int rowOf(const CComboBox& box)
{
    return static_cast<const QComboBox&>(box).currentIndex();
}

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

QFont strikingFont()
{
    QFont font = testing::testFont(22, true);
    font.setItalic(true);
    return font;
}

} // namespace

class tst_combobox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void newBoxIsEmpty();
    void styleSheetIsExact();
    void addItemsFillsBoxAndList();
    void addItemsReplaces();
    void addItemsOfTheSameTextsDoesNothing();
    void addItemsOfNothingEmptiesTheBox();
    void addItemsGoesBackToTheFirstEntry();
    void setCurrentIndex_data();
    void setCurrentIndex();
    void setCurrentIndexOnAnEmptyBox();
    void repeatedTextsShowTheFirstOfThem();
    void lookUpIsExact();
    void setFontReachesBoxAndList();
    void setFontKeepsTheStyleSheet();
    void setFontMasksTheStyleSheetsFont();
    void qtsPopupIsMadeOnDemand();
    void setWidgetStyle();
    void autoStyle();
    void fontComesFromTheStyleFile();
    void frameIsOnTheOutermostPixels();
    void settersRepaint();
    void titleReachesTheHeader();
    void emptyTableCanBeRestricted();
};

void tst_combobox::cleanup()
{
    testing::TemporaryFolder folder;
    CWidgetStyle::initialize(folder.write(text("none.xml"), "<widget-style/>"));
}

void tst_combobox::newBoxIsEmpty()
{
    CComboBox box;
    QCOMPARE(box.currentIndex(), 0);
    QCOMPARE(box.count(), 0);
    QCOMPARE(rowOf(box), -1);
    QCOMPARE(box.minimumHeight(), 28);
    QCOMPARE(box.maximumHeight(), 28);
    QVERIFY(box.isAutoStyleEnabled());
    QVERIFY(listOf(box));
    QVERIFY(listOf(box)->isHidden());
    QCOMPARE(listOf(box)->windowType(), Qt::Popup);
    QCOMPARE(listOf(box)->parentWidget(), static_cast<QWidget*>(&box));
}

void tst_combobox::styleSheetIsExact()
{
    CComboBox box;
    QCOMPARE(box.styleSheet(), text(sheet));
}

void tst_combobox::addItemsFillsBoxAndList()
{
    CComboBox box;
    box.addItems(numberedTexts(7));
    QCOMPARE(box.count(), 7);
    for (int i = 0; i < 7; ++i)
        QCOMPARE(box.itemText(i), numberedTexts(7).at(i));
    QCOMPARE(box.currentIndex(), 0);
    QCOMPARE(rowOf(box), 0);
    QCOMPARE(box.currentText(), text("item 0"));
    QCOMPARE(listOf(box)->visibleItemsIndex(), numbers(0, 6));
    QCOMPARE(listOf(box)->visibleItems(), numberedTexts(7));
    QCOMPARE(listOf(box)->findChildren<CPageListWidgetItem*>().size(), 7);
}

void tst_combobox::addItemsReplaces()
{
    CComboBox box;
    box.addItems(numberedTexts(7));
    const QStringList other = QStringList() << text("a") << text("b");
    box.addItems(other);
    QCOMPARE(box.count(), 2);
    QCOMPARE(box.currentText(), text("a"));
    QCOMPARE(listOf(box)->visibleItems(), other);
    QCOMPARE(listOf(box)->findChildren<CPageListWidgetItem*>().size(), 2);
}

void tst_combobox::addItemsOfTheSameTextsDoesNothing()
{
    CComboBox box;
    box.addItems(numberedTexts(7));
    box.setCurrentIndex(3);
    box.setVisibleItems(QList<int>() << 1 << 3, 3);
    const QPointer<CPageListWidgetItem> row(
        listOf(box)->findChildren<CPageListWidgetItem*>().at(0));
    box.addItems(numberedTexts(7));
    QVERIFY(row);
    QCOMPARE(box.currentIndex(), 3);
    QCOMPARE(listOf(box)->visibleItemsIndex(), QList<int>() << 1 << 3);
}

void tst_combobox::addItemsOfNothingEmptiesTheBox()
{
    CComboBox box;
    box.addItems(numberedTexts(7));
    box.addItems(QStringList());
    QCOMPARE(box.count(), 0);
    QCOMPARE(box.currentIndex(), 0);
    QCOMPARE(rowOf(box), -1);
    QCOMPARE(listOf(box)->visibleItems(), QStringList());
    QVERIFY(listOf(box)->findChildren<CPageListWidgetItem*>().isEmpty());
}

void tst_combobox::addItemsGoesBackToTheFirstEntry()
{
    CComboBox box;
    box.addItems(numberedTexts(7));
    box.setCurrentIndex(5);
    box.addItems(numberedTexts(9));
    QCOMPARE(box.currentIndex(), 0);
    QCOMPARE(rowOf(box), 0);
}

void tst_combobox::setCurrentIndex_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("expected");
    QTest::newRow("first") << 0 << 0;
    QTest::newRow("inside") << 3 << 3;
    QTest::newRow("last") << 6 << 6;
    QTest::newRow("one past the last") << 7 << 0;
    QTest::newRow("far past the last") << 2147483647 << 0;
    QTest::newRow("negative") << -1 << 0;
}

void tst_combobox::setCurrentIndex()
{
    QFETCH(int, index);
    QFETCH(int, expected);
    CComboBox box;
    box.addItems(numberedTexts(7));
    box.setCurrentIndex(4);
    QVERIFY(QMetaObject::invokeMethod(&box, "setCurrentIndex", Q_ARG(int, index)));
    QCOMPARE(box.currentIndex(), expected);
    QCOMPARE(rowOf(box), expected);
}

void tst_combobox::setCurrentIndexOnAnEmptyBox()
{
    CComboBox box;
    box.setCurrentIndex(3);
    QCOMPARE(box.currentIndex(), 0);
    QCOMPARE(rowOf(box), -1);
}

void tst_combobox::repeatedTextsShowTheFirstOfThem()
{
    CComboBox box;
    box.addItems(QStringList() << text("a") << text("b") << text("b") << QString());
    box.setCurrentIndex(2);
    QCOMPARE(box.currentIndex(), 2);
    QCOMPARE(rowOf(box), 1);
    box.setCurrentIndex(3);
    QCOMPARE(rowOf(box), 3);
    QCOMPARE(box.currentText(), QString());
}

void tst_combobox::lookUpIsExact()
{
    CComboBox box;
    box.addItems(QStringList() << text("auto 1") << text("AUTO") << text("auto") << text("a*"));
    box.setCurrentIndex(2);
    QCOMPARE(rowOf(box), 2);
    box.setCurrentIndex(3);
    QCOMPARE(rowOf(box), 3);
    box.setCurrentIndex(1);
    QCOMPARE(rowOf(box), 1);
}

void tst_combobox::setFontReachesBoxAndList()
{
    CComboBox box;
    box.setFont(strikingFont());
    QCOMPARE(box.font().pixelSize(), 22);
    QVERIFY(box.font().italic());
    QCOMPARE(listOf(box)->font().pixelSize(), 22);
    QVERIFY(listOf(box)->font().italic());
}

void tst_combobox::setFontKeepsTheStyleSheet()
{
    CComboBox box;
    box.setFont(strikingFont());
    QCOMPARE(box.styleSheet(), text(sheet));
    box.setStyleSheet(text("QComboBox{color:red;}"));
    box.setFont(testing::testFont(13));
    QCOMPARE(box.styleSheet(), text("QComboBox{color:red;}"));
    box.setStyleSheet(QString());
    box.setFont(testing::testFont(14));
    QCOMPARE(box.styleSheet(), QString());
    QCOMPARE(box.font().pixelSize(), 14);
}

void tst_combobox::setFontMasksTheStyleSheetsFont()
{
    CComboBox box;
    box.setFont(testing::testFont(17));
    box.show();
    QVERIFY(testcompat::waitForWindow(&box));
    QCOMPARE(box.font().pixelSize(), 17); // not touched by being polished
    box.setFont(testing::testFont(19));
    QCOMPARE(box.font().pixelSize(), 19);
    QCOMPARE(listOf(box)->font().pixelSize(), 19);
}

/// The popup that Qt has beside the list is never shown, but who asks for it gets it.
void tst_combobox::qtsPopupIsMadeOnDemand()
{
    CComboBox box;
    box.addItems(numberedTexts(3));
    box.showPopup();
    box.hidePopup();
    QVERIFY(!box.findChild<QAbstractItemView*>());
    QCOMPARE(box.view()->model()->rowCount(), 3);
    QCOMPARE(box.findChildren<QAbstractItemView*>().size(), 1);
}

void tst_combobox::setWidgetStyle()
{
    CComboBox box;
    WidgetStyle style = testing::styleOf(Style::FieldName, testing::testFont(30));
    style.styles += testing::styleOf(Style::FieldAll, testing::testFont(17)).styles;
    style.styles += testing::styleOf(Style::FieldAll, strikingFont()).styles;
    style.styles += testing::styleOf(Style::FieldValue, testing::testFont(31)).styles;
    box.setWidgetStyle(style);
    QCOMPARE(box.font().pixelSize(), 22);
    QVERIFY(box.font().italic());
    QCOMPARE(listOf(box)->font().pixelSize(), 22);
    QCOMPARE(box.styleSheet(), text(sheet));
}

void tst_combobox::autoStyle()
{
    CComboBox box;
    box.setFont(testing::testFont(13));
    box.setAutoStyleEnabled(false);
    QVERIFY(!box.isAutoStyleEnabled());
    box.setWidgetStyle(testing::styleOf(Style::FieldAll, strikingFont()));
    QCOMPARE(box.font().pixelSize(), 13);
    box.setAutoStyleEnabled(true);
    box.setWidgetStyle(testing::styleOf(Style::FieldAll, strikingFont()));
    QCOMPARE(box.font().pixelSize(), 22);
}

void tst_combobox::fontComesFromTheStyleFile()
{
    const testing::StyleFile file("CComboBox", 21);
    CComboBox box;
    QCOMPARE(box.font().pixelSize(), 21);
    QVERIFY(box.font().bold());
    QCOMPARE(box.styleSheet(), text(sheet));
}

void tst_combobox::frameIsOnTheOutermostPixels()
{
    CComboBox box;
    box.addItems(numberedTexts(2));
    box.setFont(testing::testFont(14));
    box.resize(140, 28);
    box.setBorderVisible(false);
    QImage expected = testing::render(&box);
    QPainter painter(&expected);
    const QColor frame(212, 212, 212);
    painter.fillRect(0, 0, 140, 1, frame);
    painter.fillRect(0, 27, 140, 1, frame);
    painter.fillRect(0, 0, 1, 28, frame);
    painter.fillRect(139, 0, 1, 28, frame);
    painter.end();
    QVERIFY(testing::render(&box) != expected);
    box.setBorderVisible(true);
    CWIDGET_COMPARE_IMAGES(testing::render(&box), expected);
}

void tst_combobox::settersRepaint()
{
    CComboBox box;
    box.show();
    QVERIFY(testcompat::waitForWindow(&box));
    QVERIFY(testing::repaints(&box, [&box]() { box.setBorderVisible(false); }));
    QVERIFY(testing::repaints(&box, [&box]() { box.setAutoStyleEnabled(false); }));
}

void tst_combobox::titleReachesTheHeader()
{
    CComboBox box;
    CPageListWidgetHeader* header = listOf(box)->findChild<CPageListWidgetHeader*>();
    const QImage before = testing::render(header);
    box.setTitle(text("Baud rate"));
    CPageListWidgetHeader expected(text("Baud rate"), QString());
    expected.setSize(220, 60);
    QVERIFY(testing::render(header) != before);
    CWIDGET_COMPARE_IMAGES(testing::render(header), testing::render(&expected));
}

void tst_combobox::emptyTableCanBeRestricted()
{
    CComboBox box;
    box.setVisibleItems(0x3ULL, 1u);
    QCOMPARE(listOf(box)->visibleItemsIndex(), numbers(0, 1));
    QCOMPARE(box.currentIndex(), 1);
    box.setInvisibleItems(numbers(1, 1), 3);
    QCOMPARE(listOf(box)->visibleItemsIndex(), QList<int>());
    box.setVisibleItems(QStringList(), text("x"));
    box.setVisibleItem(text("x"));
    box.showPopup();
    QVERIFY(listOf(box)->isVisible());
    box.hidePopup();
    QCOMPARE(rowOf(box), 0); // the text that was offered alone
}

QTEST_MAIN(tst_combobox)
#include "tst_combobox.moc"
