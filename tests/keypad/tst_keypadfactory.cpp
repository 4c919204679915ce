#include "keypad/abstractkeypad.h"
#include "keypad/keypadedit.h"
#include "keypad/keypadfactory.h"
#include "support/keypads.h"
#include "widgets/toptitlearea.h"

#include <QApplication>

using testing::keyOf;
using testing::KeyPadUser;
using testing::touch;
using testing::type;

namespace
{

/// A window that is the active one while it lives.
class ActiveWindow : public QWidget
{
public:
    explicit ActiveWindow(const QRect& geometry = QRect(100, 100, 300, 200))
    {
        setWindowFlags(Qt::FramelessWindowHint);
        setGeometry(geometry);
        show();
        activate();
    }

    void activate()
    {
        activateWindow();
        for (int i = 0; i < 500 && QApplication::activeWindow() != this; ++i)
            QTest::qWait(2);
        if (QApplication::activeWindow() != this)
            qFatal("the window did not become active");
    }
};

void waitUntilNoWindowIsActive()
{
    for (int i = 0; i < 500 && QApplication::activeWindow(); ++i)
        QTest::qWait(2);
    if (QApplication::activeWindow())
        qFatal("a window is still active");
}

/// Where a keypad must stand over \a ground.
QPoint placeOver(const QRect& ground)
{
    const int right = ground.x() + ground.width() - 1;
    const int bottom = ground.y() + ground.height() - 1;
    return QPoint((ground.x() + right) / 2 - 259, (ground.y() + bottom) / 2 - 195);
}

enum Way {
    Apply,
    Escape,
    Close,
    Reject,
    Done
};

void leave(CSoftKeyPad* dialog, int way)
{
    switch (way) {
    case Apply:
        touch(keyOf(dialog, Key_Apply));
        break;
    case Escape:
        QTest::keyClick(dialog->findChild<CKeyPadEdit*>(), Qt::Key_Escape);
        break;
    case Close:
        dialog->close();
        break;
    case Reject:
        dialog->reject();
        break;
    default:
        dialog->done(42);
    }
}

} // namespace

class tst_keypadfactory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void dialogGetsTitleTextAndType_data();
    void dialogGetsTitleTextAndType();
    void returnsTheEntryInWhateverWayItCloses_data();
    void returnsTheEntryInWhateverWayItCloses();
    void escapeInAKeypadForNumbersDeletesFirst();
    void integerRangeIsChecked();
    void rangeAsTextsIsCheckedAgainstZero();
    void withoutRangeNothingIsChecked();
    void parentIsTheActiveWindow();
    void givenParentIsTaken();
    void centeredOnTheActiveWindow_data();
    void centeredOnTheActiveWindow();
    void centeredOnTheActiveWindowAlsoWithAParentElsewhere();
    void centeredOnTheParentsWindowWithoutAnActiveOne();
    void centeredOnTheScreenWithoutAnyWindow();
    void twoKeypadsInSequence();
    void closedKeypadIsNoParent_data();
    void closedKeypadIsNoParent();
    void keypadOverAKeypad();
    void dialogIsModal();
};

void tst_keypadfactory::cleanup()
{
    testing::deleteDeferred();
    QCOMPARE(testcompat::allWidgets().size(), 0);
    waitUntilNoWindowIsActive();
}

void tst_keypadfactory::dialogGetsTitleTextAndType_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("gridClass");
    QTest::newRow("general") << 0 << QByteArray("CGenKeyPad");
    QTest::newRow("hexadecimal") << 1 << QByteArray("CHexKeyPad");
    QTest::newRow("binary") << 2 << QByteArray("CNumKeyPad");
    QTest::newRow("decimal") << 3 << QByteArray("CNumKeyPad");
    QTest::newRow("float") << 4 << QByteArray("CNumKeyPad");
    QTest::newRow("unknown") << 9 << QByteArray("CGenKeyPad");
}

void tst_keypadfactory::dialogGetsTitleTextAndType()
{
    QFETCH(int, number);
    QFETCH(QByteArray, gridClass);
    ActiveWindow window;
    QString title;
    QString text;
    QByteArray grid;
    KeyPadUser user([&](CSoftKeyPad* dialog) {
        title = dialog->findChild<CTopTitleArea*>()->title();
        text = dialog->getInput();
        grid = dialog->findChild<CAbstractKeyPad*>()->metaObject()->className();
    });
    QCOMPARE(CKeyPadFactory::accessKeyPad("Speed", "10", type(number)), QString("10"));
    QCOMPARE(user.opened(), 1);
    QCOMPARE(title, QString("Speed"));
    QCOMPARE(text, QString("10"));
    QCOMPARE(grid, gridClass);
}

void tst_keypadfactory::returnsTheEntryInWhateverWayItCloses_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("apply") << static_cast<int>(Apply);
    QTest::newRow("escape") << static_cast<int>(Escape);
    QTest::newRow("window closed") << static_cast<int>(Close);
    QTest::newRow("rejected by the application") << static_cast<int>(Reject);
    QTest::newRow("done by the application") << static_cast<int>(Done);
}

void tst_keypadfactory::returnsTheEntryInWhateverWayItCloses()
{
    QFETCH(int, way);
    ActiveWindow window;
    int result = -1;
    KeyPadUser user([&](CSoftKeyPad* dialog) {
        touch(keyOf(dialog, Qt::Key_B));
        leave(dialog, way);
        result = dialog->result();
    });
    QCOMPARE(CKeyPadFactory::accessKeyPad("Name", "a", CKeyPadFactory::SKP_GENERAL), QString("ab"));
    QCOMPARE(user.opened(), 1);
    QCOMPARE(result, way == Apply ? 1 : way == Done ? 42 : 0);
    QCOMPARE(QApplication::topLevelWidgets().size(), 2); // the dialog waits for being deleted
}

void tst_keypadfactory::escapeInAKeypadForNumbersDeletesFirst()
{
    ActiveWindow window;
    KeyPadUser user([](CSoftKeyPad* dialog) { leave(dialog, Escape); });
    QCOMPARE(CKeyPadFactory::accessKeyPad("Speed", "123", CKeyPadFactory::SKP_DECIMAL),
             QString("12"));
    QCOMPARE(user.opened(), 1);
}

void tst_keypadfactory::integerRangeIsChecked()
{
    ActiveWindow window;
    QStringList entries;
    KeyPadUser user([&](CSoftKeyPad* dialog) {
        touch(keyOf(dialog, Key_Apply));
        entries << dialog->getInput() << QString::number(dialog->isVisible());
        touch(keyOf(dialog, Key_Apply));
        entries << QString::number(dialog->isVisible());
    });
    QCOMPARE(CKeyPadFactory::accessKeyPad("Speed", "250", CKeyPadFactory::SKP_DECIMAL, 0, 100),
             QString("100"));
    QCOMPARE(entries, QStringList() << "100"
                                    << "1"
                                    << "0");
}

void tst_keypadfactory::rangeAsTextsIsCheckedAgainstZero()
{
    ActiveWindow window;
    KeyPadUser user([&](CSoftKeyPad* dialog) { touch(keyOf(dialog, Key_Apply)); });
    QCOMPARE(CKeyPadFactory::accessKeyPad("Speed", "5", CKeyPadFactory::SKP_DECIMAL, QString("1"),
                                          QString("9")),
             QString("0"));
    QCOMPARE(user.opened(), 1);
}

void tst_keypadfactory::withoutRangeNothingIsChecked()
{
    ActiveWindow window;
    KeyPadUser user([&](CSoftKeyPad* dialog) { touch(keyOf(dialog, Key_Apply)); });
    QCOMPARE(CKeyPadFactory::accessKeyPad("Speed", "x", CKeyPadFactory::SKP_DECIMAL), QString("x"));
    QCOMPARE(user.opened(), 1);
}

void tst_keypadfactory::parentIsTheActiveWindow()
{
    ActiveWindow window;
    QWidget* parent = nullptr;
    for (int overload = 0; overload < 3; ++overload) {
        parent = nullptr;
        KeyPadUser user([&](CSoftKeyPad* dialog) { parent = dialog->parentWidget(); });
        if (overload == 0)
            CKeyPadFactory::accessKeyPad("", "", CKeyPadFactory::SKP_HEX);
        else if (overload == 1)
            CKeyPadFactory::accessKeyPad("", "", CKeyPadFactory::SKP_HEX, 1, 2);
        else
            CKeyPadFactory::accessKeyPad("", "", CKeyPadFactory::SKP_HEX, QString(), QString());
        QCOMPARE(parent, static_cast<QWidget*>(&window));
        window.activate();
    }
}

void tst_keypadfactory::givenParentIsTaken()
{
    ActiveWindow window;
    QWidget child(&window);
    QWidget* parent = nullptr;
    for (int overload = 0; overload < 3; ++overload) {
        parent = nullptr;
        KeyPadUser user([&](CSoftKeyPad* dialog) { parent = dialog->parentWidget(); });
        if (overload == 0)
            CKeyPadFactory::accessKeyPad("", "", CKeyPadFactory::SKP_HEX, &child);
        else if (overload == 1)
            CKeyPadFactory::accessKeyPad("", "", CKeyPadFactory::SKP_HEX, 1, 2, &child);
        else
            CKeyPadFactory::accessKeyPad("", "", CKeyPadFactory::SKP_HEX, QString(), QString(),
                                         &child);
        QCOMPARE(parent, &child);
    }
}

void tst_keypadfactory::centeredOnTheActiveWindow_data()
{
    QTest::addColumn<QRect>("geometry");
    QTest::newRow("even") << QRect(0, 0, 800, 600);
    QTest::newRow("odd") << QRect(1, 1, 801, 601);
    QTest::newRow("odd corner, even size") << QRect(11, 13, 640, 480);
    QTest::newRow("small") << QRect(300, 200, 21, 20);
    QTest::newRow("beyond the left upper corner") << QRect(-500, -400, 301, 200);
    QTest::newRow("negative centre, even") << QRect(-300, -201, 200, 100);
    QTest::newRow("beyond the right lower corner") << QRect(700, 550, 333, 444);
}

void tst_keypadfactory::centeredOnTheActiveWindow()
{
    QFETCH(QRect, geometry);
    ActiveWindow window(geometry);
    if (!testcompat::movesWindowsOntoTheScreen())
        QCOMPARE(window.geometry(), geometry);
    QPoint place;
    QSize size;
    KeyPadUser user([&](CSoftKeyPad* dialog) {
        place = dialog->pos();
        size = dialog->size();
    });
    CKeyPadFactory::accessKeyPad("Title", "", CKeyPadFactory::SKP_GENERAL);
    QCOMPARE(size, QSize(519, 390));
    QCOMPARE(place, placeOver(window.geometry()));
}

void tst_keypadfactory::centeredOnTheActiveWindowAlsoWithAParentElsewhere()
{
    QWidget other;
    other.setGeometry(0, 0, 50, 50);
    other.show();
    ActiveWindow window(QRect(200, 200, 400, 300));
    QPoint place;
    KeyPadUser user([&](CSoftKeyPad* dialog) { place = dialog->pos(); });
    CKeyPadFactory::accessKeyPad("Title", "", CKeyPadFactory::SKP_GENERAL, &other);
    QCOMPARE(place, placeOver(QRect(200, 200, 400, 300)));
}

void tst_keypadfactory::centeredOnTheParentsWindowWithoutAnActiveOne()
{
    QWidget window;
    window.setGeometry(150, 160, 401, 301);
    QWidget child(&window);
    child.setGeometry(10, 10, 20, 20);
    QVERIFY(!QApplication::activeWindow());
    QPoint place;
    KeyPadUser user([&](CSoftKeyPad* dialog) { place = dialog->pos(); });
    CKeyPadFactory::accessKeyPad("Title", "", CKeyPadFactory::SKP_GENERAL, &child);
    QCOMPARE(place, placeOver(QRect(150, 160, 401, 301)));
}

void tst_keypadfactory::centeredOnTheScreenWithoutAnyWindow()
{
    QVERIFY(!QApplication::activeWindow());
    QPoint place;
    QWidget* parent = reinterpret_cast<QWidget*>(1);
    KeyPadUser user([&](CSoftKeyPad* dialog) {
        place = dialog->pos();
        parent = dialog->parentWidget();
    });
    CKeyPadFactory::accessKeyPad("Title", "7", CKeyPadFactory::SKP_DECIMAL, 0, 9);
    QCOMPARE(place, placeOver(testcompat::screenGeometry()));
    QVERIFY(!parent);
}

void tst_keypadfactory::twoKeypadsInSequence()
{
    ActiveWindow window;
    QPointer<CSoftKeyPad> dialogs[2];
    QStringList texts;
    testing::EventLoopCall::run([&] {
        for (int i = 0; i < 2; ++i) {
            KeyPadUser user([&](CSoftKeyPad* dialog) {
                dialogs[i] = dialog;
                touch(keyOf(dialog, Qt::Key_1 + i));
                touch(keyOf(dialog, Key_Apply));
            });
            texts << CKeyPadFactory::accessKeyPad("", "5", CKeyPadFactory::SKP_DECIMAL, &window);
        }
        QVERIFY(dialogs[0]); // it was still there when the second one opened
        QVERIFY(dialogs[1] && dialogs[1] != dialogs[0]);
    });
    QCOMPARE(texts, QStringList() << "51"
                                  << "52");
    testing::deleteDeferred();
    QVERIFY(!dialogs[0] && !dialogs[1]);
}

void tst_keypadfactory::closedKeypadIsNoParent_data()
{
    QTest::addColumn<bool>("hasWindow");
    QTest::newRow("over a window") << true;
    QTest::newRow("over nothing") << false;
}

void tst_keypadfactory::closedKeypadIsNoParent()
{
    QFETCH(bool, hasWindow);
    const QScopedPointer<ActiveWindow> window(hasWindow ? new ActiveWindow : nullptr);
    QWidget* parent = nullptr;
    QPoint place;
    testing::EventLoopCall::run([&] {
        QPointer<CSoftKeyPad> first;
        KeyPadUser firstUser([&](CSoftKeyPad* dialog) { first = dialog; });
        CKeyPadFactory::accessKeyPad("", "", CKeyPadFactory::SKP_HEX);
        QApplication::setActiveWindow(first); // a slow window system lags behind
        QCOMPARE(QApplication::activeWindow(), static_cast<QWidget*>(first));
        KeyPadUser secondUser([&](CSoftKeyPad* dialog) {
            parent = dialog->parentWidget();
            place = dialog->pos();
        });
        CKeyPadFactory::accessKeyPad("", "", CKeyPadFactory::SKP_HEX);
        QVERIFY(first);
        QVERIFY(first->findChildren<CSoftKeyPad*>().isEmpty());
    });
    QCOMPARE(parent, static_cast<QWidget*>(window.data()));
    QCOMPARE(place, placeOver(window ? window->geometry() : testcompat::screenGeometry()));
}

void tst_keypadfactory::keypadOverAKeypad()
{
    ActiveWindow window;
    QString inner;
    QWidget* innerParent = nullptr;
    QPointer<CSoftKeyPad> outerDialog;
    KeyPadUser outer([&](CSoftKeyPad* dialog) {
        outerDialog = dialog;
        dialog->activateWindow();
        for (int i = 0; i < 500 && QApplication::activeWindow() != dialog; ++i)
            QTest::qWait(2);
        KeyPadUser user([&](CSoftKeyPad* second) {
            innerParent = second->parentWidget();
            touch(keyOf(second, Qt::Key_2));
        });
        inner = CKeyPadFactory::accessKeyPad("Inner", "1", CKeyPadFactory::SKP_HEX);
        touch(keyOf(dialog, Qt::Key_Z));
    });
    const QString text = CKeyPadFactory::accessKeyPad("Outer", "x", CKeyPadFactory::SKP_GENERAL);
    QCOMPARE(text, QString("xz"));
    QCOMPARE(inner, QString("12"));
    QCOMPARE(innerParent, static_cast<QWidget*>(outerDialog));
}

void tst_keypadfactory::dialogIsModal()
{
    ActiveWindow window;
    bool modal = false;
    Qt::WindowModality modality = Qt::NonModal;
    KeyPadUser user([&](CSoftKeyPad* dialog) {
        modal = dialog->isModal();
        modality = dialog->windowModality();
    });
    CKeyPadFactory::accessKeyPad("Title", "", CKeyPadFactory::SKP_GENERAL);
    QVERIFY(modal);
    QCOMPARE(modality, Qt::WindowModal);
}

QTEST_MAIN(tst_keypadfactory)
#include "tst_keypadfactory.moc"
