#include "keypad/genkeypad.h"
#include "support/keypads.h"

#include <QLayout>
#include <QSignalSpy>

using testing::keyOf;
using testing::keysOf;
using testing::touch;

namespace
{

typedef QList<int> Codes;

const int lettersOfTheRows = 26;

/// The texts that \a grid reports for touches of keys of these codes.
QStringList reported(CGenKeyPad* grid, const Codes& codes)
{
    QSignalSpy changes(grid, SIGNAL(currentKeyChanged(QString, int)));
    QStringList texts;
    for (int i = 0; i < codes.size(); ++i) {
        touch(keyOf(grid, codes.at(i)));
        if (changes.count() != i + 1 || changes.at(i).at(1).toInt() != codes.at(i))
            return QStringList("not reported once with its code");
        texts.append(changes.at(i).at(0).toString());
    }
    return texts;
}

QString letterTexts(const CGenKeyPad& grid)
{
    QString texts;
    const QList<CKeyButton*> keys = keysOf(&grid);
    for (int i = 0; i < keys.size(); ++i) {
        if (keys.at(i)->key() >= 0x41 && keys.at(i)->key() <= 0x5a)
            texts += keys.at(i)->getText();
    }
    return texts;
}

const char lowerLetters[] = "qwertyuiopasdfghjklzxcvbnm";
const char upperLetters[] = "QWERTYUIOPASDFGHJKLZXCVBNM";
const char symbols[] = "!#$%^&*()_+=:;\"',~-<>?\\/|`";

} // namespace

class tst_genkeypad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newGridIsThatOfItsBase();
    void newGridShowsLowerCase();
    void keysStandBelowEachOther();
    void shiftActsOnTheNextKeyOnly();
    void shiftIsAgainstCaps();
    void shiftThenShiftInvertsTheKeyAfter();
    void shiftInvertsTheReportedTextOfAnyKey();
    void shiftDoesNotChangeWhatIsShown();
    void capsShowsUpperCase();
    void capsDoesNothingAmongSymbols();
    void symbolShowsTheSymbols();
    void symbolGoesBackToTheCaseOfCaps();
    void shiftLeavesSymbols();
    void otherKeysAreUnaffected();
    void nullPressKeepsAPendingShift();
    void appendedLetterFollowsCapsAndSymbol();
    void everyGridStartsAnew();
};

void tst_genkeypad::newGridIsThatOfItsBase()
{
    QWidget parent;
    CGenKeyPad grid(&parent);
    QCOMPARE(grid.parent(), static_cast<QObject*>(&parent));
    QCOMPARE(grid.size(), QSize(560, 390));
    QCOMPARE(grid.getBackgroundColor(), QColor(Qt::black));
    QCOMPARE(keysOf(&grid).size(), 46);
}

void tst_genkeypad::newGridShowsLowerCase()
{
    CGenKeyPad grid;
    QCOMPARE(letterTexts(grid), QString(lowerLetters));
    QCOMPARE(letterTexts(grid).size(), lettersOfTheRows);
    QCOMPARE(reported(&grid, Codes() << Qt::Key_Q << Qt::Key_M), QStringList() << "q"
                                                                               << "m");
}

void tst_genkeypad::keysStandBelowEachOther()
{
    CGenKeyPad grid;
    grid.layout()->activate();
    const int firsts[] = {Qt::Key_1,     Qt::Key_Q,  Qt::Key_A,
                          Qt::Key_Shift, Key_Symbol, Qt::Key_Space};
    const int lasts[] = {Qt::Key_0,        Qt::Key_P,         Qt::Key_L,
                         Qt::Key_CapsLock, Qt::Key_Backspace, Key_Apply};
    for (int row = 0; row < 6; ++row) {
        const QRect first = keyOf(&grid, firsts[row])->geometry();
        const QRect last = keyOf(&grid, lasts[row])->geometry();
        QCOMPARE(first.top(), last.top());
        QVERIFY(first.left() < last.left());
        QVERIFY(qAbs(first.left() - 1 - (grid.width() - 1 - 3 - last.right())) <= 1);
        if (row > 0)
            QVERIFY(first.top() - keyOf(&grid, firsts[row - 1])->geometry().bottom() - 1 >= 4);
    }
    QCOMPARE(keyOf(&grid, Qt::Key_1)->geometry().top(), 5);
    QCOMPARE(keyOf(&grid, Qt::Key_2)->x() - keyOf(&grid, Qt::Key_1)->geometry().right() - 1, 4);
}

void tst_genkeypad::shiftActsOnTheNextKeyOnly()
{
    CGenKeyPad grid;
    QCOMPARE(reported(&grid, Codes() << Qt::Key_Shift << Qt::Key_Q << Qt::Key_Q), QStringList()
                                                                                      << "Shift"
                                                                                      << "Q"
                                                                                      << "q");
}

void tst_genkeypad::shiftIsAgainstCaps()
{
    CGenKeyPad grid;
    QCOMPARE(
        reported(&grid, Codes() << Qt::Key_CapsLock << Qt::Key_Shift << Qt::Key_Q << Qt::Key_Q),
        QStringList() << "Caps"
                      << "Shift"
                      << "q"
                      << "Q");
}

void tst_genkeypad::shiftThenShiftInvertsTheKeyAfter()
{
    CGenKeyPad grid;
    QCOMPARE(reported(&grid, Codes() << Qt::Key_Shift << Qt::Key_Shift << Qt::Key_Q << Qt::Key_Q),
             QStringList() << "Shift"
                           << "SHIFT"
                           << "Q"
                           << "q");
}

void tst_genkeypad::shiftInvertsTheReportedTextOfAnyKey()
{
    CGenKeyPad grid;
    const Codes codes = Codes() << Qt::Key_Shift << Qt::Key_Delete << Qt::Key_Shift << Key_DelAll
                                << Qt::Key_Shift << Qt::Key_Space << Qt::Key_Shift << Qt::Key_1
                                << Qt::Key_Shift << Qt::Key_Backspace;
    QCOMPARE(reported(&grid, codes), QStringList() << "Shift"
                                                   << "DEL"
                                                   << "Shift"
                                                   << "DEL ALL"
                                                   << "Shift"
                                                   << "SPACE"
                                                   << "Shift"
                                                   << "1"
                                                   << "Shift"
                                                   << "");
    // "Caps" takes effect first, and the case is inverted against the new state.
    QCOMPARE(reported(&grid, Codes() << Qt::Key_Shift << Qt::Key_CapsLock << Qt::Key_Q),
             QStringList() << "Shift"
                           << "caps"
                           << "Q");
    QCOMPARE(reported(&grid, Codes() << Qt::Key_Shift << Qt::Key_Space), QStringList() << "Shift"
                                                                                       << "space");
}

void tst_genkeypad::shiftDoesNotChangeWhatIsShown()
{
    CGenKeyPad grid;
    const QStringList before = testing::textsOf(keysOf(&grid));
    reported(&grid, Codes() << Qt::Key_Shift << Qt::Key_Q);
    QCOMPARE(testing::textsOf(keysOf(&grid)), before);
}

void tst_genkeypad::capsShowsUpperCase()
{
    CGenKeyPad grid;
    touch(keyOf(&grid, Qt::Key_CapsLock));
    QCOMPARE(letterTexts(grid), QString(upperLetters));
    QCOMPARE(keyOf(&grid, Qt::Key_Q)->getKeyText(), QString("q"));
    QCOMPARE(reported(&grid, Codes() << Qt::Key_Q), QStringList() << "Q");
    touch(keyOf(&grid, Qt::Key_CapsLock));
    QCOMPARE(letterTexts(grid), QString(lowerLetters));
}

void tst_genkeypad::capsDoesNothingAmongSymbols()
{
    CGenKeyPad grid;
    touch(keyOf(&grid, Key_Symbol));
    QCOMPARE(reported(&grid, Codes() << Qt::Key_CapsLock), QStringList() << "Caps");
    QCOMPARE(letterTexts(grid), QString(symbols));
    QCOMPARE(testing::selectedKeys(keysOf(&grid)), QList<int>() << Qt::Key_CapsLock);
    touch(keyOf(&grid, Key_Symbol));
    QCOMPARE(letterTexts(grid), QString(lowerLetters));
}

void tst_genkeypad::symbolShowsTheSymbols()
{
    CGenKeyPad grid;
    QCOMPARE(reported(&grid, Codes() << Key_Symbol << Qt::Key_Q), QStringList() << "Symbol"
                                                                                << "!");
    QCOMPARE(letterTexts(grid), QString(symbols));
    QCOMPARE(reported(&grid, Codes() << Key_Symbol << Qt::Key_Q), QStringList() << "Symbol"
                                                                                << "q");
    QCOMPARE(letterTexts(grid), QString(lowerLetters));
}

void tst_genkeypad::symbolGoesBackToTheCaseOfCaps()
{
    CGenKeyPad grid;
    reported(&grid, Codes() << Qt::Key_CapsLock << Key_Symbol);
    QCOMPARE(letterTexts(grid), QString(symbols));
    touch(keyOf(&grid, Key_Symbol));
    QCOMPARE(letterTexts(grid), QString(upperLetters));
}

void tst_genkeypad::shiftLeavesSymbols()
{
    CGenKeyPad grid;
    QCOMPARE(reported(&grid, Codes() << Key_Symbol << Qt::Key_Shift << Qt::Key_Q << Qt::Key_G),
             QStringList() << "Symbol"
                           << "Shift"
                           << "!"
                           << "\"");
}

void tst_genkeypad::otherKeysAreUnaffected()
{
    CGenKeyPad grid;
    const Codes codes = Codes() << Qt::Key_1 << Qt::Key_0 << Qt::Key_At << Key_Point << Key_DelAll;
    const QStringList texts = QStringList() << "1"
                                            << "0"
                                            << "@"
                                            << "."
                                            << "Del All";
    QCOMPARE(reported(&grid, codes), texts);
    touch(keyOf(&grid, Qt::Key_CapsLock));
    QCOMPARE(reported(&grid, codes), texts);
    touch(keyOf(&grid, Key_Symbol));
    QCOMPARE(reported(&grid, codes), texts);
}

void tst_genkeypad::nullPressKeepsAPendingShift()
{
    CGenKeyPad grid;
    touch(keyOf(&grid, Qt::Key_Shift));
    grid.keyPress(nullptr);
    QCOMPARE(reported(&grid, Codes() << Qt::Key_Q), QStringList() << "Q");
}

void tst_genkeypad::appendedLetterFollowsCapsAndSymbol()
{
    CGenKeyPad grid;
    CKeyButton key;
    key.setKey(Qt::Key_Z);
    key.setKeyText("zet");
    key.setSymbol("Sym");
    grid.appendKey(&key);
    touch(keyOf(&grid, Qt::Key_CapsLock));
    QCOMPARE(key.getText(), QString("ZET"));
    touch(keyOf(&grid, Key_Symbol));
    QCOMPARE(key.getText(), QString("SYM"));
    touch(keyOf(&grid, Key_Symbol));
    touch(keyOf(&grid, Qt::Key_CapsLock));
    touch(keyOf(&grid, Key_Symbol));
    QCOMPARE(key.getText(), QString("sym"));
}

void tst_genkeypad::everyGridStartsAnew()
{
    CGenKeyPad first;
    reported(&first, Codes() << Qt::Key_CapsLock << Key_Symbol << Qt::Key_Shift);
    CGenKeyPad second;
    QCOMPARE(letterTexts(second), QString(lowerLetters));
    QCOMPARE(reported(&second, Codes() << Qt::Key_Q), QStringList() << "q");
}

QTEST_MAIN(tst_genkeypad)
#include "tst_genkeypad.moc"
