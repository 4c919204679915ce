#include "style/qtcompat.h"
#include "support/keypads.h"
#include "support/signaltools.h"

#include <QPainter>
#include <QSignalSpy>

using testing::press;
using testing::release;
using testing::touch;

namespace
{

QPixmap plain(const QColor& color)
{
    QPixmap pixmap(8, 8);
    pixmap.fill(color);
    return pixmap;
}

/// A key whose states have looks of their own.
class LookingKey : public CKeyButton
{
public:
    LookingKey()
    {
        setExtraAttr(PressedPixmap, plain(Qt::red));
        setExtraAttr(ReleasedPixmap, plain(Qt::green));
        setExtraAttr(SelectedPixmap, plain(Qt::blue));
        setExtraAttr(PressedTextColor, QColor(Qt::yellow));
        setExtraAttr(ReleasedTextColor, QColor(Qt::cyan));
        setExtraAttr(SelectedTextColor, QColor(Qt::gray));
    }

    QColor look() const
    {
        return getBackground().toImage().pixel(0, 0);
    }
};

/// What the arrow of a key of this size must be.
void paintArrow(QImage* image, const QColor& color)
{
    const int cx = (image->width() - 1) / 2;
    const int cy = (image->height() - 1) / 2;
    QPen pen(color, 2);
    pen.setJoinStyle(Qt::MiterJoin);
    QPainter painter(image);
    painter.setPen(pen);
    painter.setBrush(color);
    QPolygon head;
    head << QPoint(cx - 4, cy - 4) << QPoint(cx - 8, cy) << QPoint(cx - 4, cy + 4);
    painter.drawPolygon(head);
    painter.drawLine(QPoint(cx - 4, cy), QPoint(cx + 9, cy));
}

} // namespace

class tst_keybutton : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void deleteSender()
    {
        delete sender();
    }

private Q_SLOTS:
    void codesOfTheKeypadsOwnKeys();
    void newKeyHasNoCodeAndNoTexts();
    void codeIsStoredAndRepaints();
    void keyTextIsShown();
    void symbolIsStoredOnly();
    void showSymbolSwitchesTheText();
    void pressedKeyLooksPressed();
    void releasedKeyLooksSelectedUntilItIsDeselected();
    void releaseOutsideLooksSelectedToo();
    void touchDoesNotSelect();
    void touchIsAClick();
    void quickSecondTouchIsAPressToo();
    void quickSecondTouchKeepsButtonsAndModifiers();
    void keyDisabledByItsOwnSlotIsReleased();
    void disabledKeyKeepsItsLook();
    void missingAttributesKeepTheLook();
    void backspaceDrawsAnArrow_data();
    void backspaceDrawsAnArrow();
    void arrowHasTheColorOfTheText();
    void otherKeysDrawNoArrow();
    void slotMayDeleteTheKey_data();
    void slotMayDeleteTheKey();
};

void tst_keybutton::codesOfTheKeypadsOwnKeys()
{
    QCOMPARE(static_cast<int>(Key_Symbol), 0x2000009);
    QCOMPARE(static_cast<int>(Key_Apply), 0x200000a);
    QCOMPARE(static_cast<int>(Key_Point), 0x200000b);
    QCOMPARE(static_cast<int>(Key_DelAll), 0x200000c);
    QCOMPARE(static_cast<int>(Key_PlusMinus), 0x200000d);
}

void tst_keybutton::newKeyHasNoCodeAndNoTexts()
{
    QWidget parent;
    CKeyButton key(&parent);
    QCOMPARE(key.parent(), static_cast<QObject*>(&parent));
    QCOMPARE(key.key(), 0x01ffffff);
    QCOMPARE(key.key(), static_cast<int>(Qt::Key_unknown));
    QVERIFY(key.getKeyText().isEmpty());
    QVERIFY(key.getSymbol().isEmpty());
    QVERIFY(key.getText().isEmpty());
    QVERIFY(!CKeyButton().parent());
}

void tst_keybutton::codeIsStoredAndRepaints()
{
    CKeyButton key;
    key.show();
    QVERIFY(testcompat::waitForWindow(&key));
    QVERIFY(testing::repaints(&key, [&key] { key.setKey(Qt::Key_Backspace); }));
    QCOMPARE(key.key(), static_cast<int>(Qt::Key_Backspace));
    key.setKey(Key_Apply);
    QCOMPARE(key.key(), 0x200000a);
}

void tst_keybutton::keyTextIsShown()
{
    CKeyButton key;
    key.setKeyText("q");
    QCOMPARE(key.getKeyText(), QString("q"));
    QCOMPARE(key.getText(), QString("q"));
    key.setText("Q");
    QCOMPARE(key.getKeyText(), QString("q"));
    QCOMPARE(key.getText(), QString("Q"));
}

void tst_keybutton::symbolIsStoredOnly()
{
    CKeyButton key;
    key.setKeyText("q");
    key.setSymbol("!");
    QCOMPARE(key.getSymbol(), QString("!"));
    QCOMPARE(key.getText(), QString("q"));
    key.showSymbol(true);
    key.setSymbol("?");
    QCOMPARE(key.getText(), QString("!"));
}

void tst_keybutton::showSymbolSwitchesTheText()
{
    CKeyButton key;
    key.setKeyText("q");
    key.setSymbol("!");
    key.showSymbol(true);
    QCOMPARE(key.getText(), QString("!"));
    key.showSymbol(true);
    QCOMPARE(key.getText(), QString("!"));
    key.showSymbol(false);
    QCOMPARE(key.getText(), QString("q"));
    QCOMPARE(key.getKeyText(), QString("q"));
    QCOMPARE(key.getSymbol(), QString("!"));
    CKeyButton empty;
    empty.setKeyText("1");
    empty.showSymbol(true);
    QVERIFY(empty.getText().isEmpty());
}

void tst_keybutton::pressedKeyLooksPressed()
{
    LookingKey key;
    press(&key);
    QCOMPARE(key.look(), QColor(Qt::red));
    QCOMPARE(key.getTextColor(), QColor(Qt::yellow));
    release(&key);
}

void tst_keybutton::releasedKeyLooksSelectedUntilItIsDeselected()
{
    LookingKey key;
    touch(&key);
    QCOMPARE(key.look(), QColor(Qt::blue));
    QCOMPARE(key.getTextColor(), QColor(Qt::gray));
    key.setSelected(false);
    QCOMPARE(key.look(), QColor(Qt::green));
    QCOMPARE(key.getTextColor(), QColor(Qt::cyan));
    key.setSelected(true);
    QCOMPARE(key.look(), QColor(Qt::blue));
}

void tst_keybutton::releaseOutsideLooksSelectedToo()
{
    LookingKey key;
    QSignalSpy clicked(&key, SIGNAL(clicked()));
    press(&key);
    QTest::mouseRelease(&key, Qt::LeftButton, Qt::NoModifier, QPoint(500, 500));
    QCOMPARE(key.look(), QColor(Qt::blue));
    QCOMPARE(clicked.count(), 0);
}

void tst_keybutton::touchDoesNotSelect()
{
    LookingKey key;
    touch(&key);
    QVERIFY(!key.isSelected());
}

void tst_keybutton::touchIsAClick()
{
    CKeyButton key;
    QSignalSpy pressed(&key, SIGNAL(pressed()));
    QSignalSpy released(&key, SIGNAL(released()));
    QSignalSpy clicked(&key, SIGNAL(clicked()));
    touch(&key);
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(released.count(), 1);
    QCOMPARE(clicked.count(), 1);
}

void tst_keybutton::quickSecondTouchIsAPressToo()
{
    LookingKey key;
    testing::EventCounter presses(&key, QEvent::MouseButtonPress);
    QSignalSpy pressed(&key, SIGNAL(pressed()));
    QSignalSpy clicked(&key, SIGNAL(clicked()));
    touch(&key);
    testing::pressAgain(&key);
    QCOMPARE(key.look(), QColor(Qt::red));
    release(&key);
    QCOMPARE(key.look(), QColor(Qt::blue));
    QCOMPARE(presses.count(), 2);
    QCOMPARE(pressed.count(), 2);
    QCOMPARE(clicked.count(), 2);
    key.setEnabled(false);
    testing::pressAgain(&key);
    QCOMPARE(presses.count(), 2);
}

namespace
{

/// Writes down the last press that an object gets.
class PressWatcher : public QObject
{
public:
    PressWatcher() : button(Qt::NoButton), buttons(Qt::NoButton), modifiers(Qt::NoModifier)
    {
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonPress) {
            const QMouseEvent* press = static_cast<QMouseEvent*>(event);
            button = press->button();
            buttons = press->buttons();
            modifiers = press->modifiers();
            place = qtcompat::eventPos(press);
        }
        return QObject::eventFilter(watched, event);
    }

    Qt::MouseButton button;
    Qt::MouseButtons buttons;
    Qt::KeyboardModifiers modifiers;
    QPoint place;
};

} // namespace

void tst_keybutton::quickSecondTouchKeepsButtonsAndModifiers()
{
    QWidget window;
    CKeyButton* key = new CKeyButton(&window);
    key->move(30, 40);
    PressWatcher watcher;
    key->installEventFilter(&watcher);
    QMouseEvent event(QEvent::MouseButtonDblClick, QPoint(7, 9), key->mapToGlobal(QPoint(7, 9)),
                      Qt::RightButton, Qt::LeftButton | Qt::RightButton,
                      Qt::ShiftModifier | Qt::KeypadModifier);
    QCoreApplication::sendEvent(key, &event);
    QCOMPARE(watcher.button, Qt::RightButton);
    QCOMPARE(watcher.buttons, Qt::MouseButtons(Qt::LeftButton | Qt::RightButton));
    QCOMPARE(watcher.modifiers, Qt::KeyboardModifiers(Qt::ShiftModifier | Qt::KeypadModifier));
    QCOMPARE(watcher.place, QPoint(7, 9));
}

void tst_keybutton::keyDisabledByItsOwnSlotIsReleased()
{
    LookingKey key;
    Reaction reaction(&key, SIGNAL(clicked()), [&key]() { key.setEnabled(false); });
    press(&key);
    QCOMPARE(key.look(), QColor(Qt::red));
    release(&key);
    QCOMPARE(key.look(), QColor(Qt::green));
}

void tst_keybutton::disabledKeyKeepsItsLook()
{
    LookingKey key;
    key.updateStatus(CPushButton::Released);
    key.setEnabled(false);
    press(&key);
    QCOMPARE(key.look(), QColor(Qt::green));
    QCOMPARE(key.getTextColor(), QColor(Qt::cyan));
    release(&key);
    QCOMPARE(key.look(), QColor(Qt::green));
    QCOMPARE(key.getTextColor(), QColor(Qt::cyan));
}

void tst_keybutton::missingAttributesKeepTheLook()
{
    CKeyButton key;
    key.setBackground(plain(Qt::red));
    key.setTextColor(Qt::green);
    touch(&key);
    QCOMPARE(QColor(key.getBackground().toImage().pixel(0, 0)), QColor(Qt::red));
    QCOMPARE(key.getTextColor(), QColor(Qt::green));
}

void tst_keybutton::backspaceDrawsAnArrow_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("numbers") << QSize(40, 30);
    QTest::newRow("general") << QSize(45, 45);
    QTest::newRow("odd and even") << QSize(51, 40);
    QTest::newRow("smaller than the arrow") << QSize(12, 6);
    QTest::newRow("one pixel") << QSize(1, 1);
}

void tst_keybutton::backspaceDrawsAnArrow()
{
    QFETCH(QSize, size);
    CKeyButton key;
    key.setFixedSize(size);
    key.setTextColor(Qt::white);
    QImage expected = testing::render(&key);
    key.setKey(Qt::Key_Backspace);
    paintArrow(&expected, Qt::white);
    CWIDGET_COMPARE_IMAGES(testing::render(&key), expected);
}

void tst_keybutton::arrowHasTheColorOfTheText()
{
    LookingKey key;
    const CPushButton::ButtonState states[] = {CPushButton::Pressed, CPushButton::Released,
                                               CPushButton::Selected};
    const QColor colors[] = {Qt::yellow, Qt::cyan, Qt::gray};
    for (int i = 0; i < 3; ++i) {
        key.updateStatus(states[i]);
        key.setKey(Qt::Key_unknown);
        QImage expected = testing::render(&key);
        paintArrow(&expected, colors[i]);
        key.setKey(Qt::Key_Backspace);
        CWIDGET_COMPARE_IMAGES(testing::render(&key), expected);
    }
}

void tst_keybutton::otherKeysDrawNoArrow()
{
    CKeyButton key;
    const QImage expected = testing::render(&key);
    const int codes[] = {Qt::Key_Left, Qt::Key_Delete, Qt::Key_Return, Key_DelAll, 0};
    for (size_t i = 0; i < sizeof codes / sizeof codes[0]; ++i) {
        key.setKey(codes[i]);
        CWIDGET_COMPARE_IMAGES(testing::render(&key), expected);
    }
}

void tst_keybutton::slotMayDeleteTheKey_data()
{
    QTest::addColumn<bool>("onPress");
    QTest::newRow("when it is pressed") << true;
    QTest::newRow("when it is clicked") << false;
}

void tst_keybutton::slotMayDeleteTheKey()
{
    QFETCH(bool, onPress);
    QPointer<CKeyButton> key(new CKeyButton);
    if (onPress)
        connect(key, SIGNAL(pressed()), SLOT(deleteSender()));
    else
        connect(key, SIGNAL(clicked()), SLOT(deleteSender()));
    press(key);
    QCOMPARE(key.isNull(), onPress);
    if (key)
        release(key);
    QVERIFY(key.isNull());
}

QTEST_MAIN(tst_keybutton)
#include "tst_keybutton.moc"
