#include "support/loggedcombobox.h"
#include "support/rows.h"

#include <QStandardItemModel>

namespace
{

const char* const ownSignals[] = {
    SIGNAL(currentValueChanged(QString)),
    SIGNAL(currentValueChanged(int)),
    SIGNAL(activated(int)),
    SIGNAL(currentItemActivated(int)),
};
const size_t ownSignalCount = sizeof ownSignals / sizeof ownSignals[0];

} // namespace

class tst_combobox_signals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void touchOfAnotherRow();
    void touchOfTheSameRow();
    void touchOfAnotherRowWithTheSameText();
    void touchOfARowThatTheClosedBoxLacks();
    void change();
    void addItems();
    void oldTableHoldsUntilTheNewOneIsShown();
    void restrictionByIndex();
    void key();
    void wheel();
    void keyOnARestrictedBox();
    void itemActivatedOfAnUnknownText();
    void slotsCanBeCalled();
    void renamedRowIsNoChange();
    void clearedAndFilledByQtsOwnMeans();
    void noRowIsAnnouncedOnce();
    void anotherRowWithTheSameText();
    void editableBox();
    void touchMayDeleteTheBox();
    void changeMayDeleteTheBox();
    void keyMayDeleteTheBoxLater();
    void signalsAreInOrderInTheMetaObject();
    void slotsAreThoseForOthers();
};

void tst_combobox_signals::touchOfAnotherRow()
{
    LoggedComboBox f;
    f.touch(3);
    QCOMPARE(f.taken(), text("row(3) text(item 3) text(item 3) index(3) activated(3) item(3)"));
    QCOMPARE(f.box->currentIndex(), 3);
    QVERIFY(!f.list()->isVisible());
}

void tst_combobox_signals::touchOfTheSameRow()
{
    LoggedComboBox f;
    f.touch(0);
    QCOMPARE(f.taken(), text("text(item 0) index(0) activated(0) item(0)"));
    f.touch(0);
    QCOMPARE(f.taken(), text("text(item 0) index(0) activated(0) item(0)"));
}

void tst_combobox_signals::touchOfAnotherRowWithTheSameText()
{
    LoggedComboBox f(QStringList() << text("a") << text("b") << text("b"));
    f.touch(2);
    QCOMPARE(f.taken(), text("row(1) text(b) text(b) index(2) activated(2) item(2)"));
    QCOMPARE(f.box->currentIndex(), 2);
    f.touch(1);
    QCOMPARE(f.taken(), text("text(b) index(1) activated(1) item(1)"));
    QCOMPARE(f.box->currentIndex(), 1);
}

void tst_combobox_signals::touchOfARowThatTheClosedBoxLacks()
{
    LoggedComboBox f;
    f.box->setVisibleItem(text("item 1"));
    f.box->setVisibleItems(numbers(0, 6), 1);
    f.taken();
    f.touch(4); // the box has no row for it, so none is current
    QCOMPARE(f.taken(), text("row(-1) text() text(item 4) index(4) activated(4) item(4)"));
    QCOMPARE(f.box->currentIndex(), 4);
    QCOMPARE(f.box->currentText(), QString());
}

void tst_combobox_signals::change()
{
    LoggedComboBox f;
    f.box->setCurrentIndex(4);
    QCOMPARE(f.taken(), text("row(4) text(item 4)"));
    f.box->setCurrentIndex(4);
    QCOMPARE(f.taken(), QString());
    f.box->setCurrentIndex(99);
    QCOMPARE(f.taken(), text("row(0) text(item 0)"));
    static_cast<QComboBox*>(f.box)->setCurrentIndex(2); // Qt's own
    QCOMPARE(f.taken(), text("row(2) text(item 2)"));
    QCOMPARE(f.box->currentIndex(), 0);
}

void tst_combobox_signals::addItems()
{
    LoggedComboBox f;
    f.box->setCurrentIndex(3);
    f.taken();
    f.box->addItems(QStringList() << text("a") << text("b"));
    QCOMPARE(f.taken(), text("row(0) text(a)"));
    f.box->addItems(QStringList() << text("a") << text("b"));
    QCOMPARE(f.taken(), QString());
}

void tst_combobox_signals::oldTableHoldsUntilTheNewOneIsShown()
{
    LoggedComboBox f;
    CComboBox* box = f.box;
    f.box->setCurrentIndex(3);
    f.taken();
    Reaction reaction(box, SIGNAL(currentValueChanged(QString)),
                      [box]() { box->itemActivated(text("item 5")); });
    f.box->addItems(QStringList() << text("a") << text("item 5"));
    QCOMPARE(f.taken(), text("row(0) text(a) item(5) activated(5)"));
    f.box->itemActivated(text("item 5"));
    QCOMPARE(f.taken(), text("item(1) activated(1)"));
}

void tst_combobox_signals::restrictionByIndex()
{
    LoggedComboBox f;
    f.box->setVisibleItems(0x5ULL, 2u);
    QCOMPARE(f.taken(), text("row(2) text(item 2)"));
    f.box->setVisibleItems(0x5ULL, 2u);
    QCOMPARE(f.taken(), QString());
    f.box->setInvisibleItems(QList<int>() << 2, 0);
    QCOMPARE(f.taken(), QString());
}

void tst_combobox_signals::key()
{
    LoggedComboBox f;
    QTest::keyClick(f.box, Qt::Key_Down);
    QCOMPARE(f.taken(), text("row(1) text(item 1) activated(1) item(1) activated(1)"));
    QCOMPARE(f.box->currentIndex(), 0); // the stored one does not follow
    QTest::keyClick(f.box, Qt::Key_End);
    QCOMPARE(f.taken(), text("row(6) text(item 6) activated(6) item(6) activated(6)"));
    QTest::keyClick(f.box, Qt::Key_Down);
    QCOMPARE(f.taken(), QString());
}

void tst_combobox_signals::wheel()
{
    LoggedComboBox f;
    testcompat::turnWheel(f.box, -120);
    QCOMPARE(f.taken(), text("row(1) text(item 1) activated(1) item(1) activated(1)"));
    testcompat::turnWheel(f.box, 120);
    QCOMPARE(f.taken(), text("row(0) text(item 0) activated(0) item(0) activated(0)"));
}

void tst_combobox_signals::keyOnARestrictedBox()
{
    LoggedComboBox f;
    f.box->setVisibleItems(QStringList() << text("item 6") << text("other") << text("item 2"), 6);
    f.taken();
    QTest::keyClick(f.box, Qt::Key_Down); // a text that the table lacks
    QCOMPARE(f.taken(), text("row(1) text(other) activated(1) item(0) activated(0)"));
    QTest::keyClick(f.box, Qt::Key_Down);
    QCOMPARE(f.taken(), text("row(2) text(item 2) activated(2) item(2) activated(2)"));
}

void tst_combobox_signals::itemActivatedOfAnUnknownText()
{
    LoggedComboBox f;
    f.box->itemActivated(text("item 5"));
    QCOMPARE(f.taken(), text("item(5) activated(5)"));
    f.box->itemActivated(text("other"));
    QCOMPARE(f.taken(), text("item(0) activated(0)"));
}

void tst_combobox_signals::slotsCanBeCalled()
{
    LoggedComboBox f;
    f.box->showPopup();
    f.box->changeCurrentText(text("item 2"));
    QCOMPARE(f.taken(), text("row(2) text(item 2) text(item 2)"));
    QVERIFY(!f.list()->isVisible());
    QCOMPARE(f.box->currentIndex(), 0);
    f.box->showPopup();
    f.box->changeCurrentItem(text("item 4"));
    QCOMPARE(f.taken(), text("row(4) text(item 4) text(item 4)"));
    QVERIFY(!f.list()->isVisible());
    QCOMPARE(f.box->currentIndex(), 0);
    f.box->showPopup();
    f.box->changeCurrentItem(5);
    QCOMPARE(f.taken(), text("row(5) text(item 5) index(5) activated(5) item(5)"));
    QVERIFY(!f.list()->isVisible());
    QCOMPARE(f.box->currentIndex(), 5);
    f.box->changeCurrentItem(99);
    QCOMPARE(f.taken(), text("row(-1) text() index(99) activated(99) item(99)"));
    QCOMPARE(f.box->currentIndex(), 99);
}

void tst_combobox_signals::renamedRowIsNoChange()
{
    LoggedComboBox f;
    f.box->setItemText(0, text("renamed"));
    QCOMPARE(f.taken(), QString());
    f.box->setItemText(3, text("renamed too"));
    f.box->setCurrentIndex(1);
    QCOMPARE(f.taken(), text("row(1) text(item 1)"));
}

void tst_combobox_signals::clearedAndFilledByQtsOwnMeans()
{
    LoggedComboBox f;
    f.box->clear();
    QCOMPARE(f.taken(), text("row(-1) text()"));
    static_cast<QComboBox*>(f.box)->addItems(QStringList() << text("a") << text("b"));
    QCOMPARE(f.taken(), text("row(0) text(a)"));
    f.box->removeItem(0);
    QCOMPARE(f.taken(), text("row(0) text(b)"));
}

void tst_combobox_signals::noRowIsAnnouncedOnce()
{
    LoggedComboBox f;
    f.box->clear();
    f.taken();
    f.box->setCurrentIndex(0);
    f.box->setCurrentIndex(5);
    QCOMPARE(f.taken(), QString());
    f.box->changeCurrentItem(5);
    QCOMPARE(f.taken(), text("index(5) activated(5) item(5)"));
    f.box->changeCurrentText(text("item 1"));
    QCOMPARE(f.taken(), text("text(item 1)"));
    LoggedComboBox empty((QStringList()));
    empty.box->setCurrentIndex(0);
    empty.box->setVisibleItems(1u, 0u);
    QCOMPARE(empty.taken(), QString());
}

void tst_combobox_signals::anotherRowWithTheSameText()
{
    LoggedComboBox f(QStringList() << text("a") << text("b") << text("b"));
    static_cast<QComboBox*>(f.box)->setCurrentIndex(1);
    QCOMPARE(f.taken(), text("row(1) text(b)"));
    // The text is looked up again, so the box ends on the first row that has it.
    static_cast<QComboBox*>(f.box)->setCurrentIndex(2);
    QCOMPARE(static_cast<QComboBox*>(f.box)->currentIndex(), 1);
    QCOMPARE(f.taken(), text("row(2) row(1) text(b) text(b)"));
}

void tst_combobox_signals::editableBox()
{
    LoggedComboBox f;
    f.box->setEditable(true);
    f.taken();
    f.box->setEditText(text("typed"));
    QCOMPARE(f.taken(), QString());
    f.box->setCurrentIndex(2);
    QCOMPARE(f.log.filter(text("text(")), QStringList(text("text(item 2)")));
    f.taken();
    f.box->setEditable(false);
    f.box->setCurrentIndex(4);
    QCOMPARE(f.taken(), text("row(4) text(item 4)"));
}

void tst_combobox_signals::touchMayDeleteTheBox()
{
    for (size_t i = 0; i < ownSignalCount; ++i) {
        LoggedComboBox f;
        CComboBox* box = f.box;
        QVERIFY(testcompat::waitForWindow(box));
        Reaction reaction(box, ownSignals[i], [box]() { delete box; });
        f.touch(3);
        QVERIFY2(!f.box, ownSignals[i]);
        QCoreApplication::processEvents();
    }
}

void tst_combobox_signals::changeMayDeleteTheBox()
{
    for (int i = 0; i < 3; ++i) {
        const testing::InRow inRow(i);
        LoggedComboBox f;
        CComboBox* box = f.box;
        Reaction reaction(box, SIGNAL(currentValueChanged(QString)), [box]() { delete box; });
        if (i == 0)
            box->setCurrentIndex(3);
        else if (i == 1)
            box->changeCurrentText(text("item 3"));
        else
            box->addItems(QStringList(text("other")));
        QVERIFY(!f.box);
    }
}

/// Qt's box does not survive being deleted while it handles a key, so this is left to later.
void tst_combobox_signals::keyMayDeleteTheBoxLater()
{
    for (size_t i = 0; i < ownSignalCount; ++i) {
        LoggedComboBox f;
        CComboBox* box = f.box;
        Reaction reaction(box, ownSignals[i], [box]() { box->deleteLater(); });
        QTest::keyClick(box, Qt::Key_Down);
        f.touch(4);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY2(!f.box, ownSignals[i]);
    }
}

void tst_combobox_signals::signalsAreInOrderInTheMetaObject()
{
    const QMetaObject& meta = CComboBox::staticMetaObject;
    const char* const names[] = {
        "currentValueChanged(QString)",
        "currentValueChanged(int)",
        "currentItemActivated(int)",
    };
    for (int i = 0; i < 3; ++i)
        QCOMPARE(meta.indexOfMethod(names[i]), meta.methodOffset() + i);
}

void tst_combobox_signals::slotsAreThoseForOthers()
{
    const QMetaObject& meta = CComboBox::staticMetaObject;
    const char* const names[] = {
        "setCurrentIndex(int)",   "changeCurrentText(QString)", "changeCurrentItem(QString)",
        "changeCurrentItem(int)", "itemActivated(QString)",
    };
    const int signalCount = 3;
    const int slotCount = 5;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), signalCount + slotCount);
    for (int i = 0; i < slotCount; ++i)
        QCOMPARE(meta.indexOfMethod(names[i]), meta.methodOffset() + signalCount + i);
}

QTEST_MAIN(tst_combobox_signals)
#include "tst_combobox_signals.moc"
