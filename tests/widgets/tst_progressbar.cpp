#include "support/rows.h"
#include "support/testing.h"
#include "widgets/progressbar.h"

#include <QLinearGradient>
#include <QPainter>

#include <limits>

namespace
{

const int intMax = std::numeric_limits<int>::max();
const int intMin = std::numeric_limits<int>::min();

const QRgb green = 0xFF00CD00;
const QRgb lime = 0xFFA6FF01;
const QRgb amber = 0xFFFFA600;
const QRgb orange = 0xFFFF6B01;
const QRgb red = 0xFFFF0000;

// The filled part of a bar of 300 x 50 pixels: its last column, or empty.
struct FillRow {
    int minimum;
    int maximum;
    int value;
    int right;
};

const int noFill = -1000000;

// clang-format off
const FillRow fills[] = {
    {  0, 100,   0, noFill},
    {  0, 100,   1,      0}, // invalid: left of its first column
    {  0, 100,   2,      3},
    {  0, 100,  33,     96},
    {  0, 100,  50,    147},
    {  0, 100,  99,    294},
    {  0, 100, 100,    297},
    {  0,   7,   1,     39}, // 42.86 is cut, not rounded
    {  0,   7,   6,    254},
    {  0,   1,   1,    297},
    {  0, 1000,  1,     -3},
    { 50, 100,  50, noFill},
    { 50, 100,  60,     57},
    { 50, 100, 100,    297},
    { 10,  10,  10, noFill},
    {  0,   0,   0, noFill},
    {  0, intMax, intMax,     297},
    {  0, intMax, intMax / 2, 146},
    {  0, intMax, 1,           -3},
    {intMax - 4, intMax, intMax - 2, 147},
};

// The colour of a value.
const struct ColorRow {
    int minimum;
    int maximum;
    int value;
    QRgb color;
} colors[] = {
    {  0, 100, 100, green},
    {  0, 100,  81, green},
    {  0, 100,  80, lime},
    {  0, 100,  61, lime},
    {  0, 100,  60, amber},
    {  0, 100,  41, amber},
    {  0, 100,  40, orange},
    {  0, 100,  21, orange},
    {  0, 100,  20, red},
    {  0, 100,   1, red},
    {  0, 100,   0, red},
    {  0,   4,   4, lime},   // 4 is not above 0.8 x 5
    {  0,   4,   3, amber},  // 3 is not above 0.6 x 5
    {  0,   4,   1, red},    // 1 is not above 0.2 x 5
    {  0,   9,   9, green},
    {  0,   9,   8, lime},
    { 50, 100,  60, green},  // the value itself counts, not how far it has come
    { 50, 100,  50, green},
    { 90, 100,  90, green},
    { 30, 100,  57, green},  // 0.8 x 71 = 56.8
    { 30, 100,  56, lime},
    {  7,   7,   7, green},
    {  0,   0,   0, red},
    {  0, intMax, intMax,          green},
    {  0, intMax, intMax / 2,      amber},
    {  0, intMax, intMax / 5 - 10, red},
    {intMax, intMax, intMax,       green},
};
// clang-format on

QRect fillOf(int right)
{
    return right == noFill ? QRect() : QRect(QPoint(2, 2), QPoint(right, 47));
}

QImage expected(const QSize& size, const QRect& fill, const QColor& color,
                const QColor& border = Qt::gray)
{
    QImage image = testing::canvas(size);
    QPainter painter(&image);
    painter.setOpacity(0.8);
    painter.setPen(QPen(border, 4));
    painter.setBrush(QBrush(Qt::white, Qt::SolidPattern));
    painter.drawRect(0, 0, size.width(), size.height());
    painter.setOpacity(1.0);
    QLinearGradient gradient(QPointF(0, 0), QPointF(0, size.height() - 1));
    gradient.setColorAt(0, color);
    gradient.setColorAt(0.3, color);
    gradient.setColorAt(0.5, Qt::white);
    gradient.setColorAt(0.7, color);
    gradient.setColorAt(1, color);
    if (fill.isValid())
        painter.fillRect(fill, gradient);
    return image;
}

void callSetter(CProgressBar* bar, int setter)
{
    switch (setter) {
    case 0:
        return bar->setRange(0, 200);
    case 1:
        return bar->setValue(30);
    case 2:
        return bar->setBorderColor(Qt::blue);
    case 3:
        return bar->setProgressColor(Qt::blue);
    default:
        return bar->setGradientEabled(false);
    }
}

} // namespace

class tst_progressbar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewBarIsEmpty();
    void everyFill_data();
    void everyFill();
    void everyFillInAnotherSize();
    void everyColor_data();
    void everyColor();
    void everyValueFromEmptyToFull();
    void theFillIsPainted();
    void aFillOfNoWidthIsNotPainted();
    void theProgressColorReplacesTheOthers();
    void theBorderColor();
    void aNegativeMinimumBecomes0();
    void boundsInTheWrongOrderAreSwapped();
    void swappingCanLeaveANegativeMinimum();
    void theValueIsClamped();
    void aNewRangeKeepsTheValue();
    void aRangeOfOneValueIsFullAboveIt();
    void extremesDoNotOverflow();
    void repaints_data();
    void repaints();
};

void tst_progressbar::aNewBarIsEmpty()
{
    CProgressBar bar;
    QCOMPARE(bar.minimumSize(), QSize(300, 50));
    QCOMPARE(bar.maximumSize(), QSize(300, 50));
    QCOMPARE(bar.getProgressRect(), QRect());
    CWIDGET_COMPARE_IMAGES(testing::render(&bar), expected(QSize(300, 50), QRect(), Qt::red));
}

void tst_progressbar::everyFill_data()
{
    testing::addRows(fills);
}

void tst_progressbar::everyFill()
{
    QFETCH(int, row);
    CProgressBar bar;
    bar.setRange(fills[row].minimum, fills[row].maximum);
    bar.setValue(fills[row].value);
    QCOMPARE(bar.getProgressRect(), fillOf(fills[row].right));
}

void tst_progressbar::everyFillInAnotherSize()
{
    CProgressBar bar;
    bar.setFixedSize(101, 21);
    bar.setValue(50);
    QCOMPARE(bar.getProgressRect(), QRect(QPoint(2, 2), QPoint(47, 18)));
    CWIDGET_COMPARE_IMAGES(testing::render(&bar),
                           expected(QSize(101, 21), bar.getProgressRect(), QColor(amber)));
    bar.setValue(100);
    QCOMPARE(bar.getProgressRect(), QRect(QPoint(2, 2), QPoint(98, 18)));
}

void tst_progressbar::everyColor_data()
{
    testing::addRows(colors);
}

void tst_progressbar::everyColor()
{
    QFETCH(int, row);
    CProgressBar bar;
    bar.setRange(colors[row].minimum, colors[row].maximum);
    bar.setValue(colors[row].value);
    QCOMPARE(bar.getCurrentColor().rgba(), colors[row].color);
}

void tst_progressbar::everyValueFromEmptyToFull()
{
    CProgressBar bar;
    for (int value = 0; value <= 100; ++value) {
        bar.setValue(value);
        QCOMPARE(bar.getProgressRect(), fillOf(value == 0 ? noFill : 3 * value - 3));
        const QRgb color = value > 80   ? green
                           : value > 60 ? lime
                           : value > 40 ? amber
                           : value > 20 ? orange
                                        : red;
        QCOMPARE(bar.getCurrentColor().rgba(), color);
    }
}

void tst_progressbar::theFillIsPainted()
{
    CProgressBar bar;
    const int values[] = {2, 20, 21, 41, 61, 81, 100};
    for (size_t i = 0; i < sizeof values / sizeof values[0]; ++i) {
        const testing::InRow inRow(i);
        bar.setValue(values[i]);
        CWIDGET_COMPARE_IMAGES(
            testing::render(&bar),
            expected(QSize(300, 50), fillOf(3 * values[i] - 3), bar.getCurrentColor()));
    }
    QCOMPARE(testing::render(&bar).pixel(10, 10), green);
}

void tst_progressbar::aFillOfNoWidthIsNotPainted()
{
    CProgressBar bar;
    bar.setValue(1);
    QVERIFY(!bar.getProgressRect().isValid());
    CWIDGET_COMPARE_IMAGES(testing::render(&bar), expected(QSize(300, 50), QRect(), Qt::red));
}

void tst_progressbar::theProgressColorReplacesTheOthers()
{
    CProgressBar bar;
    bar.setGradientEabled(false);
    for (int value = 0; value <= 100; value += 10) {
        bar.setValue(value);
        QCOMPARE(bar.getCurrentColor(), QColor(Qt::gray));
    }
    bar.setProgressColor(QColor(99, 94, 128));
    QCOMPARE(bar.getCurrentColor(), QColor(99, 94, 128));
    CWIDGET_COMPARE_IMAGES(testing::render(&bar),
                           expected(QSize(300, 50), fillOf(297), QColor(99, 94, 128)));
    bar.setGradientEabled(true);
    QCOMPARE(bar.getCurrentColor().rgba(), green);
}

void tst_progressbar::theBorderColor()
{
    CProgressBar bar;
    bar.setBorderColor(QColor(99, 94, 128));
    CWIDGET_COMPARE_IMAGES(testing::render(&bar),
                           expected(QSize(300, 50), QRect(), Qt::red, QColor(99, 94, 128)));
}

void tst_progressbar::aNegativeMinimumBecomes0()
{
    CProgressBar bar;
    bar.setRange(-5, 50);
    bar.setValue(-3);
    QCOMPARE(bar.getProgressRect(), QRect());
    bar.setValue(25); // 0 to 50: half way
    QCOMPARE(bar.getProgressRect(), fillOf(147));
    bar.setValue(51);
    QCOMPARE(bar.getProgressRect(), fillOf(297));
}

void tst_progressbar::boundsInTheWrongOrderAreSwapped()
{
    CProgressBar bar;
    bar.setRange(80, 20);
    bar.setValue(50);
    QCOMPARE(bar.getProgressRect(), fillOf(147));
    bar.setValue(10);
    QCOMPARE(bar.getProgressRect(), QRect());
    bar.setValue(90);
    QCOMPARE(bar.getProgressRect(), fillOf(297));
}

void tst_progressbar::swappingCanLeaveANegativeMinimum()
{
    CProgressBar bar;
    bar.setRange(-5, -10); // -5 becomes 0, then both are swapped
    bar.setValue(-5);
    QCOMPARE(bar.getProgressRect(), fillOf(147));
    QCOMPARE(bar.getCurrentColor().rgba(), red);
    bar.setValue(5);
    QCOMPARE(bar.getProgressRect(), fillOf(297));
}

void tst_progressbar::theValueIsClamped()
{
    CProgressBar bar;
    bar.setValue(500);
    QCOMPARE(bar.getProgressRect(), fillOf(297));
    bar.setValue(-500);
    QCOMPARE(bar.getProgressRect(), QRect());
    bar.setValue(intMax);
    QCOMPARE(bar.getProgressRect(), fillOf(297));
    bar.setValue(intMin);
    QCOMPARE(bar.getProgressRect(), QRect());
}

void tst_progressbar::aNewRangeKeepsTheValue()
{
    CProgressBar bar;
    bar.setValue(80);
    bar.setRange(0, 40);
    QCOMPARE(bar.getProgressRect(), fillOf(597)); // past the right edge
    QCOMPARE(bar.getCurrentColor().rgba(), green);
    CWIDGET_COMPARE_IMAGES(testing::render(&bar),
                           expected(QSize(300, 50), fillOf(597), QColor(green)));
    bar.setRange(90, 100);
    QCOMPARE(bar.getProgressRect(), QRect());
    bar.setRange(0, 160);
    QCOMPARE(bar.getProgressRect(), fillOf(147));
}

void tst_progressbar::aRangeOfOneValueIsFullAboveIt()
{
    CProgressBar bar;
    bar.setValue(60);
    bar.setRange(40, 40);
    QCOMPARE(bar.getProgressRect(), fillOf(297));
    CWIDGET_COMPARE_IMAGES(testing::render(&bar),
                           expected(QSize(300, 50), fillOf(297), QColor(green)));
    bar.setValue(40);
    QCOMPARE(bar.getProgressRect(), QRect());
    bar.setRange(60, 60);
    QCOMPARE(bar.getProgressRect(), QRect());
}

void tst_progressbar::extremesDoNotOverflow()
{
    CProgressBar bar;
    bar.setRange(0, intMax);
    bar.setValue(intMax);
    bar.setRange(0, 1);
    QCOMPARE(bar.getProgressRect(), QRect(QPoint(2, 2), QPoint(intMax, 47)));
    CWIDGET_COMPARE_IMAGES(testing::render(&bar),
                           expected(QSize(300, 50), fillOf(299), QColor(green)));
    bar.setRange(intMax, intMin); // swapped: all numbers there are
    QCOMPARE(bar.getProgressRect(), fillOf(297));
    bar.setValue(0);
    QCOMPARE(bar.getProgressRect(), fillOf(147));
    QCOMPARE(bar.getCurrentColor().rgba(), red);
}

void tst_progressbar::repaints_data()
{
    QTest::addColumn<int>("setter");
    QTest::addColumn<bool>("repaints");
    QTest::newRow("setRange") << 0 << true;
    QTest::newRow("setValue") << 1 << true;
    QTest::newRow("setBorderColor") << 2 << true;
    QTest::newRow("setProgressColor") << 3 << false;
    QTest::newRow("setGradientEabled") << 4 << false;
}

void tst_progressbar::repaints()
{
    QFETCH(int, setter);
    QFETCH(bool, repaints);
    CProgressBar bar;
    bar.show();
    QVERIFY(testcompat::waitForWindow(&bar));
    QCOMPARE(testing::repaints(&bar, [&]() { callSetter(&bar, setter); }), repaints);
}

QTEST_MAIN(tst_progressbar)
#include "tst_progressbar.moc"
