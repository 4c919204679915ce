#include "keypad/numkeypad.h"
#include "support/keypads.h"
#include "support/rows.h"

#include <QLayout>
#include <QSignalSpy>

using testing::keyOf;
using testing::keysOf;
using testing::touch;

namespace
{

const int firstUpperDigit = 0x32;
const int lastUpperDigit = 0x39;

CKeyButton* blankKeyOf(const QWidget* grid)
{
    return keyOf(grid, Qt::Key_unknown);
}

/// A press of a key that may be disabled.
void pressThrough(CKeyButton* key)
{
    QMouseEvent event(QEvent::MouseButtonPress, QPoint(5, 5), key->mapToGlobal(QPoint(5, 5)),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(key, &event);
}

bool isUpperDigit(const CKeyButton* key)
{
    return key->key() >= firstUpperDigit && key->key() <= lastUpperDigit;
}

CNumKeyPad::Mode mode(int number)
{
    return static_cast<CNumKeyPad::Mode>(number);
}

} // namespace

class tst_numkeypad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modesHaveTheirNumbers();
    void newGridIsThatOfItsBase();
    void everyKeyTellsItsText();
    void keysStandBelowEachOther();
    void blankKeyKeepsAPlaceFree();
    void blankKeyReportsNothing();
    void binaryModeDisablesTheUpperDigits();
    void disabledDigitIsNotReported();
    void pressOfADisabledKeyKeepsTheSelection();
    void signStaysUsableInBinaryMode();
    void unsignedModeBlanksTheSignKey();
    void blankedSignKeyPaintsBlack();
    void signedModeDisablesNothing();
    void modesAreNotTakenBack_data();
    void modesAreNotTakenBack();
    void modesAddUp();
    void appendedUpperDigitFollowsTheMode();
};

void tst_numkeypad::modesHaveTheirNumbers()
{
    QCOMPARE(static_cast<int>(CNumKeyPad::BinaryMode), 0);
    QCOMPARE(static_cast<int>(CNumKeyPad::UnsignedMode), 1);
    QCOMPARE(static_cast<int>(CNumKeyPad::SignedMode), 2);
}

void tst_numkeypad::newGridIsThatOfItsBase()
{
    for (int number = 0; number < 3; ++number) {
        QWidget parent;
        CNumKeyPad grid(mode(number), &parent);
        QCOMPARE(grid.parent(), static_cast<QObject*>(&parent));
        QCOMPARE(grid.size(), QSize(560, 390));
        QCOMPARE(grid.getBackgroundColor(), QColor(Qt::black));
        QCOMPARE(keysOf(&grid).size(), 17);
        QCOMPARE(testing::selectedKeys(keysOf(&grid)), QList<int>() << Key_Apply);
    }
}

void tst_numkeypad::everyKeyTellsItsText()
{
    CNumKeyPad grid(CNumKeyPad::SignedMode);
    QSignalSpy changes(&grid, SIGNAL(currentKeyChanged(QString, int)));
    for (int digit = 0; digit < 10; ++digit)
        touch(keyOf(&grid, 0x30 + digit));
    QCOMPARE(changes.count(), 10);
    for (int digit = 0; digit < 10; ++digit) {
        QCOMPARE(changes.at(digit).at(0).toString(), QString::number(digit));
        QCOMPARE(changes.at(digit).at(1).toInt(), 0x30 + digit);
    }
    touch(keyOf(&grid, Key_PlusMinus));
    QCOMPARE(changes.at(10).at(0).toString(), QString("+/-"));
    touch(keyOf(&grid, Key_Point));
    QCOMPARE(changes.at(11).at(0).toString(), QString("."));
}

void tst_numkeypad::keysStandBelowEachOther()
{
    CNumKeyPad grid(CNumKeyPad::SignedMode);
    grid.layout()->activate();
    const QRect one = keyOf(&grid, Qt::Key_1)->geometry();
    const QRect two = keyOf(&grid, Qt::Key_2)->geometry();
    const QRect seven = keyOf(&grid, Qt::Key_7)->geometry();
    const QRect sign = keyOf(&grid, Key_PlusMinus)->geometry();
    const QRect zero = keyOf(&grid, Qt::Key_0)->geometry();
    const QRect blank = blankKeyOf(&grid)->geometry();
    QCOMPARE(two.left() - one.right() - 1, 20);
    QVERIFY(one.top() >= 20);
    QCOMPARE(sign.left(), one.left());
    QVERIFY(sign.top() > seven.bottom());
    QCOMPARE(zero.left(), two.left());
    QCOMPARE(zero.top(), sign.top());
    QCOMPARE(blank.top(), sign.top());
    QCOMPARE(blank.left(), keyOf(&grid, Qt::Key_3)->geometry().left());
    QVERIFY(keyOf(&grid, Qt::Key_Delete)->geometry().top() > sign.bottom());
    QVERIFY(keyOf(&grid, Qt::Key_Backspace)->geometry().bottom() < 290);
}

void tst_numkeypad::blankKeyKeepsAPlaceFree()
{
    CNumKeyPad grid(CNumKeyPad::SignedMode);
    CKeyButton* blank = blankKeyOf(&grid);
    QCOMPARE(keysOf(&grid).indexOf(blank), 11);
    QCOMPARE(blank->size(), QSize(75, 40));
    QCOMPARE(blank->minimumSize(), QSize(75, 40));
    QCOMPARE(blank->maximumSize(), QSize(75, 40));
    QVERIFY(!blank->isEnabled());
    QVERIFY(blank->getText().isEmpty());
    QVERIFY(blank->getBackground().isNull());
    QCOMPARE(blank->getBackgroundColor(), QColor(Qt::black));
    CWIDGET_COMPARE_IMAGES(testing::render(blank), testing::canvas(blank, Qt::black));
}

void tst_numkeypad::blankKeyReportsNothing()
{
    CNumKeyPad grid(CNumKeyPad::SignedMode);
    CKeyButton* blank = blankKeyOf(&grid);
    QSignalSpy changes(&grid, SIGNAL(currentKeyChanged(QString, int)));
    pressThrough(blank);
    QCOMPARE(changes.count(), 0);
    QCOMPARE(testing::selectedKeys(keysOf(&grid)), QList<int>() << Key_Apply);
    blank->setEnabled(true); // it is not watched either
    touch(blank);
    QCOMPARE(changes.count(), 0);
    QCOMPARE(testing::selectedKeys(keysOf(&grid)), QList<int>() << Key_Apply);
}

void tst_numkeypad::binaryModeDisablesTheUpperDigits()
{
    CNumKeyPad grid(CNumKeyPad::BinaryMode);
    const QList<CKeyButton*> keys = keysOf(&grid);
    int disabled = 0;
    for (int i = 0; i < keys.size(); ++i) {
        const testing::InRow inRow(i);
        if (keys.at(i) == blankKeyOf(&grid))
            continue;
        QCOMPARE(keys.at(i)->isEnabled(), !isUpperDigit(keys.at(i)));
        if (!isUpperDigit(keys.at(i)))
            continue;
        ++disabled;
        QCOMPARE(testing::lookDifference(keys.at(i), 40, Qt::gray), QString());
        QCOMPARE(keys.at(i)->getText(), QString(QLatin1Char(keys.at(i)->key())));
    }
    QCOMPARE(disabled, 8);
}

void tst_numkeypad::disabledDigitIsNotReported()
{
    CNumKeyPad grid(CNumKeyPad::BinaryMode);
    QSignalSpy changes(&grid, SIGNAL(currentKeyChanged(QString, int)));
    for (int code = firstUpperDigit; code <= lastUpperDigit; ++code) {
        CKeyButton* key = keyOf(&grid, code);
        pressThrough(key);
        grid.keyPress(key);
        QCOMPARE(testing::lookDifference(key, 40, Qt::gray), QString());
    }
    QCOMPARE(changes.count(), 0);
    QCOMPARE(testing::selectedKeys(keysOf(&grid)), QList<int>() << Key_Apply);
}

void tst_numkeypad::pressOfADisabledKeyKeepsTheSelection()
{
    CNumKeyPad grid(CNumKeyPad::BinaryMode);
    touch(keyOf(&grid, Qt::Key_1));
    grid.keyPress(keyOf(&grid, Qt::Key_5));
    QCOMPARE(testing::selectedKeys(keysOf(&grid)), QList<int>() << Qt::Key_1);
    QCOMPARE(testing::lookDifference(keyOf(&grid, Qt::Key_1), 41, Qt::black), QString());
}

void tst_numkeypad::signStaysUsableInBinaryMode()
{
    CNumKeyPad grid(CNumKeyPad::BinaryMode);
    QSignalSpy changes(&grid, SIGNAL(currentKeyChanged(QString, int)));
    touch(keyOf(&grid, Key_PlusMinus));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.at(0).at(1).toInt(), static_cast<int>(Key_PlusMinus));
}

void tst_numkeypad::unsignedModeBlanksTheSignKey()
{
    CNumKeyPad grid(CNumKeyPad::UnsignedMode);
    CKeyButton* sign = keyOf(&grid, Key_PlusMinus);
    QVERIFY(sign->getText().isEmpty());
    QCOMPARE(sign->getKeyText(), QString("+/-"));
    QCOMPARE(sign->getBackgroundColor(), QColor(Qt::black));
    QVERIFY(sign->getBackground().isNull());
    QVERIFY(!sign->isEnabled());
    QSignalSpy changes(&grid, SIGNAL(currentKeyChanged(QString, int)));
    grid.keyPress(sign);
    QCOMPARE(changes.count(), 0);
    for (int code = 0x30; code <= 0x39; ++code)
        QVERIFY(keyOf(&grid, code)->isEnabled());
}

void tst_numkeypad::blankedSignKeyPaintsBlack()
{
    CNumKeyPad grid(CNumKeyPad::UnsignedMode);
    CKeyButton* sign = keyOf(&grid, Key_PlusMinus);
    CWIDGET_COMPARE_IMAGES(testing::render(sign), testing::canvas(sign, Qt::black));
}

void tst_numkeypad::signedModeDisablesNothing()
{
    CNumKeyPad grid(CNumKeyPad::SignedMode);
    const QList<CKeyButton*> keys = keysOf(&grid);
    for (int i = 0; i < keys.size(); ++i)
        QCOMPARE(keys.at(i)->isEnabled(), keys.at(i) != blankKeyOf(&grid));
    QCOMPARE(keyOf(&grid, Key_PlusMinus)->getText(), QString("+/-"));
}

void tst_numkeypad::modesAreNotTakenBack_data()
{
    QTest::addColumn<int>("later");
    QTest::newRow("signed") << static_cast<int>(CNumKeyPad::SignedMode);
    QTest::newRow("unknown") << 3;
    QTest::newRow("negative") << -1;
}

void tst_numkeypad::modesAreNotTakenBack()
{
    QFETCH(int, later);
    CNumKeyPad binary(CNumKeyPad::BinaryMode);
    binary.setMode(mode(later));
    for (int code = firstUpperDigit; code <= lastUpperDigit; ++code) {
        QVERIFY(!keyOf(&binary, code)->isEnabled());
        QCOMPARE(testing::lookDifference(keyOf(&binary, code), 40, Qt::gray), QString());
    }
    CNumKeyPad positive(CNumKeyPad::UnsignedMode);
    positive.setMode(mode(later));
    QVERIFY(!keyOf(&positive, Key_PlusMinus)->isEnabled());
    QVERIFY(keyOf(&positive, Key_PlusMinus)->getText().isEmpty());
    QVERIFY(keyOf(&positive, Key_PlusMinus)->getBackground().isNull());
}

void tst_numkeypad::modesAddUp()
{
    CNumKeyPad grid(CNumKeyPad::SignedMode);
    grid.setMode(CNumKeyPad::BinaryMode);
    QVERIFY(!keyOf(&grid, Qt::Key_2)->isEnabled());
    QVERIFY(keyOf(&grid, Key_PlusMinus)->isEnabled());
    grid.setMode(CNumKeyPad::UnsignedMode);
    QVERIFY(!keyOf(&grid, Qt::Key_2)->isEnabled());
    QVERIFY(!keyOf(&grid, Key_PlusMinus)->isEnabled());
    QVERIFY(keyOf(&grid, Qt::Key_1)->isEnabled());
}

void tst_numkeypad::appendedUpperDigitFollowsTheMode()
{
    CNumKeyPad grid(CNumKeyPad::SignedMode);
    CKeyButton digit;
    digit.setKey(Qt::Key_7);
    CKeyButton letter;
    letter.setKey(Qt::Key_A);
    grid.appendKey(&digit);
    grid.appendKey(&letter);
    grid.setMode(CNumKeyPad::BinaryMode);
    QVERIFY(!digit.isEnabled());
    QCOMPARE(digit.getTextColor(), QColor(Qt::gray));
    QVERIFY(letter.isEnabled());
}

QTEST_MAIN(tst_numkeypad)
#include "tst_numkeypad.moc"
