// Line edits and their keypads, touched through the X server.

#include "support/desktopmain.h"
#include "support/keypads.h"
#include "widgets/lineedit.h"

#include <QSignalSpy>

using testing::keyOf;
using testing::KeyPadUser;

namespace
{

const int settlingTime = 400; // ms, in which something that must not happen would happen

QString pointArguments(const QWidget* widget)
{
    const QPoint point = widget->mapToGlobal(widget->rect().center());
    return QString::fromLatin1("mousemove %1 %2").arg(point.x()).arg(point.y());
}

/// A finger on the middle of \a widget, wherever that is on the screen, \a count times in a row.
void touchScreen(const QWidget* widget, int count = 1)
{
    testing::xdotool(pointArguments(widget) +
                     QString::fromLatin1(" click --repeat %1 --delay 60 1").arg(count));
}

/// Two fields: one at the top, and one that covers the rest of the window.
class Fields : public QWidget
{
public:
    Fields() : top(new CLineEdit(this)), rest(new CLineEdit(this))
    {
        setGeometry(100, 60, 800, 600);
        top->setGeometry(0, 0, 800, 28);
        rest->setFixedHeight(572);
        rest->setGeometry(0, 28, 800, 572);
        top->setSKPType(CKeyPadFactory::SKP_DECIMAL);
        show();
    }

    bool isReady()
    {
        activateWindow();
        for (int i = 0; i < 1000 && QApplication::activeWindow() != this; ++i)
            QTest::qWait(5);
        return testcompat::waitForWindow(this) && QApplication::activeWindow() == this;
    }

    CLineEdit* top;
    CLineEdit* rest;
};

} // namespace

class tst_keypad_touch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void keypadStandsOverTheMiddleOfTheWindow();
    void everyTouchCountsHoweverQuick();
    void liftedFingerAfterApplyReachesNothing();
    void windowBehindIsBlocked();
    void oneFieldAfterTheOther();
    void fieldDeletedWhileItsKeypadIsOpen_data();
    void fieldDeletedWhileItsKeypadIsOpen();
};

void tst_keypad_touch::initTestCase()
{
    QApplication::setQuitOnLastWindowClosed(false); // that would end the loops of the tests
}

void tst_keypad_touch::keypadStandsOverTheMiddleOfTheWindow()
{
    Fields fields;
    QVERIFY(fields.isReady());
    const QRect window = fields.geometry();
    QPoint place;
    KeyPadUser user([&](CSoftKeyPad* dialog) {
        QVERIFY(testcompat::waitForWindow(dialog));
        QTest::qWait(settlingTime);
        place = dialog->mapToGlobal(QPoint());
    });
    touchScreen(fields.top);
    QTRY_COMPARE(user.opened(), 1);
    QCOMPARE(place, QPoint((window.left() + window.right()) / 2 - 519 / 2,
                           (window.top() + window.bottom()) / 2 - 390 / 2));
}

void tst_keypad_touch::everyTouchCountsHoweverQuick()
{
    Fields fields;
    QVERIFY(fields.isReady());
    KeyPadUser user([](CSoftKeyPad* dialog) {
        QVERIFY(testcompat::waitForWindow(dialog));
        touchScreen(keyOf(dialog, Qt::Key_1), 5);
        QTRY_COMPARE(dialog->getInput(), QString("11111"));
        touchScreen(keyOf(dialog, Qt::Key_Backspace), 2);
        QTRY_COMPARE(dialog->getInput(), QString("111"));
    });
    touchScreen(fields.top);
    QTRY_COMPARE(user.opened(), 1);
    QTRY_COMPARE(fields.top->text(), QString("111"));
}

void tst_keypad_touch::liftedFingerAfterApplyReachesNothing()
{
    Fields fields;
    QVERIFY(fields.isReady());
    QSignalSpy edited(fields.rest, SIGNAL(textEdited(QString)));
    KeyPadUser user([&fields](CSoftKeyPad* dialog) {
        QVERIFY(testcompat::waitForWindow(dialog));
        QWidget* apply = keyOf(dialog, Key_Apply);
        const QPoint below = fields.mapFromGlobal(apply->mapToGlobal(apply->rect().center()));
        QVERIFY(fields.rest->geometry().contains(below));
        touchScreen(keyOf(dialog, Qt::Key_1));
        QTRY_COMPARE(dialog->getInput(), QString("1"));
        testing::xdotool(pointArguments(apply) + QString::fromLatin1(" mousedown 1"));
        QTRY_VERIFY(!dialog->isVisible());
    });
    touchScreen(fields.top);
    QTRY_COMPARE(fields.top->text(), QString("1"));
    KeyPadUser second([](CSoftKeyPad*) {});
    testing::xdotool(QString::fromLatin1("mouseup 1"));
    QTest::qWait(settlingTime);
    QCOMPARE(user.opened(), 1);
    QCOMPARE(second.opened(), 0);
    QCOMPARE(edited.count(), 0);
}

void tst_keypad_touch::windowBehindIsBlocked()
{
    Fields fields;
    QVERIFY(fields.isReady());
    fields.rest->setGeometry(0, 560, 100, 28);
    fields.rest->setFixedSize(100, 28);
    int keypads = 0;
    KeyPadUser user([&](CSoftKeyPad* dialog) {
        QVERIFY(testcompat::waitForWindow(dialog));
        QVERIFY(!dialog->geometry().contains(fields.rest->mapToGlobal(QPoint(50, 14))));
        touchScreen(fields.rest);
        QTest::qWait(settlingTime);
        keypads = fields.findChildren<CSoftKeyPad*>().size();
        QVERIFY(dialog->isVisible());
    });
    touchScreen(fields.top);
    QTRY_COMPARE(keypads, 1);
    QTRY_VERIFY(!QApplication::activeModalWidget());
}

void tst_keypad_touch::oneFieldAfterTheOther()
{
    Fields fields;
    QVERIFY(fields.isReady());
    CLineEdit* const edits[] = {fields.top, fields.rest};
    const int keys[] = {Qt::Key_4, Qt::Key_Q};
    for (int i = 0; i < 2; ++i) {
        QWidget* parent = nullptr;
        KeyPadUser user([&](CSoftKeyPad* dialog) {
            QVERIFY(testcompat::waitForWindow(dialog));
            parent = dialog->parentWidget();
            touchScreen(keyOf(dialog, keys[i]));
            QTRY_COMPARE(dialog->getInput().size(), 1);
            touchScreen(keyOf(dialog, Key_Apply));
            QTRY_VERIFY(!dialog->isVisible());
        });
        QTRY_VERIFY(fields.isActiveWindow()); // else the window manager still shows the last keypad
        touchScreen(edits[i]);
        QTRY_COMPARE(edits[i]->text().size(), 1);
        QCOMPARE(parent, static_cast<QWidget*>(edits[i]));
    }
    QCOMPARE(fields.top->text(), QString("4"));
    QCOMPARE(fields.rest->text(), QString("q"));
}

void tst_keypad_touch::fieldDeletedWhileItsKeypadIsOpen_data()
{
    QTest::addColumn<bool>("window");
    QTest::newRow("the field") << false;
    QTest::newRow("its window") << true;
}

void tst_keypad_touch::fieldDeletedWhileItsKeypadIsOpen()
{
    QFETCH(bool, window);
    const QPointer<Fields> fields(new Fields);
    QVERIFY(fields->isReady());
    KeyPadUser user([&](CSoftKeyPad* dialog) {
        QVERIFY(testcompat::waitForWindow(dialog));
        if (window)
            delete fields.data();
        else
            delete fields->top;
    });
    touchScreen(fields->top);
    QTRY_COMPARE(user.opened(), 1);
    QTest::qWait(settlingTime);
    QCOMPARE(fields.isNull(), window);
    QVERIFY(!QApplication::activeModalWidget());
    delete fields.data();

    Fields others; // touches are still taken
    QVERIFY(others.isReady());
    KeyPadUser next([](CSoftKeyPad* dialog) {
        QVERIFY(testcompat::waitForWindow(dialog));
        touchScreen(keyOf(dialog, Qt::Key_7));
        QTRY_COMPARE(dialog->getInput(), QString("7"));
    });
    touchScreen(others.top);
    QTRY_COMPARE(others.top->text(), QString("7"));
}

CWIDGET_DESKTOP_TEST_MAIN(tst_keypad_touch)
#include "tst_keypad_touch.moc"
