#include "support/heap.h"
#include "support/testing.h"

#include "widgets/clockprogress.h"
#include "widgets/lineedit.h"
#include "widgets/pushbutton.h"

#include <QApplication>

// What controls may cost, counted in events, pictures and bytes and not in time.

namespace
{

CPushButton* newButton(QWidget* parent)
{
    CPushButton* button = new CPushButton(parent);
    button->setStyle(CPushButton::GreenStyle, true);
    button->setText(QString::fromLatin1("Button"));
    return button;
}

/// How often \a button is painted until nothing is left to do after \a action.
template <typename Action>
int paintsAfter(QWidget* button, Action action)
{
    QCoreApplication::processEvents();
    testing::EventCounter paints(button, QEvent::Paint);
    action();
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    return paints.count();
}

} // namespace

class tst_cost : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void paintSender()
    {
        static_cast<QWidget*>(sender())->repaint();
    }

private Q_SLOTS:
    void touchPaintsOncePerLook();
    void slotPaintsTheTouchedButton();
    void buttonsShareTheirPictures();
    void heapOfAButton();
    void heapOfAShapedText();
    void clockPaintsOncePerFrame();
    void sheetsOfALineEdit();
};

void tst_cost::touchPaintsOncePerLook()
{
    CPushButton button;
    button.setStyle(CPushButton::GreenStyle, true);
    button.show();
    QVERIFY(testcompat::waitForWindow(&button));
    const int pressed = paintsAfter(&button, [&] { QTest::mousePress(&button, Qt::LeftButton); });
    QCOMPARE(pressed, 1);
    const int released =
        paintsAfter(&button, [&] { QTest::mouseRelease(&button, Qt::LeftButton); });
    QCOMPARE(released, 1);
    QVERIFY(button.updatesEnabled());
}

void tst_cost::slotPaintsTheTouchedButton()
{
    CPushButton button;
    button.show();
    QVERIFY(testcompat::waitForWindow(&button));
    connect(&button, SIGNAL(clicked()), SLOT(paintSender()));
    QTest::mousePress(&button, Qt::LeftButton);
    testing::EventCounter paints(&button, QEvent::Paint);
    QTest::mouseRelease(&button, Qt::LeftButton);
    QVERIFY(paints.count() >= 1);
}

void tst_cost::buttonsShareTheirPictures()
{
    CPushButton one;
    CPushButton other;
    one.setStyle(CPushButton::RedStyle, true);
    other.setStyle(CPushButton::RedStyle, true);
    QCOMPARE(one.getBackground().cacheKey(), other.getBackground().cacheKey());
    other.setStyle(CPushButton::RedStyle, false);
    QVERIFY(one.getBackground().cacheKey() != other.getBackground().cacheKey());
}

/// A button with pictures and a text takes no more than a plain one of Qt's.
void tst_cost::heapOfAButton()
{
    if (!testing::isHeapKnown())
        CWIDGET_SKIP("the heap of this program cannot be measured");
    const int count = 1000;
    const size_t most = 1800;
    QWidget panel;
    delete newButton(&panel);
    const size_t before = testing::heapInUse();
    for (int i = 0; i < count; ++i)
        newButton(&panel);
    const size_t each = (testing::heapInUse() - before) / count;
    QVERIFY2(each > 0 && each <= most, qPrintable(QString::number(each)));
}

/// A text gets its shape with its second paint: a screen that is painted once pays for none.
void tst_cost::heapOfAShapedText()
{
    if (!testing::isHeapKnown())
        CWIDGET_SKIP("the heap of this program cannot be measured");
    const int count = 100;
    const int leastOfShape = 100;
    const int mostOfOtherPaints = 70; // what the heap keeps of memory that Qt 6 has freed
    QWidget panel;
    panel.resize(1200, 400);
    for (int i = 0; i < count; ++i) {
        CPushButton* button = newButton(&panel);
        button->setFont(testing::testFont(14));
        button->move(i % 10 * 120, i / 10 * 40); // else Qt paints only the topmost one
    }
    testing::render(&panel);
    int grown[2];
    for (size_t i = 0; i < sizeof grown / sizeof grown[0]; ++i) {
        const size_t before = testing::heapInUse();
        testing::render(&panel);
        grown[i] = static_cast<int>(testing::heapInUse() - before) / count;
    }
    const QString found = QString::fromLatin1("%1, %2").arg(grown[0]).arg(grown[1]);
    QVERIFY2(grown[0] >= leastOfShape && grown[1] <= mostOfOtherPaints, qPrintable(found));
}

void tst_cost::clockPaintsOncePerFrame()
{
    CClockProgress clock;
    clock.setVisible(true);
    QVERIFY(testcompat::waitForWindow(&clock));
    for (int i = 0; i < 12; ++i)
        QCOMPARE(paintsAfter(&clock, [&] { clock.roll(); }), 1);
}

/// The sheet is applied once, after the font.
void tst_cost::sheetsOfALineEdit()
{
    testing::EventCounter changes(qApp, QEvent::StyleChange);
    CLineEdit field;
    QCOMPARE(changes.count(), 1);
}

QTEST_MAIN(tst_cost)
#include "tst_cost.moc"
