// What each key does to the entry.

#include "keypad/keypadedit.h"
#include "support/keypads.h"
#include "support/rows.h"

#include <QSignalSpy>
#include <QTextCursor>

using testing::type;

namespace
{

CKeyPadEdit* editOf(const QWidget* dialog)
{
    return dialog->findChild<CKeyPadEdit*>();
}

void setCursor(const CSoftKeyPad& dialog, int position)
{
    QTextCursor cursor = editOf(&dialog)->textCursor();
    cursor.setPosition(position);
    editOf(&dialog)->setTextCursor(cursor);
}

int cursorOf(const CSoftKeyPad& dialog)
{
    return editOf(&dialog)->textCursor().position();
}

bool isRightAligned(const CSoftKeyPad& dialog)
{
    return editOf(&dialog)->alignment() & Qt::AlignRight;
}

/// Whether a dialog of this type inserts the key into an empty entry.
bool accepts(int number, const QString& text, int code)
{
    CSoftKeyPad dialog(type(number));
    dialog.changedkey(text, code);
    return dialog.getInput() == text && isRightAligned(dialog);
}

/// Which of the types insert the key, as a mask of bits by the type's number.
int acceptingTypes(const QString& text, int code)
{
    int mask = 0;
    for (int number = 0; number < 6; ++number)
        mask |= accepts(number, text, code) ? 1 << number : 0;
    return mask;
}

const int general = 1 << 0 | 1 << 5; // and unknown types
const int hexadecimal = 1 << 1;
const int binary = 1 << 2;
const int decimal = 1 << 3;
const int floating = 1 << 4;

} // namespace

class tst_softkeypad_entry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysOfTheGridItself();
    void deleteRemovesTheCharacterAfterTheCursor();
    void backspaceRemovesTheCharacterBeforeTheCursor();
    void deletingAtTheEndsDoesNothing();
    void deletingRemovesASelection();
    void deleteAllClears();
    void spaceInsertsABlankInEveryType();
    void signToggles_data();
    void signToggles();
    void signOfAnEntryOfTwoLines();
    void signInEveryType();
    void filteredInsertion_data();
    void filteredInsertion();
    void emptyTextIsIgnored();
    void wholeTextIsInserted();
    void insertsAtTheCursor();
    void insertingReplacesASelection();
    void refusedKeyKeepsTheSelection();
    void textIsInsertedRightAligned();
    void applyAccepts();
    void otherKeysKeepTheDialogOpen();
    void keysOfTheGridReachTheEntry();
    void minusOfTheHexadecimalGridIsRefused();
    void binaryGridWithSign();
};

void tst_softkeypad_entry::keysOfTheGridItself()
{
    const int codes[] = {Qt::Key_CapsLock, Qt::Key_Shift, Key_Symbol};
    for (int number = 0; number < 6; ++number) {
        CSoftKeyPad dialog(type(number));
        dialog.setText("Title", "12");
        setCursor(dialog, 1);
        for (int i = 0; i < 3; ++i)
            dialog.changedkey("5", codes[i]);
        QCOMPARE(dialog.getInput(), QString("12"));
        QCOMPARE(cursorOf(dialog), 1);
    }
}

void tst_softkeypad_entry::deleteRemovesTheCharacterAfterTheCursor()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    dialog.setText("Title", "123");
    setCursor(dialog, 1);
    dialog.changedkey("Del", Qt::Key_Delete);
    QCOMPARE(dialog.getInput(), QString("13"));
    QCOMPARE(cursorOf(dialog), 1);
}

void tst_softkeypad_entry::backspaceRemovesTheCharacterBeforeTheCursor()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    dialog.setText("Title", "123");
    setCursor(dialog, 2);
    dialog.changedkey("", Qt::Key_Backspace);
    QCOMPARE(dialog.getInput(), QString("13"));
    QCOMPARE(cursorOf(dialog), 1);
}

void tst_softkeypad_entry::deletingAtTheEndsDoesNothing()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    dialog.setText("Title", "12");
    dialog.changedkey("Del", Qt::Key_Delete);
    QCOMPARE(dialog.getInput(), QString("12"));
    setCursor(dialog, 0);
    dialog.changedkey("", Qt::Key_Backspace);
    QCOMPARE(dialog.getInput(), QString("12"));
    dialog.clearInput();
    dialog.changedkey("Del", Qt::Key_Delete);
    dialog.changedkey("", Qt::Key_Backspace);
    QCOMPARE(dialog.getInput(), QString());
}

void tst_softkeypad_entry::deletingRemovesASelection()
{
    const int codes[] = {Qt::Key_Delete, Qt::Key_Backspace};
    for (int i = 0; i < 2; ++i) {
        CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
        dialog.setText("Title", "1234");
        QTextCursor cursor = editOf(&dialog)->textCursor();
        cursor.setPosition(1);
        cursor.setPosition(3, QTextCursor::KeepAnchor);
        editOf(&dialog)->setTextCursor(cursor);
        dialog.changedkey(QString(), codes[i]);
        QCOMPARE(dialog.getInput(), QString("14"));
    }
}

void tst_softkeypad_entry::deleteAllClears()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_GENERAL);
    dialog.setText("Title", "some text");
    setCursor(dialog, 4);
    dialog.changedkey("Del All", Key_DelAll);
    QCOMPARE(dialog.getInput(), QString());
    QVERIFY(isRightAligned(dialog));
}

void tst_softkeypad_entry::spaceInsertsABlankInEveryType()
{
    for (int number = 0; number < 6; ++number) {
        CSoftKeyPad dialog(type(number));
        dialog.setText("Title", "12");
        setCursor(dialog, 1);
        dialog.changedkey("SPACE", Qt::Key_Space);
        QCOMPARE(dialog.getInput(), QString("1 2"));
    }
}

void tst_softkeypad_entry::signToggles_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("number") << "12"
                            << "-12";
    QTest::newRow("negative number") << "-12"
                                     << "12";
    QTest::newRow("nothing") << ""
                             << "-";
    QTest::newRow("lone minus") << "-"
                                << "";
    QTest::newRow("two") << "--1"
                         << "-1";
    QTest::newRow("blank before") << " -1"
                                  << "- -1";
    QTest::newRow("typographic minus")
        << QString(QChar(0x2212)) + "1" << QString("-") + QChar(0x2212) + "1";
}

void tst_softkeypad_entry::signToggles()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    dialog.show();
    dialog.setText("Title", before);
    setCursor(dialog, 0);
    dialog.changedkey("+/-", Key_PlusMinus);
    QCOMPARE(dialog.getInput(), after);
    QCOMPARE(cursorOf(dialog), after.size());
    QVERIFY(isRightAligned(dialog));
}

void tst_softkeypad_entry::signOfAnEntryOfTwoLines()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_GENERAL);
    dialog.show();
    dialog.setText("Title", "one\ntwo");
    dialog.changedkey("+/-", Key_PlusMinus);
    QCOMPARE(dialog.getInput(), QString("-one\ntwo"));
    QCOMPARE(cursorOf(dialog), 4); // the end of the line, not of the entry
}

void tst_softkeypad_entry::signInEveryType()
{
    for (int number = 0; number < 6; ++number) {
        CSoftKeyPad dialog(type(number));
        dialog.changedkey(QString(), Key_PlusMinus);
        QCOMPARE(dialog.getInput(), QString("-"));
    }
}

void tst_softkeypad_entry::filteredInsertion_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("types");
    const int digits = general | hexadecimal | decimal | floating;
    QTest::newRow("0") << "0" << 0x30 << (digits | binary);
    QTest::newRow("1") << "1" << 0x31 << (digits | binary);
    QTest::newRow("2") << "2" << 0x32 << digits;
    QTest::newRow("9") << "9" << 0x39 << digits;
    QTest::newRow("code above the digits") << "9" << 0x3a << (general | decimal | floating);
    QTest::newRow("code below the digits") << "0" << 0x2f << (general | decimal | floating);
    QTest::newRow("A") << "A" << 0x41 << (general | hexadecimal);
    QTest::newRow("F") << "F" << 0x46 << (general | hexadecimal);
    QTest::newRow("G") << "G" << 0x47 << general;
    QTest::newRow("code below the letters") << "@" << 0x40 << general;
    QTest::newRow("minus") << "-" << 0x2d << general;
    QTest::newRow("point") << "." << 0x200000b << (general | decimal | floating);
    QTest::newRow("point by text only") << "." << 0 << (general | decimal | floating);
    QTest::newRow("any text with A's code") << "zz" << 0x41 << (general | hexadecimal);
    QTest::newRow("any text with 1's code") << "zz" << 0x31 << (general | hexadecimal);
    QTest::newRow("2 with 1's code") << "2" << 0x31 << (digits | binary);
    QTest::newRow("digit first") << "5 apples" << 0 << (general | decimal | floating);
    QTest::newRow("digit later") << "a5" << 0 << general;
    QTest::newRow("superscript two") << QString(QChar(0xb2)) << 0 << (general | decimal | floating);
    QTest::newRow("comma") << "," << 0x2c << general;
}

void tst_softkeypad_entry::filteredInsertion()
{
    QFETCH(QString, text);
    QFETCH(int, code);
    QFETCH(int, types);
    QCOMPARE(acceptingTypes(text, code), types);
}

void tst_softkeypad_entry::emptyTextIsIgnored()
{
    for (int number = 0; number < 6; ++number) {
        CSoftKeyPad dialog(type(number));
        dialog.setText("Title", "1");
        editOf(&dialog)->selectAll();
        dialog.changedkey(QString(), Qt::Key_1);
        dialog.changedkey(QString(), Key_Point);
        QCOMPARE(dialog.getInput(), QString("1"));
    }
}

void tst_softkeypad_entry::wholeTextIsInserted()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    dialog.changedkey("12ab", Qt::Key_1);
    QCOMPARE(dialog.getInput(), QString("12ab"));
}

void tst_softkeypad_entry::insertsAtTheCursor()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    dialog.setText("Title", "14");
    setCursor(dialog, 1);
    dialog.changedkey("2", Qt::Key_2);
    dialog.changedkey("3", Qt::Key_3);
    QCOMPARE(dialog.getInput(), QString("1234"));
    QCOMPARE(cursorOf(dialog), 3);
}

void tst_softkeypad_entry::insertingReplacesASelection()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    dialog.setText("Title", "14");
    editOf(&dialog)->selectAll();
    dialog.changedkey("2", Qt::Key_2);
    QCOMPARE(dialog.getInput(), QString("2"));
}

void tst_softkeypad_entry::refusedKeyKeepsTheSelection()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    dialog.setText("Title", "14");
    editOf(&dialog)->selectAll();
    dialog.changedkey("x", Qt::Key_X);
    QCOMPARE(dialog.getInput(), QString("14"));
    QCOMPARE(editOf(&dialog)->textCursor().selectedText(), QString("14"));
}

void tst_softkeypad_entry::textIsInsertedRightAligned()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    editOf(&dialog)->setAlignment(Qt::AlignLeft);
    dialog.changedkey("x", Qt::Key_X);
    QVERIFY(!isRightAligned(dialog));
    dialog.changedkey("1", Qt::Key_1);
    QVERIFY(isRightAligned(dialog));
}

void tst_softkeypad_entry::applyAccepts()
{
    for (int number = 0; number < 6; ++number) {
        CSoftKeyPad dialog(type(number));
        dialog.setText("Title", "anything");
        dialog.show();
        QSignalSpy accepted(&dialog, SIGNAL(accepted()));
        QSignalSpy rejected(&dialog, SIGNAL(rejected()));
        dialog.changedkey("Apply", Key_Apply);
        QCOMPARE(accepted.count(), 1);
        QCOMPARE(rejected.count(), 0);
        QCOMPARE(dialog.result(), static_cast<int>(QDialog::Accepted));
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.getInput(), QString("anything"));
    }
}

void tst_softkeypad_entry::otherKeysKeepTheDialogOpen()
{
    for (int number = 0; number < 5; ++number) {
        CSoftKeyPad dialog(type(number));
        dialog.show();
        QSignalSpy finished(&dialog, SIGNAL(finished(int)));
        const QList<CKeyButton*> keys = testing::keysOf(&dialog);
        for (int i = 0; i < keys.size(); ++i) {
            const testing::InRow inRow(i);
            if (keys.at(i)->key() != Key_Apply)
                dialog.changedkey(keys.at(i)->getText(), keys.at(i)->key());
        }
        QCOMPARE(finished.count(), 0);
        QVERIFY(dialog.isVisible());
    }
}

void tst_softkeypad_entry::keysOfTheGridReachTheEntry()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_GENERAL);
    const int codes[] = {Qt::Key_Shift, Qt::Key_H,  Qt::Key_I,        Qt::Key_Space, Key_Symbol,
                         Qt::Key_Q,     Key_Symbol, Qt::Key_1,        Qt::Key_At,    Key_Point,
                         Qt::Key_Z,     Qt::Key_Z,  Qt::Key_Backspace};
    for (size_t i = 0; i < sizeof codes / sizeof codes[0]; ++i)
        testing::touch(testing::keyOf(&dialog, codes[i]));
    QCOMPARE(dialog.getInput(), QString("Hi !1@.z"));
}

void tst_softkeypad_entry::minusOfTheHexadecimalGridIsRefused()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_HEX);
    dialog.setText("Title", "1F");
    CKeyButton* minus = testing::keyOf(&dialog, Qt::Key_Minus);
    testing::touch(minus);
    QCOMPARE(dialog.getInput(), QString("1F"));
    QVERIFY(minus->isSelected());
}

void tst_softkeypad_entry::binaryGridWithSign()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_BINARY);
    dialog.show();
    const int codes[] = {Qt::Key_1, Qt::Key_0, Key_Point, Key_PlusMinus, Qt::Key_1};
    for (size_t i = 0; i < sizeof codes / sizeof codes[0]; ++i)
        testing::touch(testing::keyOf(&dialog, codes[i]));
    QCOMPARE(dialog.getInput(), QString("-101"));
}

QTEST_MAIN(tst_softkeypad_entry)
#include "tst_softkeypad_entry.moc"
