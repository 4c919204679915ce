#include "keypad/abstractkeypad.h"
#include "support/testing.h"

#include <QSignalSpy>

class tst_abstractkeypad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newGridIsBlackAndFixed();
    void gridIsEmpty();
    void paintsItsBackground();
    void signalTellsTextAndCode();
};

void tst_abstractkeypad::newGridIsBlackAndFixed()
{
    QWidget parent;
    CAbstractKeyPad grid(&parent);
    QCOMPARE(grid.parent(), static_cast<QObject*>(&parent));
    QCOMPARE(grid.getBackgroundColor(), QColor(Qt::black));
    QCOMPARE(grid.getBackgroundColor(),
             CWidgetStyle::getColor(CWidgetStyle::KeyPadBackgroundColor));
    QCOMPARE(grid.size(), QSize(560, 390));
    QCOMPARE(grid.minimumSize(), QSize(560, 390));
    QCOMPARE(grid.maximumSize(), QSize(560, 390));
    QCOMPARE(grid.type(), 0x10063u);
}

void tst_abstractkeypad::gridIsEmpty()
{
    CAbstractKeyPad grid;
    QVERIFY(grid.children().isEmpty());
    QVERIFY(grid.initialize());
    QVERIFY(grid.children().isEmpty());
}

void tst_abstractkeypad::paintsItsBackground()
{
    CAbstractKeyPad grid;
    CWIDGET_COMPARE_IMAGES(testing::render(&grid), testing::canvas(&grid, Qt::black));
}

void tst_abstractkeypad::signalTellsTextAndCode()
{
    CAbstractKeyPad grid;
    QSignalSpy changes(&grid, SIGNAL(currentKeyChanged(QString, int)));
    QVERIFY(changes.isValid());
    const QMetaObject* meta = grid.metaObject();
    const int index = meta->indexOfSignal("currentKeyChanged(QString,int)");
    QVERIFY(index >= 0);
    const QList<QByteArray> names = meta->method(index).parameterNames();
    QCOMPARE(names.size(), 2);
    QCOMPARE(names.at(0), QByteArray("text"));
    QCOMPARE(names.at(1), QByteArray("keyCode"));
    QMetaObject::invokeMethod(&grid, "currentKeyChanged", Q_ARG(QString, QString("a")),
                              Q_ARG(int, 65));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.at(0).at(0).toString(), QString("a"));
    QCOMPARE(changes.at(0).at(1).toInt(), 65);
}

QTEST_MAIN(tst_abstractkeypad)
#include "tst_abstractkeypad.moc"
