#include "support/resolution.h"
#include "support/rows.h"
#include "support/testing.h"
#include "widgets/clockprogress.h"

#include <QPainter>
#include <QTimer>

namespace
{

// The text over a clock, empty for none.
struct TextRow {
    int minimum;
    int maximum;
    int value;
    int format;
    const char* text;
};

// clang-format off
const TextRow texts[] = {
    {  0, 100,  50,  0, "0 %"},
    {  0, 100,  99,  0, "0 %"},
    {  0, 100, 100,  0, "1 %"},
    {  0, 100,   0,  0, "0 %"},
    {  5,   5,   5,  0, "1 %"},
    {  0,   0,   0,  0, "0 %"}, // nothing is divided
    {  0, 100,  50,  1, "50/100"},
    { 20, 100,   3,  1, "20/100"},
    { 20, 100, 300,  1, "100/100"},
    {100,  20,   3,  1, "20/100"},
    {-10,  20,  -5,  1, "0/20"},
    {-10,  -3,   5,  1, "0/0"},
    { -3, -10,   5,  0, "0 %"},
    {  0, 2147483647, 2147483647, 1, "2147483647/2147483647"},
    {-2147483647 - 1, 2147483647, -1, 1, "0/2147483647"},
    {  0, 100,  50,  2, ""},
    {  0, 100,  50,  3, ""},
    {  0, 100,  50, -1, ""},
};
// clang-format on

QImage expected(const CClockProgress& clock, const QPoint& corner, int frame, const QString& text)
{
    const QSize size = clock.size();
    QImage image = testing::canvasOfResolution(&clock);
    QPainter painter(&image);
    const QPixmap strip(QLatin1String(":/images/MISC_PROGCLK_11states.png"));
    painter.drawPixmap(QRect(corner, QSize(30, 30)), strip, QRect(frame * 30, 0, 30, 30));
    QFont font(QLatin1String("Arial"), 8);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRect(-1, -1, size.width(), size.height()), Qt::AlignCenter, text);
    return image;
}

QImage expected(const CClockProgress& clock, int frame, const QString& text = QString())
{
    return expected(clock, QPoint(-1, -1), frame, text);
}

// The frame that all clocks show now, found by its looks; -1 for none.
int currentFrame()
{
    CClockProgress clock;
    const QImage image = testing::render(&clock);
    for (int frame = 0; frame < 11; ++frame) {
        if (testing::difference(image, expected(clock, frame)).isEmpty())
            return frame;
    }
    return -1;
}

void rollTo(int frame)
{
    CClockProgress clock;
    for (int i = 0; i < 11 && currentFrame() != frame; ++i)
        clock.roll();
}

QTimer* timerOf(const CClockProgress& clock)
{
    return clock.findChild<QTimer*>();
}

void callSetter(CClockProgress* clock, int setter)
{
    switch (setter) {
    case 0:
        return clock->setRange(0, 100);
    case 1:
        return clock->setValue(30);
    case 2:
        return clock->setFormat(1);
    default:
        return clock->roll();
    }
}

} // namespace

class tst_clockprogress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewClockIsHidden();
    void theFirstFrameIs0();
    void everyFrameAndBackToTheFirst();
    void allClocksShareTheFrame();
    void aRunningClockStepsThemAll();
    void startAndStop();
    void startingTwiceKeepsOneTimer();
    void theFrameSurvivesStopAndEnd();
    void theFaceStandsInTheMiddle();
    void everyText();
    void theTextIsOffInTheBeginning();
    void aNewRangeKeepsTheValue();
    void backgroundAndBorderOfTheBase();
    void everySetterRepaints_data();
    void everySetterRepaints();
};

void tst_clockprogress::aNewClockIsHidden()
{
    QWidget parent;
    CClockProgress clock(&parent);
    QCOMPARE(clock.minimumSize(), QSize(30, 30));
    QCOMPARE(clock.maximumSize(), QSize(30, 30));
    QVERIFY(clock.isHidden());
    QVERIFY(timerOf(clock));
    QVERIFY(!timerOf(clock)->isActive());
    parent.show();
    QVERIFY(!clock.isVisible());
    QVERIFY(!clock.getBackgroundColor().isValid());
}

void tst_clockprogress::theFirstFrameIs0()
{
    // The first function that looks at a frame: nothing has rolled yet.
    QCOMPARE(currentFrame(), 0);
}

void tst_clockprogress::everyFrameAndBackToTheFirst()
{
    rollTo(0);
    CClockProgress clock;
    for (int frame = 0; frame < 11; ++frame) {
        CWIDGET_COMPARE_IMAGES(testing::render(&clock), expected(clock, frame));
        clock.roll();
    }
    CWIDGET_COMPARE_IMAGES(testing::render(&clock), expected(clock, 0));
}

void tst_clockprogress::allClocksShareTheFrame()
{
    rollTo(0);
    CClockProgress first;
    CClockProgress second;
    first.roll();
    second.roll();
    CWIDGET_COMPARE_IMAGES(testing::render(&first), expected(first, 2));
    CWIDGET_COMPARE_IMAGES(testing::render(&second), expected(second, 2));
    CClockProgress third;
    CWIDGET_COMPARE_IMAGES(testing::render(&third), expected(third, 2));
}

void tst_clockprogress::aRunningClockStepsThemAll()
{
    rollTo(3);
    CClockProgress first;
    CClockProgress second;
    QVERIFY(QMetaObject::invokeMethod(timerOf(first), "timeout"));
    QCOMPARE(currentFrame(), 4);
    QVERIFY(QMetaObject::invokeMethod(timerOf(second), "timeout"));
    QCOMPARE(currentFrame(), 5);
    first.start();
    QSignalSpy ticks(timerOf(first), SIGNAL(timeout()));
    for (int i = 0; i < 500 && ticks.count() == 0; ++i)
        QTest::qWait(10);
    QVERIFY(ticks.count() > 0);
    first.stop();
    QCOMPARE(currentFrame(), (5 + ticks.count()) % 11);
}

void tst_clockprogress::startAndStop()
{
    QWidget parent;
    CClockProgress clock(&parent);
    parent.show();
    clock.start();
    QVERIFY(clock.isVisible());
    QVERIFY(timerOf(clock)->isActive());
    QVERIFY(!timerOf(clock)->isSingleShot());
    QCOMPARE(timerOf(clock)->interval(), 100);
    clock.stop();
    QVERIFY(clock.isHidden());
    QVERIFY(!timerOf(clock)->isActive());
    clock.stop();
    QVERIFY(clock.isHidden());
}

void tst_clockprogress::startingTwiceKeepsOneTimer()
{
    CClockProgress clock;
    clock.start();
    clock.start();
    QCOMPARE(clock.findChildren<QTimer*>().count(), 1);
    QVERIFY(timerOf(clock)->isActive());
    QCOMPARE(static_cast<QObject*>(timerOf(clock))->parent(), static_cast<QObject*>(&clock));
}

void tst_clockprogress::theFrameSurvivesStopAndEnd()
{
    rollTo(7);
    {
        CClockProgress clock;
        clock.start();
        clock.stop();
        QCOMPARE(currentFrame(), 7);
        clock.start();
    }
    QCOMPARE(currentFrame(), 7);
}

void tst_clockprogress::theFaceStandsInTheMiddle()
{
    const struct {
        QSize size;
        QPoint corner;
    } rows[] = {
        {QSize(30, 30), QPoint(-1, -1)},  {QSize(31, 31), QPoint(0, 0)},
        {QSize(60, 40), QPoint(14, 4)},   {QSize(61, 41), QPoint(15, 5)},
        {QSize(20, 10), QPoint(-6, -11)},
    };
    rollTo(0);
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i) {
        const testing::InRow inRow(i);
        CClockProgress clock;
        clock.setSize(rows[i].size);
        clock.setRange(0, 9);
        clock.setFormat(1);
        CWIDGET_COMPARE_IMAGES(testing::render(&clock),
                               expected(clock, rows[i].corner, 0, QString::fromLatin1("0/9")));
    }
}

void tst_clockprogress::everyText()
{
    rollTo(0);
    for (size_t i = 0; i < sizeof texts / sizeof texts[0]; ++i) {
        const testing::InRow inRow(i);
        CClockProgress clock;
        clock.setRange(texts[i].minimum, texts[i].maximum);
        clock.setValue(texts[i].value);
        clock.setFormat(texts[i].format);
        CWIDGET_COMPARE_IMAGES(testing::render(&clock),
                               expected(clock, 0, QLatin1String(texts[i].text)));
    }
}

void tst_clockprogress::theTextIsOffInTheBeginning()
{
    rollTo(0);
    CClockProgress clock;
    clock.setRange(0, 10);
    clock.setValue(10);
    CWIDGET_COMPARE_IMAGES(testing::render(&clock), expected(clock, 0));
    clock.setFormat(1);
    CWIDGET_COMPARE_IMAGES(testing::render(&clock),
                           expected(clock, 0, QString::fromLatin1("10/10")));
    clock.setFormat(2);
    CWIDGET_COMPARE_IMAGES(testing::render(&clock), expected(clock, 0));
}

void tst_clockprogress::aNewRangeKeepsTheValue()
{
    rollTo(0);
    CClockProgress clock;
    clock.setRange(0, 100);
    clock.setValue(90);
    clock.setRange(0, 20);
    clock.setFormat(1);
    CWIDGET_COMPARE_IMAGES(testing::render(&clock),
                           expected(clock, 0, QString::fromLatin1("90/20")));
    clock.setFormat(0);
    CWIDGET_COMPARE_IMAGES(testing::render(&clock), expected(clock, 0, QString::fromLatin1("4 %")));
}

void tst_clockprogress::backgroundAndBorderOfTheBase()
{
    CClockProgress clock;
    clock.setSize(60, 60);
    clock.setBackgroundColor(QColor(99, 94, 128));
    clock.setBorderWidth(2);
    clock.setBorderColor(Qt::black);
    const QImage image = testing::render(&clock);
    QCOMPARE(image.pixel(0, 0), QColor(Qt::black).rgb());
    QCOMPARE(image.pixel(4, 4), QColor(99, 94, 128).rgb());
}

void tst_clockprogress::everySetterRepaints_data()
{
    QTest::addColumn<int>("setter");
    QTest::newRow("setRange") << 0;
    QTest::newRow("setValue") << 1;
    QTest::newRow("setFormat") << 2;
    QTest::newRow("roll") << 3;
}

void tst_clockprogress::everySetterRepaints()
{
    QFETCH(int, setter);
    CClockProgress clock;
    clock.show();
    QVERIFY(testcompat::waitForWindow(&clock));
    QVERIFY(testing::repaints(&clock, [&]() { callSetter(&clock, setter); }));
}

QTEST_MAIN(tst_clockprogress)
#include "tst_clockprogress.moc"
