#include "keypad/abstractkeypad.h"
#include "support/keypads.h"
#include "widgets/lineedit.h"
#include "widgets/toptitlearea.h"

#include <QApplication>
#include <QSignalSpy>

using testing::keyOf;
using testing::KeyPadUser;
using testing::touch;
using testing::type;

namespace
{

/// What the keypad that a touch of \a edit opens is like; empty when none opens.
QByteArray keyPadOf(CLineEdit* edit)
{
    QByteArray kind;
    KeyPadUser user([&kind](CSoftKeyPad* dialog) {
        CAbstractKeyPad* grid = dialog->findChild<CAbstractKeyPad*>();
        kind = grid->metaObject()->className();
        if (kind != "CNumKeyPad")
            return;
        kind += keyOf(grid, Qt::Key_2)->isEnabled() ? "" : " binary";
        kind += keyOf(grid, Key_PlusMinus)->isEnabled() ? "" : " unsigned";
    });
    touch(edit);
    testing::deleteDeferred();
    return kind;
}

/// Touches \a edit, and \a codes of the keypad that opens.
int touchKeys(CLineEdit* edit, const QList<int>& codes)
{
    KeyPadUser user([&codes](CSoftKeyPad* dialog) {
        for (int i = 0; i < codes.size(); ++i)
            touch(keyOf(dialog, codes.at(i)));
    });
    touch(edit);
    return user.opened();
}

} // namespace

class tst_lineedit_entry : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void noteChange(const QString& text)
    {
        m_signals << "changed " + text;
    }

    void noteEdit(const QString& text)
    {
        m_signals << "edited " + text;
    }

    void deleteSender()
    {
        delete sender();
    }

private Q_SLOTS:
    void init();
    void cleanup();

    void touchOpensTheKeypad();
    void pressAloneOpensNothing();
    void keypadOfEachType_data();
    void keypadOfEachType();
    void resultIsStoredAndAnnounced();
    void unchangedResultIsAnnouncedToo();
    void resultIsCutToTheLongestText();
    void withoutRangeNothingIsChecked();
    void integerRangeIsChecked();
    void textRangeSwitchesTheIntegerRangeOn();
    void textRangeLeavesTheIntegerBounds();
    void keyboardOpensNothing();
    void inactiveKeypadOpensNothing();
    void readOnlyFieldOpensTheKeypad();
    void disabledFieldOpensNothing();
    void fieldDeletedWhileTheKeypadIsOpen_data();
    void fieldDeletedWhileTheKeypadIsOpen();
    void slotMayDeleteTheField();

private:
    QStringList m_signals;
};

void tst_lineedit_entry::init()
{
    CWidgetStyle::setDeviceAvailable(CWidgetStyle::DeviceKeyboard, false);
    m_signals.clear();
}

void tst_lineedit_entry::cleanup()
{
    testing::deleteDeferred();
    QCOMPARE(testing::livingWidgets<CLineEdit>(), 0);
    QCOMPARE(testing::livingWidgets<CSoftKeyPad>(), 0);
}

void tst_lineedit_entry::touchOpensTheKeypad()
{
    CLineEdit edit;
    edit.setTitle("Speed");
    edit.setText("12");
    QString title;
    QString text;
    QWidget* parent = nullptr;
    KeyPadUser user([&](CSoftKeyPad* dialog) {
        title = dialog->findChild<CTopTitleArea*>()->title();
        text = dialog->getInput();
        parent = dialog->parentWidget();
    });
    touch(&edit);
    QCOMPARE(user.opened(), 1);
    QCOMPARE(title, QString("Speed"));
    QCOMPARE(text, QString("12"));
    QCOMPARE(parent, static_cast<QWidget*>(&edit));
}

void tst_lineedit_entry::pressAloneOpensNothing()
{
    CLineEdit edit;
    QSignalSpy edited(&edit, SIGNAL(textEdited(QString)));
    testing::press(&edit);
    QCOMPARE(edited.count(), 0);
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(edit.findChildren<CSoftKeyPad*>().isEmpty());
}

void tst_lineedit_entry::keypadOfEachType_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("kind");
    QTest::newRow("general") << 0 << QByteArray("CGenKeyPad");
    QTest::newRow("hexadecimal") << 1 << QByteArray("CHexKeyPad");
    QTest::newRow("binary") << 2 << QByteArray("CNumKeyPad binary");
    QTest::newRow("decimal") << 3 << QByteArray("CNumKeyPad");
    QTest::newRow("float") << 4 << QByteArray("CNumKeyPad unsigned");
    QTest::newRow("above") << 5 << QByteArray("CGenKeyPad");
    QTest::newRow("below") << -1 << QByteArray("CGenKeyPad");
}

void tst_lineedit_entry::keypadOfEachType()
{
    QFETCH(int, number);
    QFETCH(QByteArray, kind);
    CLineEdit edit;
    QCOMPARE(keyPadOf(&edit), QByteArray("CGenKeyPad"));
    edit.setSKPType(CKeyPadFactory::SKP_HEX);
    edit.setSKPType(type(number));
    QCOMPARE(keyPadOf(&edit), kind);
}

void tst_lineedit_entry::resultIsStoredAndAnnounced()
{
    CLineEdit edit;
    edit.setText("1");
    edit.setSKPType(CKeyPadFactory::SKP_DECIMAL);
    connect(&edit, SIGNAL(textChanged(QString)), SLOT(noteChange(QString)));
    connect(&edit, SIGNAL(textEdited(QString)), SLOT(noteEdit(QString)));
    QCOMPARE(touchKeys(&edit, QList<int>() << Qt::Key_2 << Qt::Key_3 << Key_Apply), 1);
    QCOMPARE(edit.text(), QString("123"));
    QCOMPARE(m_signals, QStringList() << "changed 123"
                                      << "edited 123");
}

void tst_lineedit_entry::unchangedResultIsAnnouncedToo()
{
    CLineEdit edit;
    edit.setText("text");
    edit.setCursorPosition(1);
    connect(&edit, SIGNAL(textChanged(QString)), SLOT(noteChange(QString)));
    connect(&edit, SIGNAL(textEdited(QString)), SLOT(noteEdit(QString)));
    QCOMPARE(touchKeys(&edit, QList<int>()), 1);
    QCOMPARE(edit.text(), QString("text"));
    QCOMPARE(m_signals, QStringList() << "edited text");
    QCOMPARE(edit.cursorPosition(), 4); // the text was written anew
}

void tst_lineedit_entry::resultIsCutToTheLongestText()
{
    CLineEdit edit;
    edit.setMaxLength(2);
    QSignalSpy edited(&edit, SIGNAL(textEdited(QString)));
    touchKeys(&edit, QList<int>() << Qt::Key_A << Qt::Key_B << Qt::Key_C);
    QCOMPARE(edit.text(), QString("ab"));
    QCOMPARE(edited.count(), 1);
    QCOMPARE(edited.at(0).at(0).toString(), QString("ab"));
}

void tst_lineedit_entry::withoutRangeNothingIsChecked()
{
    CLineEdit edit;
    edit.setSKPType(CKeyPadFactory::SKP_DECIMAL);
    edit.setText("5");
    touchKeys(&edit, QList<int>() << Qt::Key_5 << Key_Apply);
    QCOMPARE(edit.text(), QString("55"));
}

void tst_lineedit_entry::integerRangeIsChecked()
{
    CLineEdit edit;
    edit.setSKPType(CKeyPadFactory::SKP_DECIMAL);
    edit.setRange(10, 50);
    edit.setText("5");
    touchKeys(&edit, QList<int>() << Qt::Key_5 << Key_Apply);
    QCOMPARE(edit.text(), QString("50")); // corrected, then rejected
    edit.setRange(-7, -7);
    touchKeys(&edit, QList<int>() << Key_Apply << Key_Apply);
    QCOMPARE(edit.text(), QString("-7"));
}

void tst_lineedit_entry::textRangeSwitchesTheIntegerRangeOn()
{
    CLineEdit edit;
    edit.setSKPType(CKeyPadFactory::SKP_DECIMAL);
    edit.setRange("1", "9");
    edit.setText("5");
    touchKeys(&edit, QList<int>() << Key_Apply);
    QCOMPARE(edit.text(), QString("0"));
}

void tst_lineedit_entry::textRangeLeavesTheIntegerBounds()
{
    CLineEdit edit;
    edit.setSKPType(CKeyPadFactory::SKP_DECIMAL);
    edit.setRange(20, 30);
    edit.setRange("1", "9");
    edit.setText("5");
    touchKeys(&edit, QList<int>() << Key_Apply);
    QCOMPARE(edit.text(), QString("20"));
}

void tst_lineedit_entry::keyboardOpensNothing()
{
    CLineEdit edit;
    edit.setText("text");
    QSignalSpy edited(&edit, SIGNAL(textEdited(QString)));
    QSignalSpy changed(&edit, SIGNAL(textChanged(QString)));
    CWidgetStyle::setDeviceAvailable(CWidgetStyle::DeviceKeyboard, true);
    touch(&edit);
    QCOMPARE(edited.count(), 0);
    QCOMPARE(changed.count(), 0);
    QVERIFY(edit.findChildren<CSoftKeyPad*>().isEmpty());
    CWidgetStyle::setDeviceAvailable(CWidgetStyle::DeviceKeyboard, false);
    CWidgetStyle::setDeviceAvailable(CWidgetStyle::DeviceMouse, true); // is no keyboard
    QCOMPARE(keyPadOf(&edit), QByteArray("CGenKeyPad"));
    CWidgetStyle::setDeviceAvailable(CWidgetStyle::DeviceMouse, false);
}

void tst_lineedit_entry::inactiveKeypadOpensNothing()
{
    CLineEdit edit;
    QSignalSpy edited(&edit, SIGNAL(textEdited(QString)));
    edit.setSKPActive(false);
    QVERIFY(!edit.isSKPActive());
    touch(&edit);
    QCOMPARE(edited.count(), 0);
    QVERIFY(edit.findChildren<CSoftKeyPad*>().isEmpty());
    edit.setSKPActive(true);
    QCOMPARE(keyPadOf(&edit), QByteArray("CGenKeyPad"));
    QCOMPARE(edited.count(), 1);
}

void tst_lineedit_entry::readOnlyFieldOpensTheKeypad()
{
    CLineEdit edit;
    edit.setReadOnly(true);
    QSignalSpy edited(&edit, SIGNAL(textEdited(QString)));
    QCOMPARE(touchKeys(&edit, QList<int>() << Qt::Key_A), 1);
    QCOMPARE(edit.text(), QString("a"));
    QCOMPARE(edited.count(), 1);
}

void tst_lineedit_entry::disabledFieldOpensNothing()
{
    CLineEdit edit;
    edit.setEnabled(false);
    QSignalSpy edited(&edit, SIGNAL(textEdited(QString)));
    QMouseEvent release(QEvent::MouseButtonRelease, QPoint(5, 5), QPoint(5, 5), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&edit, &release);
    QCOMPARE(edited.count(), 0);
    QVERIFY(edit.findChildren<CSoftKeyPad*>().isEmpty());
}

void tst_lineedit_entry::fieldDeletedWhileTheKeypadIsOpen_data()
{
    QTest::addColumn<bool>("deletesWindow");
    QTest::addColumn<bool>("later");
    QTest::newRow("the field") << false << false;
    QTest::newRow("its window") << true << false;
    QTest::newRow("the field, after the keypad") << false << true;
    QTest::newRow("its window, after the keypad") << true << true;
}

void tst_lineedit_entry::fieldDeletedWhileTheKeypadIsOpen()
{
    QFETCH(bool, deletesWindow);
    QFETCH(bool, later);
    const QPointer<QWidget> window(new QWidget);
    const QPointer<CLineEdit> edit(new CLineEdit(window));
    window->show();
    QVERIFY(testcompat::waitForWindow(window));
    connect(edit, SIGNAL(textEdited(QString)), SLOT(noteEdit(QString)));
    KeyPadUser user([&](CSoftKeyPad* dialog) {
        QWidget* victim = deletesWindow ? window.data() : edit.data();
        if (later)
            victim->deleteLater();
        else
            delete victim;
        if (later)
            touch(keyOf(dialog, Key_Apply));
    });
    testing::press(edit);
    testing::release(edit);
    QCOMPARE(user.opened(), 1);
    QCOMPARE(edit.isNull(), !later);
    QCOMPARE(m_signals.size(), later ? 1 : 0);
    testing::deleteDeferred();
    QVERIFY(edit.isNull());
    delete window;
}

void tst_lineedit_entry::slotMayDeleteTheField()
{
    const QPointer<CLineEdit> edit(new CLineEdit);
    connect(edit, SIGNAL(textEdited(QString)), SLOT(deleteSender()));
    KeyPadUser user([](CSoftKeyPad* dialog) { touch(keyOf(dialog, Key_Apply)); });
    testing::press(edit);
    testing::release(edit);
    QCOMPARE(user.opened(), 1);
    QVERIFY(edit.isNull());
}

QTEST_MAIN(tst_lineedit_entry)
#include "tst_lineedit_entry.moc"
