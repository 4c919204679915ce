#include "keypad/abstractkeypad.h"
#include "support/keypads.h"
#include "support/stylefile.h"
#include "widgets/lineedit.h"
#include "widgets/toptitlearea.h"

#include <QApplication>
#include <QSignalSpy>

using testing::keyOf;
using testing::KeyPadUser;
using testing::touch;

namespace
{

CKeyPadFactory::KeyPadType type(int number)
{
    return static_cast<CKeyPadFactory::KeyPadType>(number);
}

/// A plain field that looks as the one under test without its frame.
QImage renderPlain(const CLineEdit& edit)
{
    QLineEdit plain;
    plain.setStyleSheet("border: 0px;");
    plain.setFont(edit.font());
    plain.setFixedSize(edit.size());
    plain.setText(edit.text());
    return testing::render(&plain);
}

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

/// Notes the style sheets that a field has when its font changes.
class SheetsOfFontChanges : public QObject
{
public:
    explicit SheetsOfFontChanges(CLineEdit* edit) : m_edit(edit)
    {
        edit->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == m_edit && event->type() == QEvent::FontChange)
            m_sheets.append(m_edit->styleSheet());
        return false;
    }

    QStringList sheets() const
    {
        return m_sheets;
    }

private:
    CLineEdit* m_edit;
    QStringList m_sheets;
};

template <typename Class>
int livingWidgets()
{
    int count = 0;
    const QWidgetList widgets = testcompat::allWidgets();
    for (int i = 0; i < widgets.size(); ++i)
        count += qobject_cast<Class*>(widgets.at(i)) ? 1 : 0;
    return count;
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

class tst_lineedit : public QObject
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

    void newFieldHasItsDefaults();
    void frameOfOnePixel_data();
    void frameOfOnePixel();
    void frameCanBeHidden();
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
    void plainFieldOtherwise();
    void fontGoesThroughTheStyleSheet();
    void ownStyleSheetIsKeptByTheFont();
    void styleRecord();
    void styleTableIsAskedOnConstruction();
    void autoStyleOffIgnoresTheRecord();
    void fieldDeletedWhileTheKeypadIsOpen_data();
    void fieldDeletedWhileTheKeypadIsOpen();
    void slotMayDeleteTheField();

private:
    QStringList m_signals;
};

void tst_lineedit::init()
{
    CWidgetStyle::setDeviceAvailable(CWidgetStyle::DeviceKeyboard, false);
    m_signals.clear();
}

void tst_lineedit::cleanup()
{
    testing::deleteDeferred();
    QCOMPARE(livingWidgets<CLineEdit>(), 0);
    QCOMPARE(livingWidgets<CSoftKeyPad>(), 0);
}

void tst_lineedit::newFieldHasItsDefaults()
{
    QWidget parent;
    CLineEdit edit(&parent);
    QCOMPARE(edit.parent(), static_cast<QObject*>(&parent));
    QCOMPARE(edit.height(), 28);
    QCOMPARE(edit.minimumHeight(), 28);
    QCOMPARE(edit.maximumHeight(), 28);
    QCOMPARE(edit.styleSheet(), QString("border: 0px;"));
    QVERIFY(edit.isSKPActive());
    QVERIFY(edit.isAutoStyleEnabled());
    QVERIFY(edit.text().isEmpty());
    QVERIFY(!CLineEdit().parent());
}

void tst_lineedit::frameOfOnePixel_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << 120 << "";
    QTest::newRow("text") << 121 << "Some text";
    QTest::newRow("text beyond the edge") << 40 << "Some long text";
    QTest::newRow("narrow") << 2 << "";
}

void tst_lineedit::frameOfOnePixel()
{
    QFETCH(int, width);
    QFETCH(QString, text);
    CLineEdit edit;
    edit.setFixedWidth(width);
    edit.setText(text);
    QImage expected = renderPlain(edit);
    const QRgb grey = qRgb(0xd4, 0xd4, 0xd4);
    for (int x = 0; x < width; ++x) {
        expected.setPixel(x, 0, grey);
        expected.setPixel(x, 27, grey);
    }
    for (int y = 0; y < 28; ++y) {
        expected.setPixel(0, y, grey);
        expected.setPixel(width - 1, y, grey);
    }
    CWIDGET_COMPARE_IMAGES(testing::render(&edit), expected);
}

void tst_lineedit::frameCanBeHidden()
{
    CLineEdit edit;
    edit.setFixedWidth(100);
    edit.show();
    QVERIFY(testcompat::waitForWindow(&edit));
    QVERIFY(testing::repaints(&edit, [&edit] { edit.setBorderVisible(false); }));
    edit.hide();
    CWIDGET_COMPARE_IMAGES(testing::render(&edit), renderPlain(edit));
    edit.setBorderVisible(true);
    QCOMPARE(testing::render(&edit).pixel(50, 0), qRgb(0xd4, 0xd4, 0xd4));
}

void tst_lineedit::touchOpensTheKeypad()
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

void tst_lineedit::pressAloneOpensNothing()
{
    CLineEdit edit;
    QSignalSpy edited(&edit, SIGNAL(textEdited(QString)));
    testing::press(&edit);
    QCOMPARE(edited.count(), 0);
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(edit.findChildren<CSoftKeyPad*>().isEmpty());
}

void tst_lineedit::keypadOfEachType_data()
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

void tst_lineedit::keypadOfEachType()
{
    QFETCH(int, number);
    QFETCH(QByteArray, kind);
    CLineEdit edit;
    QCOMPARE(keyPadOf(&edit), QByteArray("CGenKeyPad"));
    edit.setSKPType(CKeyPadFactory::SKP_HEX);
    edit.setSKPType(type(number));
    QCOMPARE(keyPadOf(&edit), kind);
}

void tst_lineedit::resultIsStoredAndAnnounced()
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

void tst_lineedit::unchangedResultIsAnnouncedToo()
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

void tst_lineedit::resultIsCutToTheLongestText()
{
    CLineEdit edit;
    edit.setMaxLength(2);
    QSignalSpy edited(&edit, SIGNAL(textEdited(QString)));
    touchKeys(&edit, QList<int>() << Qt::Key_A << Qt::Key_B << Qt::Key_C);
    QCOMPARE(edit.text(), QString("ab"));
    QCOMPARE(edited.count(), 1);
    QCOMPARE(edited.at(0).at(0).toString(), QString("ab"));
}

void tst_lineedit::withoutRangeNothingIsChecked()
{
    CLineEdit edit;
    edit.setSKPType(CKeyPadFactory::SKP_DECIMAL);
    edit.setText("5");
    touchKeys(&edit, QList<int>() << Qt::Key_5 << Key_Apply);
    QCOMPARE(edit.text(), QString("55"));
}

void tst_lineedit::integerRangeIsChecked()
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

void tst_lineedit::textRangeSwitchesTheIntegerRangeOn()
{
    CLineEdit edit;
    edit.setSKPType(CKeyPadFactory::SKP_DECIMAL);
    edit.setRange("1", "9");
    edit.setText("5");
    touchKeys(&edit, QList<int>() << Key_Apply);
    QCOMPARE(edit.text(), QString("0"));
}

void tst_lineedit::textRangeLeavesTheIntegerBounds()
{
    CLineEdit edit;
    edit.setSKPType(CKeyPadFactory::SKP_DECIMAL);
    edit.setRange(20, 30);
    edit.setRange("1", "9");
    edit.setText("5");
    touchKeys(&edit, QList<int>() << Key_Apply);
    QCOMPARE(edit.text(), QString("20"));
}

void tst_lineedit::keyboardOpensNothing()
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

void tst_lineedit::inactiveKeypadOpensNothing()
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

void tst_lineedit::readOnlyFieldOpensTheKeypad()
{
    CLineEdit edit;
    edit.setReadOnly(true);
    QSignalSpy edited(&edit, SIGNAL(textEdited(QString)));
    QCOMPARE(touchKeys(&edit, QList<int>() << Qt::Key_A), 1);
    QCOMPARE(edit.text(), QString("a"));
    QCOMPARE(edited.count(), 1);
}

void tst_lineedit::disabledFieldOpensNothing()
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

void tst_lineedit::plainFieldOtherwise()
{
    CLineEdit edit;
    edit.setSKPActive(false);
    QSignalSpy edited(&edit, SIGNAL(textEdited(QString)));
    QTest::keyClicks(&edit, "ab");
    QCOMPARE(edit.text(), QString("ab"));
    QCOMPARE(edited.count(), 2);
    QTest::mouseDClick(&edit, Qt::LeftButton, Qt::NoModifier, QPoint(4, 14));
    QCOMPARE(edit.selectedText(), QString("ab"));
}

void tst_lineedit::fontGoesThroughTheStyleSheet()
{
    CLineEdit edit;
    edit.setFont(testing::testFont(22, true));
    QCOMPARE(edit.font().pixelSize(), 22);
    QVERIFY(edit.font().bold());
    QCOMPARE(edit.styleSheet(), QString("border: 0px;"));
    edit.setFixedWidth(150);
    edit.setText("Big");
    edit.setBorderVisible(false);
    const QImage big = testing::render(&edit);
    CWIDGET_COMPARE_IMAGES(big, renderPlain(edit));
    edit.setFont(testing::testFont(10));
    QVERIFY(testing::render(&edit) != big);
}

void tst_lineedit::ownStyleSheetIsKeptByTheFont()
{
    CLineEdit edit;
    const QString sheet = "border: 0px; color: red;";
    edit.setStyleSheet(sheet);
    SheetsOfFontChanges changes(&edit);
    edit.setFont(testing::testFont(17));
    QCOMPARE(edit.font().pixelSize(), 17);
    QVERIFY(changes.sheets().contains(QString())); // the font was set without one
    QCOMPARE(edit.styleSheet(), sheet);
    edit.setStyleSheet(QString());
    edit.setFont(testing::testFont(18));
    QCOMPARE(edit.font().pixelSize(), 18);
    QCOMPARE(edit.styleSheet(), QString());
}

void tst_lineedit::styleRecord()
{
    CLineEdit edit;
    edit.setFont(testing::testFont(11));
    edit.setWidgetStyle(testing::styleOf(Style::FieldName, testing::testFont(30)));
    edit.setWidgetStyle(testing::styleOf(Style::FieldValue, testing::testFont(31)));
    QCOMPARE(edit.font().pixelSize(), 11);
    WidgetStyle style = testing::styleOf(Style::FieldAll, testing::testFont(19));
    style.styles.append(
        testing::styleOf(Style::FieldAll, testing::testFont(20, true)).styles.at(0));
    edit.setWidgetStyle(style);
    QCOMPARE(edit.font().pixelSize(), 20);
    QVERIFY(edit.font().bold());
    QCOMPARE(edit.styleSheet(), QString("border: 0px;"));
    edit.setWidgetStyle(WidgetStyle());
    QCOMPARE(edit.font().pixelSize(), 20);
}

void tst_lineedit::styleTableIsAskedOnConstruction()
{
    const testing::StyleFile file("CLineEdit", 23);
    CLineEdit edit;
    QCOMPARE(edit.font().pixelSize(), 23);
    QVERIFY(edit.font().bold());
    QCOMPARE(edit.font().family(), QString("Arial"));
}

void tst_lineedit::autoStyleOffIgnoresTheRecord()
{
    CLineEdit edit;
    edit.setFont(testing::testFont(11));
    edit.setAutoStyleEnabled(false);
    QVERIFY(!edit.isAutoStyleEnabled());
    edit.setWidgetStyle(testing::styleOf(Style::FieldAll, testing::testFont(19)));
    QCOMPARE(edit.font().pixelSize(), 11);
    edit.setAutoStyleEnabled(true);
    edit.setWidgetStyle(testing::styleOf(Style::FieldAll, testing::testFont(19)));
    QCOMPARE(edit.font().pixelSize(), 19);
}

void tst_lineedit::fieldDeletedWhileTheKeypadIsOpen_data()
{
    QTest::addColumn<bool>("deletesWindow");
    QTest::addColumn<bool>("later");
    QTest::newRow("the field") << false << false;
    QTest::newRow("its window") << true << false;
    QTest::newRow("the field, after the keypad") << false << true;
    QTest::newRow("its window, after the keypad") << true << true;
}

void tst_lineedit::fieldDeletedWhileTheKeypadIsOpen()
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

void tst_lineedit::slotMayDeleteTheField()
{
    const QPointer<CLineEdit> edit(new CLineEdit);
    connect(edit, SIGNAL(textEdited(QString)), SLOT(deleteSender()));
    KeyPadUser user([](CSoftKeyPad* dialog) { touch(keyOf(dialog, Key_Apply)); });
    testing::press(edit);
    testing::release(edit);
    QCOMPARE(user.opened(), 1);
    QVERIFY(edit.isNull());
}

QTEST_MAIN(tst_lineedit)
#include "tst_lineedit.moc"
