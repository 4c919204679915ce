#include "support/loggedcombobox.h"

namespace
{

/// Does something once, inside the first signal of the row, and notes when that has returned.
class InnerAction
{
public:
    InnerAction(LoggedComboBox* box, const std::function<void()>& action)
        : m_log(&box->log),
          m_action(action),
          m_reaction(box->box, SIGNAL(currentIndexChanged(int)), [this]() { act(); })
    {
    }

private:
    void act()
    {
        std::function<void()> action;
        action.swap(m_action);
        if (!action)
            return;
        action();
        m_log->append(text("returned"));
    }

    QStringList* m_log;
    std::function<void()> m_action;
    Reaction m_reaction;
};

/// A box that leaves nothing behind that could still be used by mistake.
class ErasedBox : public CComboBox
{
public:
    // The counterpart, which compilers ask for; inline, it would be a mismatch to them again.
    __attribute__((noinline)) static void* operator new(size_t size)
    {
        return ::operator new(size);
    }

    static void operator delete(void* memory, size_t size)
    {
        memset(memory, 0xdd, size);
        static Graves graves;
        graves.all.append(memory);
    }

private:
    /// Keeps the memory from being used again before the end.
    struct Graves {
        ~Graves()
        {
            for (int i = 0; i < all.size(); ++i)
                ::operator delete(all.at(i));
        }

        QList<void*> all;
    };
};

QComboBox* qtBox(const LoggedComboBox& f)
{
    return f.box;
}

} // namespace

/// Changes of a combo box from inside its own signals.
class tst_combobox_nesting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void innerChangeIsToldWhenItReturns();
    void innerChangeOfAnInnerChange();
    void innerSlotIsToldWhenItReturns_data();
    void innerSlotIsToldWhenItReturns();
    void innerTouchIsToldWhenItReturns();
    void innerKeyIsToldAtOnce();
    void innerChangeOfQtsOwnIsToldAtOnce();
    void innerEventLoop();
    void innerAddItems();
    void innerChangeInATextSlot();
    void innerChangeInAddItems();
    void qtsOwnChangeIsToldAtOnce();
    void nothingIsLeftOver_data();
    void nothingIsLeftOver();
    void boxMayDieBetweenTwoTexts();
    void boxMayDieOfItsFirstText_data();
    void boxMayDieOfItsFirstText();
    void touchWithANewTable();
    void touchWithARestriction();
};

void tst_combobox_nesting::initTestCase()
{
    if (!testcompat::mayNestRowChanges())
        CWIDGET_SKIP("Qt's own combo box of this version does not survive such changes");
}

void tst_combobox_nesting::innerChangeIsToldWhenItReturns()
{
    LoggedComboBox f;
    InnerAction inner(&f, [&f]() { f.box->setCurrentIndex(5); });
    f.box->setCurrentIndex(2);
    // The outer change tells its text last, and so brings its row back.
    QCOMPARE(f.taken(),
             text("row(2) row(5) text(item 5) returned row(2) text(item 2) text(item 2)"));
}

void tst_combobox_nesting::innerChangeOfAnInnerChange()
{
    LoggedComboBox f;
    InnerAction first(&f, [&f]() { f.box->setCurrentIndex(5); });
    InnerAction second(&f, [&f]() { f.box->setCurrentIndex(6); }); // inside that of the first
    f.box->setCurrentIndex(2);
    QCOMPARE(f.taken(), text("row(2) row(5) row(6) text(item 6) returned "
                             "row(5) text(item 5) text(item 5) returned "
                             "row(2) text(item 2) text(item 2)"));
}

void tst_combobox_nesting::innerSlotIsToldWhenItReturns_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::newRow("text") << QByteArray("changeCurrentText");
    QTest::newRow("touched text") << QByteArray("changeCurrentItem");
}

void tst_combobox_nesting::innerSlotIsToldWhenItReturns()
{
    QFETCH(QByteArray, slot);
    LoggedComboBox f;
    InnerAction inner(&f, [&]() {
        QMetaObject::invokeMethod(f.box, slot.constData(), Q_ARG(QString, text("item 5")));
    });
    f.box->setCurrentIndex(2);
    QCOMPARE(f.taken(), text("row(2) row(5) text(item 5) text(item 5) returned "
                             "row(2) text(item 2) text(item 2)"));
}

void tst_combobox_nesting::innerTouchIsToldWhenItReturns()
{
    LoggedComboBox f;
    InnerAction inner(&f, [&f]() { f.touch(4); });
    f.box->setCurrentIndex(2);
    QCOMPARE(f.taken(),
             text("row(2) row(4) text(item 4) text(item 4) index(4) activated(4) item(4) returned "
                  "row(2) text(item 2) text(item 2)"));
    QCOMPARE(f.box->currentIndex(), 4);
}

void tst_combobox_nesting::innerKeyIsToldAtOnce()
{
    LoggedComboBox f;
    InnerAction inner(&f, [&f]() { QTest::keyClick(f.box, Qt::Key_Down); });
    f.box->setCurrentIndex(2);
    QCOMPARE(f.taken(), text("row(2) row(3) text(item 3) activated(3) item(3) activated(3) "
                             "returned row(2) text(item 2) text(item 2)"));
}

void tst_combobox_nesting::innerChangeOfQtsOwnIsToldAtOnce()
{
    LoggedComboBox f;
    InnerAction inner(&f, [&f]() { qtBox(f)->setCurrentIndex(4); });
    f.box->setCurrentIndex(2);
    QCOMPARE(f.taken(),
             text("row(2) row(4) text(item 4) returned row(2) text(item 2) text(item 2)"));
}

/// What a message box in a slot comes to.
void tst_combobox_nesting::innerEventLoop()
{
    LoggedComboBox f;
    InnerAction inner(&f, [&f]() {
        QMetaObject::invokeMethod(f.box, "setCurrentIndex", Qt::QueuedConnection, Q_ARG(int, 5));
        QEventLoop loop;
        QTimer::singleShot(20, &loop, SLOT(quit()));
        loop.exec();
    });
    f.box->setCurrentIndex(2);
    QCOMPARE(f.taken(),
             text("row(2) row(5) text(item 5) returned row(2) text(item 2) text(item 2)"));
}

void tst_combobox_nesting::innerAddItems()
{
    LoggedComboBox f;
    InnerAction inner(&f, [&f]() { f.box->addItems(QStringList() << text("a") << text("b")); });
    f.box->setCurrentIndex(2);
    const QString told = f.taken();
    QVERIFY2(told.startsWith(text("row(2) row(0) text(a) returned ")), qPrintable(told));
    QCOMPARE(f.box->count(), 2);
}

void tst_combobox_nesting::innerChangeInATextSlot()
{
    LoggedComboBox f;
    CComboBox* box = f.box;
    bool done = false;
    Reaction reaction(box, SIGNAL(currentValueChanged(QString)), [&]() {
        if (done)
            return;
        done = true;
        box->changeCurrentText(text("item 5"));
        f.log.append(text("returned"));
    });
    box->setCurrentIndex(2);
    QCOMPARE(f.taken(), text("row(2) text(item 2) row(5) text(item 5) text(item 5) returned"));
    done = false;
    QTest::keyClick(box, Qt::Key_Home); // Qt's own change
    QCOMPARE(f.taken(), text("row(0) text(item 0) row(5) text(item 5) text(item 5) returned "
                             "activated(5) item(5) activated(5)"));
}

void tst_combobox_nesting::innerChangeInAddItems()
{
    LoggedComboBox f;
    f.box->setCurrentIndex(3);
    f.taken();
    InnerAction inner(&f, [&f]() { qtBox(f)->clear(); });
    f.box->addItems(QStringList() << text("a") << text("b"));
    const QString told = f.taken();
    QVERIFY2(told.startsWith(text("row(0) row(-1) text() returned ")), qPrintable(told));
}

void tst_combobox_nesting::qtsOwnChangeIsToldAtOnce()
{
    LoggedComboBox f;
    InnerAction inner(&f, [&f]() { f.box->setCurrentIndex(5); });
    qtBox(f)->setCurrentIndex(2);
    QCOMPARE(f.taken(),
             text("row(2) row(5) text(item 5) returned row(2) text(item 2) text(item 2)"));
}

void tst_combobox_nesting::nothingIsLeftOver_data()
{
    QTest::addColumn<bool>("isBlocked");
    QTest::newRow("told") << false;
    QTest::newRow("signals blocked in between") << true; // the text of the row never comes
}

void tst_combobox_nesting::nothingIsLeftOver()
{
    QFETCH(bool, isBlocked);
    LoggedComboBox f;
    InnerAction inner(&f, [&]() {
        f.box->setCurrentIndex(5);
        f.box->blockSignals(isBlocked);
    });
    f.box->setCurrentIndex(2);
    f.box->blockSignals(false);
    f.taken();
    f.box->setItemText(qtBox(f)->currentIndex(), text("renamed"));
    QCOMPARE(f.taken(), QString());
    f.box->setCurrentIndex(1);
    QCOMPARE(f.taken(), text("row(1) text(item 1)"));
    qtBox(f)->setCurrentIndex(3);
    QCOMPARE(f.taken(), text("row(3) text(item 3)"));
}

void tst_combobox_nesting::boxMayDieBetweenTwoTexts()
{
    LoggedComboBox f(numberedTexts(7), new ErasedBox);
    CComboBox* box = f.box;
    InnerAction inner(&f, [box]() { box->setCurrentIndex(5); });
    bool isOuter = false;
    Reaction reaction(box, SIGNAL(currentValueChanged(QString)), [&]() {
        if (isOuter)
            delete box;
        isOuter = true;
    });
    box->setCurrentIndex(2);
    QVERIFY(!f.box);
    QCOMPARE(f.taken(), text("row(2) row(5) text(item 5) returned row(2) text(item 2)"));
}

void tst_combobox_nesting::boxMayDieOfItsFirstText_data()
{
    QTest::addColumn<bool>("byIndex");
    QTest::newRow("chosen by its text") << false;
    QTest::newRow("chosen by its index") << true;
}

void tst_combobox_nesting::boxMayDieOfItsFirstText()
{
    QFETCH(bool, byIndex);
    LoggedComboBox f(numberedTexts(7), new ErasedBox);
    CComboBox* box = f.box;
    Reaction reaction(box, SIGNAL(currentValueChanged(QString)), [box]() { delete box; });
    if (byIndex)
        box->changeCurrentItem(2);
    else
        box->changeCurrentText(text("item 2"));
    QVERIFY(!f.box);
    QCOMPARE(f.taken(), text("row(2) text(item 2)"));
}

/// The list tells the index that its slots have left it.
void tst_combobox_nesting::touchWithANewTable()
{
    LoggedComboBox f;
    CComboBox* box = f.box;
    bool done = false;
    Reaction reaction(box, SIGNAL(currentValueChanged(QString)), [&]() {
        if (!done) {
            done = true;
            box->addItems(QStringList() << text("x") << text("y"));
        }
    });
    f.touch(4);
    const QString told = f.taken();
    QVERIFY2(told.endsWith(text(" index(0) activated(0) item(0)")), qPrintable(told));
    QCOMPARE(box->currentIndex(), 0);
    QCOMPARE(box->currentText(), text("x"));
}

void tst_combobox_nesting::touchWithARestriction()
{
    LoggedComboBox f;
    CComboBox* box = f.box;
    Reaction reaction(box, SIGNAL(currentValueChanged(QString)),
                      [box]() { box->setVisibleItems(0x7ULL, 1); });
    f.touch(4);
    const QString told = f.taken();
    QVERIFY2(told.endsWith(text(" index(1) activated(1) item(1)")), qPrintable(told));
    QCOMPARE(box->currentIndex(), 1);
}

QTEST_MAIN(tst_combobox_nesting)
#include "tst_combobox_nesting.moc"
