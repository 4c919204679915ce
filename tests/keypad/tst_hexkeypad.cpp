#include "keypad/hexkeypad.h"
#include "support/keypads.h"

#include <QLayout>
#include <QSignalSpy>

using testing::keyOf;
using testing::keysOf;
using testing::touch;

class tst_hexkeypad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newGridIsThatOfItsBase();
    void everyKeyTellsItsText();
    void lettersDigitsAndFunctionKeysStandBelowEachOther();
    void minusIsAnOrdinaryKey();
    void disabledKeyIsReportedAllTheSame();
};

void tst_hexkeypad::newGridIsThatOfItsBase()
{
    QWidget parent;
    CHexKeyPad grid(&parent);
    QCOMPARE(grid.parent(), static_cast<QObject*>(&parent));
    QCOMPARE(grid.size(), QSize(560, 390));
    QCOMPARE(grid.getBackgroundColor(), QColor(Qt::black));
    QVERIFY(qobject_cast<CAbstractKeyPad*>(&grid));
}

void tst_hexkeypad::everyKeyTellsItsText()
{
    CHexKeyPad grid;
    QSignalSpy changes(&grid, SIGNAL(currentKeyChanged(QString, int)));
    const char texts[] = "ABCDEF1234567890";
    for (int i = 0; texts[i]; ++i)
        touch(keyOf(&grid, texts[i]));
    QCOMPARE(changes.count(), 16);
    for (int i = 0; texts[i]; ++i) {
        QCOMPARE(changes.at(i).at(0).toString(), QString(QLatin1Char(texts[i])));
        QCOMPARE(changes.at(i).at(1).toInt(), static_cast<int>(texts[i]));
    }
}

void tst_hexkeypad::lettersDigitsAndFunctionKeysStandBelowEachOther()
{
    CHexKeyPad grid;
    grid.layout()->activate();
    const QRect a = keyOf(&grid, Qt::Key_A)->geometry();
    const QRect b = keyOf(&grid, Qt::Key_B)->geometry();
    const QRect d = keyOf(&grid, Qt::Key_D)->geometry();
    const QRect one = keyOf(&grid, Qt::Key_1)->geometry();
    const QRect zero = keyOf(&grid, Qt::Key_0)->geometry();
    const QRect del = keyOf(&grid, Qt::Key_Delete)->geometry();
    const QRect backspace = keyOf(&grid, Qt::Key_Backspace)->geometry();
    QCOMPARE(a.top(), 10);
    QCOMPARE(b.left() - a.right() - 1, 10);
    QCOMPARE(d.left(), a.left());
    QVERIFY(d.top() > a.bottom());
    QVERIFY(one.top() > d.bottom());
    QCOMPARE(zero.left(), b.left());
    QVERIFY(zero.top() > keyOf(&grid, Qt::Key_7)->geometry().bottom());
    QVERIFY(del.top() > zero.bottom());
    QVERIFY(qAbs(del.left() + backspace.right() - (grid.width() - 1)) <= 1);
}

void tst_hexkeypad::minusIsAnOrdinaryKey()
{
    CHexKeyPad grid;
    QSignalSpy changes(&grid, SIGNAL(currentKeyChanged(QString, int)));
    touch(keyOf(&grid, Qt::Key_Minus));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.at(0).at(0).toString(), QString("-"));
    QCOMPARE(changes.at(0).at(1).toInt(), 0x2d);
    QCOMPARE(testing::selectedKeys(keysOf(&grid)), QList<int>() << Qt::Key_Minus);
}

void tst_hexkeypad::disabledKeyIsReportedAllTheSame()
{
    CHexKeyPad grid;
    CKeyButton* a = keyOf(&grid, Qt::Key_A);
    a->setEnabled(false);
    QSignalSpy changes(&grid, SIGNAL(currentKeyChanged(QString, int)));
    grid.keyPress(a);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.at(0).at(0).toString(), QString("A"));
    QCOMPARE(changes.at(0).at(1).toInt(), static_cast<int>(Qt::Key_A));
    QCOMPARE(testing::selectedKeys(keysOf(&grid)), QList<int>() << Qt::Key_A);
}

QTEST_MAIN(tst_hexkeypad)
#include "tst_hexkeypad.moc"
