// The check of numbers against the range.

#include "keypad/keypadedit.h"
#include "support/keypads.h"
#include "support/rows.h"

#include <QSignalSpy>
#include <QTextCursor>

#include <limits>

using testing::type;

namespace
{

const int lowest = std::numeric_limits<int>::min();
const int highest = std::numeric_limits<int>::max();

CKeyPadEdit* editOf(const QWidget* dialog)
{
    return dialog->findChild<CKeyPadEdit*>();
}

void addColumns()
{
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("corrected"); // null when the entry is good
}

void addRow(int min, int max, const char* entry, const char* corrected)
{
    const QString name = QString::fromLatin1("'%1' in %2 to %3").arg(entry).arg(min).arg(max);
    QTest::newRow(qPrintable(name)) << min << max << QString(entry) << QString(corrected);
}

const char* const good = nullptr;

} // namespace

class tst_softkeypad_range : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decimal_data();
    void decimal();
    void hexadecimal_data();
    void hexadecimal();
    void binary_data();
    void binary();
    void otherTypesAreNotChecked();
    void withoutRangeEverythingIsGood();
    void boundsAsTextsSwitchTheCheckOn();
    void boundsAsTextsLeaveTheIntegerBounds();
    void minimumAboveMaximum();
    void correctedEntryIsRightAlignedWithTheCursorAtItsEnd();
    void goodEntryIsLeftAlone();
    void applyCorrectsThenAccepts();
    void changeTextTakesAGoodText();
    void changeTextRestoresTheLastGoodText();
    void changeTextIsSilentWhenItRestores();
    void changeTextWithoutRange();

private:
    void check(int type);
};

void tst_softkeypad_range::check(int number)
{
    QFETCH(int, min);
    QFETCH(int, max);
    QFETCH(QString, entry);
    QFETCH(QString, corrected);
    CSoftKeyPad dialog(type(number));
    dialog.setRange(min, max);
    dialog.setText("Title", entry);
    QCOMPARE(dialog.validate(), corrected.isNull());
    QCOMPARE(dialog.getInput(), corrected.isNull() ? entry : corrected);
    if (min <= max)
        QVERIFY(dialog.validate());
}

void tst_softkeypad_range::decimal_data()
{
    addColumns();
    addRow(0, 100, "-1", "0");
    addRow(0, 100, "0", good);
    addRow(0, 100, "1", good);
    addRow(0, 100, "99", good);
    addRow(0, 100, "100", good);
    addRow(0, 100, "101", "100");
    addRow(0, 100, "250", "100");
    addRow(0, 100, "007", good);
    addRow(3, 9, "", "3");
    addRow(0, 9, "", good); // counts as 0
    addRow(-9, -3, "", "-3");
    addRow(3, 9, "-", "3");
    addRow(0, 9, "1.5", good); // is no integer and counts as 0
    addRow(3, 9, "abc", "3");
    addRow(3, 9, "99999999999", "3"); // beyond 32 bits: counts as 0
    addRow(0, 9, "99999999999", good);
    addRow(-9, -3, "-99999999999", "-3");
    addRow(0, 9, "000000000000000000000000000000000000000000000000000005", good);
    addRow(0, 9, "111111111111111111111111111111111111111111111111111111", good);
    addRow(lowest, highest, "2147483647", good);
    addRow(lowest, highest, "-2147483648", good);
    addRow(lowest, highest, "2147483648", good); // counts as 0
    addRow(lowest, -1, "0", "-1");
    addRow(highest, highest, "0", "2147483647");
    addRow(lowest, lowest, "0", "-2147483648");
    addRow(-20, -10, "-21", "-20");
    addRow(-20, -10, "-9", "-10");
}

void tst_softkeypad_range::decimal()
{
    check(CKeyPadFactory::SKP_DECIMAL);
}

void tst_softkeypad_range::hexadecimal_data()
{
    addColumns();
    addRow(16, 255, "F", "10");
    addRow(16, 255, "10", good);
    addRow(16, 255, "11", good);
    addRow(16, 255, "FE", good);
    addRow(16, 255, "ff", good);
    addRow(16, 255, "FF", good);
    addRow(16, 255, "100", "ff");
    addRow(16, 255, "1FF", "ff");
    addRow(16, 255, "", "10");
    addRow(16, 255, "-", "10");
    addRow(16, 255, "G", "10");
    addRow(0, 255, "G", "0");
    addRow(16, 255, "7FFFFFFF", "ff");
    addRow(16, 255, "80000000", "10"); // beyond 32 bits with a sign
    addRow(16, 255, "FFFFFFFF", "10");
    addRow(16, 255, "FFFFFFFFFFFFFFFFFFFFFFFFF", "10");
    addRow(-255, -16, "-1FF", "-ff");
    addRow(-255, -16, "0", "-10");
    addRow(-255, -16, "", "-ff");
    addRow(lowest, -1, "", "-80000000");
    addRow(0, highest, "-1", "0");
    addRow(highest, highest, "1", "7fffffff");
    addRow(0xabcdef, 0xfedcba, "1", "abcdef");
}

void tst_softkeypad_range::hexadecimal()
{
    check(CKeyPadFactory::SKP_HEX);
}

void tst_softkeypad_range::binary_data()
{
    addColumns();
    addRow(2, 5, "1", "10");
    addRow(2, 5, "10", good);
    addRow(2, 5, "11", good);
    addRow(2, 5, "100", good);
    addRow(2, 5, "101", good);
    addRow(2, 5, "110", "101");
    addRow(2, 5, "00010", good);
    addRow(2, 5, "", "10");
    addRow(2, 5, "-", "10");
    addRow(2, 5, "2", "10");
    addRow(2, 5, "1111111111111111111111111111111", "101");
    addRow(2, 5, "10000000000000000000000000000000", "10"); // beyond 32 bits with a sign
    addRow(2, 5, "1111111111111111111111111111111111111111", "10");
    addRow(-5, -2, "-110", "-101");
    addRow(-5, -2, "-1", "-10");
    addRow(-5, -2, "x", "-101");
    addRow(0, highest, "-1", "0");
    addRow(highest, highest, "0", "1111111111111111111111111111111");
}

void tst_softkeypad_range::binary()
{
    check(CKeyPadFactory::SKP_BINARY);
}

void tst_softkeypad_range::otherTypesAreNotChecked()
{
    const int numbers[] = {0, 4, 5, -1};
    for (size_t i = 0; i < sizeof numbers / sizeof numbers[0]; ++i) {
        const testing::InRow inRow(i);
        CSoftKeyPad dialog(type(numbers[i]));
        dialog.setRange(2, 5);
        dialog.setText("Title", "1000");
        QVERIFY(dialog.validate());
        QCOMPARE(dialog.getInput(), QString("1000"));
    }
}

void tst_softkeypad_range::withoutRangeEverythingIsGood()
{
    for (int number = 0; number < 6; ++number) {
        CSoftKeyPad dialog(type(number));
        QVERIFY(dialog.validate());
        dialog.setText("Title", "x");
        QVERIFY(dialog.validate());
        QCOMPARE(dialog.getInput(), QString("x"));
    }
}

void tst_softkeypad_range::boundsAsTextsSwitchTheCheckOn()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    dialog.setText("Title", "5");
    dialog.setRange("1", "9");
    QVERIFY(!dialog.validate()); // the integer bounds are 0 and 0
    QCOMPARE(dialog.getInput(), QString("0"));
    QVERIFY(dialog.validate());
}

void tst_softkeypad_range::boundsAsTextsLeaveTheIntegerBounds()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    dialog.setRange(3, 7);
    dialog.setRange("1", "9");
    dialog.setText("Title", "8");
    QVERIFY(!dialog.validate());
    QCOMPARE(dialog.getInput(), QString("7"));
}

void tst_softkeypad_range::minimumAboveMaximum()
{
    const char* const entries[] = {"7", "10", "12", "3"};
    const char* const corrected[] = {"10", "5", "5", "10"};
    for (int i = 0; i < 4; ++i) {
        CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
        dialog.setRange(10, 5);
        dialog.setText("Title", entries[i]);
        QVERIFY(!dialog.validate());
        QCOMPARE(dialog.getInput(), QString(corrected[i]));
    }
}

void tst_softkeypad_range::correctedEntryIsRightAlignedWithTheCursorAtItsEnd()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    dialog.show();
    dialog.setRange(0, 100);
    dialog.setText("Title", "250");
    editOf(&dialog)->setAlignment(Qt::AlignLeft);
    editOf(&dialog)->moveCursor(QTextCursor::Start);
    QVERIFY(!dialog.validate());
    QVERIFY(editOf(&dialog)->alignment() & Qt::AlignRight);
    QCOMPARE(editOf(&dialog)->textCursor().position(), 3);
}

void tst_softkeypad_range::goodEntryIsLeftAlone()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    dialog.setRange(0, 100);
    dialog.setText("Title", "050");
    editOf(&dialog)->setAlignment(Qt::AlignLeft);
    editOf(&dialog)->moveCursor(QTextCursor::Start);
    QSignalSpy changes(editOf(&dialog), SIGNAL(textChanged()));
    QVERIFY(dialog.validate());
    QCOMPARE(dialog.getInput(), QString("050"));
    QCOMPARE(editOf(&dialog)->textCursor().position(), 0);
    QVERIFY(editOf(&dialog)->alignment() & Qt::AlignLeft);
    QCOMPARE(changes.count(), 0);
}

void tst_softkeypad_range::applyCorrectsThenAccepts()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    dialog.setRange(0, 100);
    dialog.setText("Title", "250");
    dialog.show();
    QSignalSpy finished(&dialog, SIGNAL(finished(int)));
    QSignalSpy accepted(&dialog, SIGNAL(accepted()));
    CKeyButton* apply = testing::keyOf(&dialog, Key_Apply);
    testing::touch(apply);
    QCOMPARE(finished.count(), 0);
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.getInput(), QString("100"));
    testing::touch(apply);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(accepted.count(), 1);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.getInput(), QString("100"));
}

void tst_softkeypad_range::changeTextTakesAGoodText()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    dialog.setRange(0, 100);
    dialog.setText("Title", "5");
    dialog.changedkey("0", Qt::Key_0);
    dialog.changeText();
    QCOMPARE(dialog.getInput(), QString("50"));
    dialog.changedkey("0", Qt::Key_0);
    dialog.changeText();
    QCOMPARE(dialog.getInput(), QString("50")); // the new last good text
}

void tst_softkeypad_range::changeTextRestoresTheLastGoodText()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    dialog.setRange(0, 100);
    dialog.setText("Title", "25");
    dialog.changedkey("0", Qt::Key_0);
    dialog.changeText();
    QCOMPARE(dialog.getInput(), QString("25")); // not the bound
    dialog.clearInput();
    dialog.setRange(10, 20);
    dialog.changeText();
    QCOMPARE(dialog.getInput(), QString("25")); // also when it is out of range itself
}

void tst_softkeypad_range::changeTextIsSilentWhenItRestores()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    dialog.setRange(0, 100);
    dialog.setText("Title", "250");
    QSignalSpy changes(editOf(&dialog), SIGNAL(textChanged()));
    QVERIFY(!dialog.validate());
    const int ofValidate = changes.count();
    QVERIFY(ofValidate > 0);
    editOf(&dialog)->setPlainText("250");
    changes.clear();
    dialog.changeText();
    QCOMPARE(changes.count(), ofValidate); // the bound was announced, the old text was not
    QVERIFY(!editOf(&dialog)->signalsBlocked());
    editOf(&dialog)->setPlainText("300");
    editOf(&dialog)->blockSignals(true);
    dialog.changeText();
    QVERIFY(editOf(&dialog)->signalsBlocked());
}

void tst_softkeypad_range::changeTextWithoutRange()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_GENERAL);
    dialog.setText("Title", "a");
    dialog.changedkey("b", Qt::Key_B);
    dialog.changeText();
    QCOMPARE(dialog.getInput(), QString("ab"));
}

QTEST_MAIN(tst_softkeypad_range)
#include "tst_softkeypad_range.moc"
