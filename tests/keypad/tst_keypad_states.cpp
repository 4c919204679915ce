// Every key of every grid, touched in every state of the grid.

#include "keypad/genkeypad.h"
#include "keypad/hexkeypad.h"
#include "keypad/numkeypad.h"
#include "support/keypadmodel.h"

namespace
{

QString touchCode(testing::CheckedGrid* grid, int code)
{
    return grid->touch(grid->model().indexOf(code));
}

/// Brings the grid into a state of its case and layer, by its keys.
QString reach(testing::CheckedGrid* grid, bool caps, bool symbols)
{
    QString what;
    if (grid->model().symbols())
        what += touchCode(grid, Key_Symbol);
    if (grid->model().caps() != caps)
        what += touchCode(grid, Qt::Key_CapsLock);
    if (symbols)
        what += touchCode(grid, Key_Symbol);
    return what;
}

/// Touches every key after every other one.
QString touchPairs(testing::CheckedGrid* grid)
{
    for (int i = 0; i < grid->model().keyCount(); ++i) {
        for (int j = 0; j < grid->model().keyCount(); ++j) {
            const QString what = grid->touch(i) + grid->touch(j);
            if (!what.isEmpty())
                return QString::fromLatin1("key %1 after key %2: %3").arg(j).arg(i).arg(what);
        }
    }
    return QString();
}

} // namespace

class tst_keypad_states : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyKeyOfTheGeneralGrid_data();
    void everyKeyOfTheGeneralGrid();
    void everyKeyOfTheHexadecimalGrid();
    void everyKeyOfTheNumericGrid_data();
    void everyKeyOfTheNumericGrid();
};

void tst_keypad_states::everyKeyOfTheGeneralGrid_data()
{
    QTest::addColumn<bool>("caps");
    QTest::addColumn<bool>("symbols");
    QTest::newRow("lower case") << false << false;
    QTest::newRow("upper case") << true << false;
    QTest::newRow("symbols") << false << true;
    QTest::newRow("symbols over upper case") << true << true;
}

void tst_keypad_states::everyKeyOfTheGeneralGrid()
{
    QFETCH(bool, caps);
    QFETCH(bool, symbols);
    CGenKeyPad pad;
    testing::CheckedGrid grid(&pad, CKeyPadFactory::SKP_GENERAL);
    const int count = grid.model().keyCount();
    // The first key of each pair leaves Shift pending when it is "Shift".
    for (int i = 0; i < count; ++i) {
        for (int j = 0; j < count; ++j) {
            const QString what = reach(&grid, caps, symbols) + grid.touch(i) + grid.touch(j);
            QVERIFY2(what.isEmpty(), qPrintable(what));
        }
    }
}

void tst_keypad_states::everyKeyOfTheHexadecimalGrid()
{
    CHexKeyPad pad;
    testing::CheckedGrid grid(&pad, CKeyPadFactory::SKP_HEX);
    QCOMPARE(touchPairs(&grid), QString());
}

void tst_keypad_states::everyKeyOfTheNumericGrid_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("type");
    QTest::newRow("binary") << 0 << static_cast<int>(CKeyPadFactory::SKP_BINARY);
    QTest::newRow("unsigned") << 1 << static_cast<int>(CKeyPadFactory::SKP_FLOAT);
    QTest::newRow("signed") << 2 << static_cast<int>(CKeyPadFactory::SKP_DECIMAL);
}

void tst_keypad_states::everyKeyOfTheNumericGrid()
{
    QFETCH(int, mode);
    QFETCH(int, type);
    CNumKeyPad pad(static_cast<CNumKeyPad::Mode>(mode));
    testing::CheckedGrid grid(&pad, static_cast<CKeyPadFactory::KeyPadType>(type));
    QCOMPARE(touchPairs(&grid), QString());
}

QTEST_MAIN(tst_keypad_states)
#include "tst_keypad_states.moc"
