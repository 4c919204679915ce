#include "support/rows.h"
#include "support/stylefile.h"
#include "support/testing.h"

#include "widgets/label.h"

#include <QApplication>
#include <QPainter>
#include <QSignalSpy>

using testing::canvas;
using testing::render;
using testing::styleOf;
using testing::testFont;

namespace
{

const QColor background(0xE0, 0xE0, 0xFF);

/// A label of 100 x 28 pixels with a test's font.
struct Label : CLabel {
    Label()
    {
        setSize(100, 28);
        setFont(testFont(13));
    }
};

/// Where a label of that size has its texts.
QRect textRect(const QWidget& label)
{
    return QRect(QPoint(2, 0), QPoint(label.width() - 3, label.height() - 1));
}

void paintText(QImage* image, const CLabel& label, int flags, const QString& text,
               const QColor& color = Qt::black)
{
    QPainter painter(image);
    painter.setPen(color);
    painter.setFont(label.font());
    painter.drawText(textRect(label), flags, text);
}

} // namespace

class tst_label : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void settersStoreAndRepaint();
    void cornerTextDoesNotRepaint();
    void setAutoStyleEnabledHasItsOwnFlag();
    void textSizeSetsTheFont();
    void textSizeBelowZeroIsZeroAndHides();
    void textSizeZeroPrintsNoWarning();
    void newLabelDrawsItsBackgroundOnly();
    void textOnOneLine_data();
    void textOnOneLine();
    void anyOtherWrapModeIsNoWrap();
    void textColor();
    void cornerText();
    void cornerTextOverMainText();
    void cornerTextWithoutMainText();
    void textSizeZeroShowsOnlyTheCornerText();
    void styleFileGivesTheFont();
    void widgetStyle();
    void clickedOnEveryRelease();
    void clickedOutsideToo();
    void disabledLabelGetsNoEvents();
};

void tst_label::defaults()
{
    CLabel label;
    QVERIFY(label.text().isEmpty());
    QVERIFY(label.cornerText().isEmpty());
    QVERIFY(label.isAutoStyleEnabled());
    QCOMPARE(label.height(), 28);
    QCOMPARE(label.minimumHeight(), 28);
    QCOMPARE(label.maximumHeight(), 28);
    QCOMPARE(label.maximumWidth(), QWIDGETSIZE_MAX);
    QCOMPARE(label.getBackgroundColor(), background);
    QVERIFY(label.font().pixelSize() != 9); // the text size of 9 is not applied by itself
    QVERIFY(label.initialize());
    const QMetaObject& meta = CLabel::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QVERIFY(meta.indexOfSignal("clicked()") >= meta.methodOffset());
    QCOMPARE(static_cast<int>(CLabel::NoWrap), 0);
    QCOMPARE(static_cast<int>(CLabel::WordWrap), 1);
    QCOMPARE(static_cast<int>(CLabel::CharWrap), 2);
}

void tst_label::settersStoreAndRepaint()
{
    Label label;
    label.show();
    QVERIFY(testcompat::waitForWindow(&label));
    QVERIFY(testing::repaints(&label, [&] { label.setText(QLatin1String("Name")); }));
    QVERIFY(testing::repaints(&label, [&] { label.setTextColor(Qt::red); }));
    QVERIFY(testing::repaints(&label, [&] { label.setTextSize(12); }));
    QVERIFY(testing::repaints(&label, [&] { label.setTextSize(12); }));
    QVERIFY(testing::repaints(&label, [&] { label.setAlignment(Qt::AlignCenter); }));
    QVERIFY(testing::repaints(&label, [&] { label.setWrapMode(CLabel::CharWrap); }));
    QVERIFY(testing::repaints(&label, [&] { label.setAutoStyleEnabled(false); }));
    QCOMPARE(label.text(), QString::fromLatin1("Name"));
}

void tst_label::cornerTextDoesNotRepaint()
{
    Label label;
    label.show();
    QVERIFY(testcompat::waitForWindow(&label));
    const QImage before = render(&label);
    QVERIFY(!testing::repaints(&label, [&] { label.setCornerText(QLatin1String("mm")); }));
    QCOMPARE(label.cornerText(), QString::fromLatin1("mm"));
    QVERIFY(render(&label) != before);
}

void tst_label::setAutoStyleEnabledHasItsOwnFlag()
{
    Label label;
    label.setAutoStyleEnabled(false);
    QVERIFY(!label.isAutoStyleEnabled());
    QVERIFY(label.CWidget::isAutoStyleEnabled());
    label.setWidgetStyle(styleOf(Style::FieldAll, testFont(30)));
    QCOMPARE(label.font().pixelSize(), 13);
}

void tst_label::textSizeSetsTheFont()
{
    Label label;
    label.setTextSize(21);
    QCOMPARE(label.font().pixelSize(), 21);
    QCOMPARE(label.font().family(), QString::fromLatin1("Arial"));
}

void tst_label::textSizeBelowZeroIsZeroAndHides()
{
    Label label;
    label.setText(QLatin1String("Name"));
    const QImage shown = render(&label);
    label.setTextSize(-4);
    CWIDGET_COMPARE_IMAGES(render(&label), canvas(&label, background));
    label.setTextSize(13);
    CWIDGET_COMPARE_IMAGES(render(&label), shown);
    label.setTextSize(0);
    CWIDGET_COMPARE_IMAGES(render(&label), canvas(&label, background));
    QCOMPARE(label.font().pixelSize(), 13);
}

void tst_label::textSizeZeroPrintsNoWarning()
{
    testing::Messages messages;
    Label label;
    label.setTextSize(0);
    label.setTextSize(-1);
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_label::newLabelDrawsItsBackgroundOnly()
{
    Label label;
    CWIDGET_COMPARE_IMAGES(render(&label), canvas(&label, background));
}

void tst_label::textOnOneLine_data()
{
    QTest::addColumn<int>("alignment");
    QTest::newRow("default") << -1;
    QTest::newRow("right, top") << static_cast<int>(Qt::AlignRight | Qt::AlignTop);
    QTest::newRow("centre") << static_cast<int>(Qt::AlignCenter);
    QTest::newRow("left, bottom") << static_cast<int>(Qt::AlignLeft | Qt::AlignBottom);
}

void tst_label::textOnOneLine()
{
    QFETCH(int, alignment);
    const char* const texts[] = {"Name", "a text that does not fit into the label at all"};
    for (size_t i = 0; i < 2; ++i) {
        Label label;
        label.setText(QLatin1String(texts[i]));
        if (alignment >= 0)
            label.setAlignment(static_cast<Qt::Alignment>(alignment));
        QImage expected = canvas(&label, background);
        paintText(&expected, label, alignment >= 0 ? alignment : 129, label.text());
        CWIDGET_COMPARE_IMAGES(render(&label), expected);
        QVERIFY(expected != canvas(&label, background));
    }
}

void tst_label::anyOtherWrapModeIsNoWrap()
{
    const int modes[] = {0, 3, -1, 77};
    for (size_t i = 0; i < sizeof modes / sizeof modes[0]; ++i) {
        const testing::InRow inRow(i);
        Label label;
        label.setText(QLatin1String("a text that does not fit into the label at all"));
        label.setWrapMode(static_cast<CLabel::WrapMode>(modes[i]));
        QImage expected = canvas(&label, background);
        paintText(&expected, label, 129, label.text());
        CWIDGET_COMPARE_IMAGES(render(&label), expected);
    }
}

void tst_label::textColor()
{
    Label label;
    label.setText(QLatin1String("Name"));
    label.setCornerText(QLatin1String("mm"));
    label.setTextColor(Qt::red);
    QImage expected = canvas(&label, background);
    paintText(&expected, label, 129, label.text(), Qt::red);
    paintText(&expected, label, 130, label.cornerText(), Qt::red);
    CWIDGET_COMPARE_IMAGES(render(&label), expected);
}

void tst_label::cornerText()
{
    QCOMPARE(static_cast<int>(Qt::AlignRight | Qt::AlignVCenter), 130);
    Label label;
    label.setAlignment(Qt::AlignCenter);
    label.setText(QLatin1String("12"));
    label.setCornerText(QLatin1String("mm"));
    QImage expected = canvas(&label, background);
    paintText(&expected, label, 132, label.text());
    paintText(&expected, label, 130, label.cornerText());
    CWIDGET_COMPARE_IMAGES(render(&label), expected);
}

void tst_label::cornerTextOverMainText()
{
    Label label;
    label.setText(QLatin1String("a main text up to the right edge"));
    label.setCornerText(QLatin1String("mm"));
    QImage expected = canvas(&label, background);
    paintText(&expected, label, 129, label.text());
    paintText(&expected, label, 130, label.cornerText());
    CWIDGET_COMPARE_IMAGES(render(&label), expected);
}

void tst_label::cornerTextWithoutMainText()
{
    Label label;
    label.setCornerText(QLatin1String("mm"));
    QImage expected = canvas(&label, background);
    paintText(&expected, label, 130, label.cornerText());
    CWIDGET_COMPARE_IMAGES(render(&label), expected);
    // Inside the margins: nothing in the last two columns.
    const QImage actual = render(&label);
    for (int y = 0; y < 28; ++y) {
        QCOMPARE(actual.pixel(98, y), background.rgb());
        QCOMPARE(actual.pixel(99, y), background.rgb());
    }
}

void tst_label::textSizeZeroShowsOnlyTheCornerText()
{
    for (int mode = 0; mode < 3; ++mode) {
        Label label;
        label.setWrapMode(static_cast<CLabel::WrapMode>(mode));
        label.setText(QLatin1String("a main text that is longer than the label"));
        label.setCornerText(QLatin1String("mm"));
        label.setTextSize(0);
        QImage expected = canvas(&label, background);
        paintText(&expected, label, 130, label.cornerText());
        CWIDGET_COMPARE_IMAGES(render(&label), expected);
    }
}

void tst_label::styleFileGivesTheFont()
{
    const testing::StyleFile file("CLabel", 23);
    CLabel label;
    QCOMPARE(label.font().pixelSize(), 23);
    QCOMPARE(label.getBackgroundColor(), background);
}

void tst_label::widgetStyle()
{
    Label label;
    WidgetStyle style = styleOf(Style::FieldName, testFont(17));
    style.styles.append(styleOf(Style::FieldValue, testFont(18)).styles);
    label.setWidgetStyle(style);
    QCOMPARE(label.font().pixelSize(), 13);
    style.styles.append(styleOf(Style::FieldAll, testFont(19)).styles);
    label.setWidgetStyle(style);
    QCOMPARE(label.font().pixelSize(), 19);
}

void tst_label::clickedOnEveryRelease()
{
    Label label;
    QSignalSpy spy(&label, SIGNAL(clicked()));
    QTest::mousePress(&label, Qt::LeftButton);
    QCOMPARE(spy.count(), 0);
    QTest::mouseRelease(&label, Qt::LeftButton);
    QCOMPARE(spy.count(), 1);
    QTest::mouseRelease(&label, Qt::RightButton);
    QCOMPARE(spy.count(), 2);
}

void tst_label::clickedOutsideToo()
{
    Label label;
    QSignalSpy spy(&label, SIGNAL(clicked()));
    QTest::mousePress(&label, Qt::LeftButton);
    QTest::mouseRelease(&label, Qt::LeftButton, Qt::NoModifier, QPoint(500, 500));
    QCOMPARE(spy.count(), 1);
}

void tst_label::disabledLabelGetsNoEvents()
{
    Label label;
    QSignalSpy spy(&label, SIGNAL(clicked()));
    label.setEnabled(false);
    QTest::mouseClick(&label, Qt::LeftButton);
    QCOMPARE(spy.count(), 0);
}

QTEST_MAIN(tst_label)
#include "tst_label.moc"
