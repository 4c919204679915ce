// Keypads leave nothing behind, and survive what is deleted under them.

#include "keypad/abstractkeypad.h"
#include "keypad/keypadfactory.h"
#include "support/keypads.h"

#include <QApplication>
#include <QTimer>

using testing::keyOf;
using testing::KeyPadUser;
using testing::touch;
using testing::type;

namespace
{

const int rounds = 1000;

// Sanitizers keep deleted memory aside for a while, and report by themselves what is lost.
#if defined(__SANITIZE_ADDRESS__)
const bool memoryTells = false;
#else
const bool memoryTells = true;
#endif

const qint64 allowedGrowth = 8 * 1024 * 1024; // a dialog alone has more than 50 kB of pictures

/// The resident memory of the process in bytes.
qint64 residentMemory()
{
    const QList<QByteArray> pages = testing::contentOf("/proc/self/statm").split(' ');
    return pages.size() > 1 ? pages.at(1).toLongLong() * 4096 : -1;
}

} // namespace

class tst_keypadfactory_lifetime : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void deleteDialog()
    {
        delete m_dialog;
    }

    void askDuringTheApplication();

private Q_SLOTS:
    void cleanup();

    void keypadsLeaveNothing();
    void dialogDeletedWhileOpen();
    void dialogDeletedByAKey();
    void dialogDeletedWhenItAccepts();
    void parentDeletedWhileOpen_data();
    void parentDeletedWhileOpen();
    void gridReplacedWhileOpen();
    void applicationQuitsWhileOpen();

private:
    void roundOf(int number, QWidget* window);

    QPointer<CSoftKeyPad> m_dialog;
    QString m_result;
};

void tst_keypadfactory_lifetime::cleanup()
{
    testing::deleteDeferred();
    QCOMPARE(testcompat::allWidgets().size(), 0);
}

/// Opens a keypad, types into it and closes it.
void tst_keypadfactory_lifetime::roundOf(int number, QWidget* window)
{
    KeyPadUser user([number](CSoftKeyPad* dialog) {
        touch(keyOf(dialog, Qt::Key_0));
        touch(keyOf(dialog, Qt::Key_1));
        if (number % 3 == 0)
            dialog->setSKPType(type((number + 1) % 5));
        else if (number % 3 == 1)
            touch(keyOf(dialog, Key_Apply));
    });
    const QString text =
        CKeyPadFactory::accessKeyPad("Title", "1", type(number % 5), 0, 1000, window);
    QCOMPARE(text, QString("101"));
    QCOMPARE(user.opened(), 1);
    testing::deleteDeferred();
}

void tst_keypadfactory_lifetime::keypadsLeaveNothing()
{
    QWidget window;
    window.show();
    QVERIFY(testcompat::waitForWindow(&window));
    const int warmUp = rounds / 5;
    qint64 memory = 0;
    int widgets = 0;
    int children = 0;
    for (int i = 0; i < rounds; ++i) {
        if (i == warmUp) {
            memory = residentMemory();
            widgets = testcompat::allWidgets().size();
            children = window.children().size();
        }
        roundOf(i, &window);
        QCOMPARE(testcompat::allWidgets().size(), 1);
    }
    QCOMPARE(testcompat::allWidgets().size(), widgets);
    QCOMPARE(QApplication::topLevelWidgets().size(), 1);
    QCOMPARE(window.children().size(), children);
    QCOMPARE(children, 0);
    if (memoryTells) {
        QVERIFY(memory > 0);
        const qint64 growth = residentMemory() - memory;
        QVERIFY2(growth < allowedGrowth, qPrintable(QString::number(growth)));
    }
}

void tst_keypadfactory_lifetime::dialogDeletedWhileOpen()
{
    KeyPadUser user([](CSoftKeyPad* dialog) {
        touch(keyOf(dialog, Qt::Key_1));
        delete dialog;
    });
    const QString text = CKeyPadFactory::accessKeyPad("", "given", CKeyPadFactory::SKP_GENERAL);
    QCOMPARE(text, QString("given"));
    QCOMPARE(user.opened(), 1);
}

void tst_keypadfactory_lifetime::dialogDeletedByAKey()
{
    KeyPadUser user([this](CSoftKeyPad* dialog) {
        m_dialog = dialog;
        connect(dialog->findChild<CAbstractKeyPad*>(), SIGNAL(currentKeyChanged(QString, int)),
                SLOT(deleteDialog()));
        testing::press(keyOf(dialog, Qt::Key_1));
    });
    const QString text = CKeyPadFactory::accessKeyPad("", "given", CKeyPadFactory::SKP_DECIMAL);
    QCOMPARE(text, QString("given"));
    QVERIFY(m_dialog.isNull());
}

void tst_keypadfactory_lifetime::dialogDeletedWhenItAccepts()
{
    KeyPadUser user([this](CSoftKeyPad* dialog) {
        m_dialog = dialog;
        connect(dialog, SIGNAL(accepted()), SLOT(deleteDialog()));
        testing::press(keyOf(dialog, Key_Apply));
    });
    const QString text = CKeyPadFactory::accessKeyPad("", "given", CKeyPadFactory::SKP_DECIMAL);
    QCOMPARE(text, QString("given"));
    QVERIFY(m_dialog.isNull());
}

void tst_keypadfactory_lifetime::parentDeletedWhileOpen_data()
{
    QTest::addColumn<bool>("deletesWindow");
    QTest::newRow("the parent") << false;
    QTest::newRow("the parent's window") << true;
}

void tst_keypadfactory_lifetime::parentDeletedWhileOpen()
{
    QFETCH(bool, deletesWindow);
    QPointer<QWidget> window(new QWidget);
    QWidget* parent = new QWidget(window);
    window->show();
    window->activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), static_cast<QWidget*>(window));
    KeyPadUser user([&](CSoftKeyPad*) {
        if (deletesWindow)
            delete window;
        else
            delete parent;
    });
    const QString text =
        CKeyPadFactory::accessKeyPad("", "given", CKeyPadFactory::SKP_HEX, 0, 9, parent);
    QCOMPARE(text, QString("given"));
    QCOMPARE(window.isNull(), deletesWindow);
    delete window;
}

void tst_keypadfactory_lifetime::gridReplacedWhileOpen()
{
    KeyPadUser user([](CSoftKeyPad* dialog) {
        CAbstractKeyPad* grid = dialog->findChild<CAbstractKeyPad*>();
        dialog->setSKPType(CKeyPadFactory::SKP_HEX);
        touch(keyOf(grid, Qt::Key_1)); // the old one, which nobody hears any more
        testing::deleteDeferred();
        touch(keyOf(dialog, Qt::Key_A));
    });
    const QString text = CKeyPadFactory::accessKeyPad("", "", CKeyPadFactory::SKP_DECIMAL);
    QCOMPARE(text, QString("A"));
}

void tst_keypadfactory_lifetime::askDuringTheApplication()
{
    KeyPadUser user([this](CSoftKeyPad* dialog) {
        m_dialog = dialog;
        touch(keyOf(dialog, Qt::Key_1));
        QApplication::quit();
    });
    user.leaveOpen();
    m_result = CKeyPadFactory::accessKeyPad("", "0", CKeyPadFactory::SKP_DECIMAL);
    QVERIFY(m_dialog);
    QVERIFY(!m_dialog->isVisible());
}

void tst_keypadfactory_lifetime::applicationQuitsWhileOpen()
{
    QTimer::singleShot(0, this, SLOT(askDuringTheApplication()));
    QApplication::exec();
    QCOMPARE(m_result, QString("01"));
    testing::deleteDeferred();
    QVERIFY(m_dialog.isNull());
}

QTEST_MAIN(tst_keypadfactory_lifetime)
#include "tst_keypadfactory_lifetime.moc"
