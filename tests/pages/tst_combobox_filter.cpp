#include "pages/combobox.h"
#include "pages/pagelistwidget.h"
#include "support/signaltools.h"
#include "support/testing.h"

namespace
{

/// A box with 70 entries and a log of its signals.
struct Fixture {
    explicit Fixture(int count = 70)
    {
        box.addItems(numberedTexts(count));
        taps.append(tap("text", SIGNAL(currentValueChanged(QString))));
        taps.append(tap("index", SIGNAL(currentValueChanged(int))));
        taps.append(tap("activated", SIGNAL(activated(int))));
        taps.append(tap("item", SIGNAL(currentItemActivated(int))));
    }

    ~Fixture()
    {
        qDeleteAll(taps);
    }

    SignalTap* tap(const char* name, const char* signal)
    {
        return new SignalTap(&log, name, &box, signal);
    }

    CPageListWidget* list() const
    {
        return box.findChild<CPageListWidget*>();
    }

    QList<int> offered() const
    {
        return list()->visibleItemsIndex();
    }

    QStringList modelTexts() const
    {
        QStringList texts;
        for (int i = 0; i < box.count(); ++i)
            texts.append(box.itemText(i));
        return texts;
    }

    int row() const
    {
        return static_cast<const QComboBox&>(box).currentIndex();
    }

    CComboBox box;
    QStringList log;
    QList<SignalTap*> taps;
};

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

QList<int> list(int a, int b = -1, int c = -1)
{
    QList<int> result;
    result << a;
    if (b >= 0)
        result << b;
    if (c >= 0)
        result << c;
    return result;
}

QStringList someTexts()
{
    return QStringList() << text("item 5") << text("item 1");
}

} // namespace

Q_DECLARE_METATYPE(QList<int>)

class tst_combobox_filter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyBitOf64();
    void everyBitOf32();
    void masks_data();
    void masks();
    void maskOfZeroHidesTheBox();
    void maskKeepsTheRowOfTheWishedEntry();
    void maskPastTheTable();
    void byIndex();
    void byIndexKeepsOrderAndRawIndex();
    void sameAgainDoesNothing();
    void isChangedByIndexes_data();
    void isChangedByIndexes();
    void isChangedByTexts_data();
    void isChangedByTexts();
    void byExclusion_data();
    void byExclusion();
    void byTextsAboveTheFirst();
    void byTextsWithTheFirst();
    void byTextsWithANegativeIndex();
    void byTextsOutOfRange();
    void byTextsThatTheTableDoesNotHave();
    void byTextsRepeated();
    void byTextsAndText_data();
    void byTextsAndText();
    void byTextsAndTextWithAnIndexPastTheCount();
    void singleText();
    void singleUnknownText();
    void blockedSignalsStayBlocked();
    void boxMayDieInItsSignals();
};

void tst_combobox_filter::everyBitOf64()
{
    Fixture f;
    for (unsigned int bit = 0; bit < 64; ++bit) {
        f.box.setVisibleItems(1ULL << bit, bit);
        QCOMPARE(f.offered(), list(static_cast<int>(bit)));
        QCOMPARE(f.box.currentIndex(), static_cast<int>(bit));
        QCOMPARE(f.box.currentText(), numberedTexts(70).at(static_cast<int>(bit)));
        QVERIFY(!f.box.isHidden());
    }
    f.box.setVisibleItems(~0ULL, 63u);
    QCOMPARE(f.offered(), numbers(0, 63));
}

void tst_combobox_filter::everyBitOf32()
{
    Fixture f;
    for (unsigned int bit = 0; bit < 32; ++bit) {
        f.box.setVisibleItems(1u << bit, bit);
        QCOMPARE(f.offered(), list(static_cast<int>(bit)));
        QCOMPARE(f.box.currentIndex(), static_cast<int>(bit));
    }
    f.box.setVisibleItems(~0u, 31u);
    QCOMPARE(f.offered(), numbers(0, 31));
}

void tst_combobox_filter::masks_data()
{
    QTest::addColumn<quint64>("mask");
    QTest::addColumn<uint>("current");
    QTest::addColumn<QList<int>>("offered");
    QTest::addColumn<int>("index");
    QTest::newRow("not among them") << quint64(0x5) << 1u << list(0, 2) << 0;
    QTest::newRow("the second of them") << quint64(0x5) << 2u << list(0, 2) << 2;
    QTest::newRow("the lowest is not the first")
        << (quint64(1) << 40 | 0x12) << 0u << list(1, 4, 40) << 1;
    QTest::newRow("bit 40") << (quint64(1) << 40) << 40u << list(40) << 40;
    QTest::newRow("current past the mask") << quint64(0x6) << 64u << list(1, 2) << 1;
    QTest::newRow("current far past it") << quint64(0x6) << 4294967295u << list(1, 2) << 1;
    QTest::newRow("current of 32") << quint64(0x1) << 32u << list(0) << 0;
}

void tst_combobox_filter::masks()
{
    QFETCH(quint64, mask);
    QFETCH(uint, current);
    QFETCH(QList<int>, offered);
    QFETCH(int, index);
    Fixture f;
    f.box.setVisibleItems(static_cast<unsigned long long>(mask), current);
    QCOMPARE(f.offered(), offered);
    QCOMPARE(f.box.currentIndex(), index);
    QCOMPARE(f.box.count(), 70); // the closed box still has all of them
}

void tst_combobox_filter::maskOfZeroHidesTheBox()
{
    Fixture f;
    f.box.show();
    f.box.setVisibleItems(0x6u, 2u);
    f.log.clear();
    f.box.setVisibleItems(0u, 3u);
    QVERIFY(f.box.isHidden());
    QCOMPARE(f.offered(), list(1, 2)); // as before
    QCOMPARE(f.box.currentIndex(), 3); // set all the same
    QCOMPARE(f.log, QStringList(text("text(item 3)")));
    f.box.setVisibleItems(0x6u, 2u);
    QVERIFY(f.box.isVisible());
    f.box.setVisibleItems(0ULL, 0u);
    QVERIFY(f.box.isHidden());
    f.box.setVisibleItems(1ULL, 0u);
    QVERIFY(f.box.isVisible());
}

void tst_combobox_filter::maskKeepsTheRowOfTheWishedEntry()
{
    Fixture f;
    f.box.setVisibleItems(0x5ULL, 3u);
    QCOMPARE(f.box.currentIndex(), 0);
    QCOMPARE(f.row(), 3);
    QCOMPARE(f.box.currentText(), text("item 3"));
    QCOMPARE(f.log, QStringList(text("text(item 3)")));
}

void tst_combobox_filter::maskPastTheTable()
{
    Fixture f(3);
    f.box.setVisibleItems(0xF0ULL, 5u);
    QCOMPARE(f.offered(), numbers(4, 7));
    QCOMPARE(f.box.currentIndex(), 5); // its bit is set, so it is kept
    QCOMPARE(f.row(), 0);
    QCOMPARE(f.list()->visibleItems(), QStringList()
                                           << QString() << QString() << QString() << QString());
    f.box.showPopup();
    f.box.hidePopup();
    QCOMPARE(f.box.currentIndex(), 5);
}

void tst_combobox_filter::byIndex()
{
    Fixture f;
    f.box.setVisibleItems(list(2, 4), 4);
    QCOMPARE(f.offered(), list(2, 4));
    QCOMPARE(f.box.currentIndex(), 4);
    QCOMPARE(f.row(), 0); // the closed box stays as it is
    QCOMPARE(f.box.count(), 70);
    QCOMPARE(f.log, QStringList());
}

void tst_combobox_filter::byIndexKeepsOrderAndRawIndex()
{
    Fixture f;
    f.box.setVisibleItems(list(7, 2), 99);
    QCOMPARE(f.offered(), list(7, 2));
    QCOMPARE(f.box.currentIndex(), 99);
    f.box.setVisibleItems(QList<int>(), -5);
    QCOMPARE(f.offered(), QList<int>());
    QCOMPARE(f.box.currentIndex(), -5);
    f.box.showPopup();
    f.box.hidePopup();
}

void tst_combobox_filter::sameAgainDoesNothing()
{
    Fixture f;
    f.box.setVisibleItems(list(2, 4), 4);
    f.box.setVisibleItems(someTexts(), 1);
    f.log.clear();
    f.box.setVisibleItems(QStringList() << text("item 1") << text("item 5"), 1);
    QCOMPARE(f.log, QStringList());
    QCOMPARE(f.modelTexts(), someTexts()); // not filled again
    f.box.setVisibleItems(list(1, 5), 1);
    f.box.setVisibleItems(0x22ULL, 1u);
    QCOMPARE(f.log, QStringList());
    QCOMPARE(f.offered(), list(1, 5));
}

void tst_combobox_filter::isChangedByIndexes_data()
{
    QTest::addColumn<QList<int>>("indexes");
    QTest::addColumn<int>("current");
    QTest::addColumn<bool>("changed");
    QTest::newRow("the same") << list(2, 4) << 4 << false;
    QTest::newRow("another current one") << list(2, 4) << 2 << true;
    QTest::newRow("another order") << list(4, 2) << 4 << true;
    QTest::newRow("shorter") << list(2) << 4 << true;
    QTest::newRow("longer") << list(2, 4, 6) << 4 << true;
    QTest::newRow("another one") << list(2, 5) << 4 << true;
    QTest::newRow("none") << QList<int>() << 4 << true;
}

void tst_combobox_filter::isChangedByIndexes()
{
    QFETCH(QList<int>, indexes);
    QFETCH(int, current);
    QFETCH(bool, changed);
    Fixture f;
    f.box.setVisibleItems(list(2, 4), 4);
    const CComboBox& box = f.box;
    QCOMPARE(box.isChanged(indexes, current), changed);
}

void tst_combobox_filter::isChangedByTexts_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<int>("current");
    QTest::addColumn<bool>("changed");
    const QStringList same = QStringList() << text("item 2") << text("item 4");
    QTest::newRow("the same") << same << 4 << false;
    QTest::newRow("another current one") << same << 2 << true;
    QTest::newRow("another order") << (QStringList() << same.at(1) << same.at(0)) << 4 << true;
    QTest::newRow("shorter") << QStringList(same.at(1)) << 4 << true;
    QTest::newRow("another case") << (QStringList() << text("Item 2") << same.at(1)) << 4 << true;
    QTest::newRow("none") << QStringList() << 4 << true;
}

void tst_combobox_filter::isChangedByTexts()
{
    QFETCH(QStringList, texts);
    QFETCH(int, current);
    QFETCH(bool, changed);
    Fixture f;
    f.box.setVisibleItems(list(2, 4), 4);
    const CComboBox& box = f.box;
    QCOMPARE(box.isChanged(texts, current), changed);
}

void tst_combobox_filter::byExclusion_data()
{
    QTest::addColumn<QList<int>>("withheld");
    QTest::addColumn<int>("current");
    QTest::addColumn<QList<int>>("offered");
    QTest::newRow("one") << list(1) << 0 << list(0, 2, 3);
    QTest::newRow("all but one") << list(3, 0, 2) << 1 << list(1);
    QTest::newRow("the current one stays") << list(1) << 1 << list(0, 2, 3);
    QTest::newRow("unknown ones") << list(99, 3) << 2 << list(0, 1, 2);
    QTest::newRow("none") << QList<int>() << 2 << numbers(0, 3);
    QTest::newRow("all") << numbers(0, 3) << 2 << QList<int>();
}

void tst_combobox_filter::byExclusion()
{
    QFETCH(QList<int>, withheld);
    QFETCH(int, current);
    QFETCH(QList<int>, offered);
    Fixture f(4);
    f.box.setInvisibleItems(withheld, current);
    QCOMPARE(f.offered(), offered);
    QCOMPARE(f.box.currentIndex(), current);
    QCOMPARE(f.row(), 0);
    QCOMPARE(f.log, QStringList());
}

void tst_combobox_filter::byTextsAboveTheFirst()
{
    Fixture f;
    f.box.setVisibleItems(someTexts(), 1);
    QCOMPARE(f.modelTexts(), someTexts()); // in the caller's order
    QCOMPARE(f.offered(), list(1, 5));     // in that of the table
    QCOMPARE(f.box.currentIndex(), 1);
    QCOMPARE(f.row(), 1);
    QCOMPARE(f.log, QStringList(text("text(item 1)"))); // from the first row to the second
    f.log.clear();
    f.box.setVisibleItems(someTexts(), 5);
    QCOMPARE(f.row(), 0);
    QCOMPARE(f.log, QStringList()); // its row was there already
}

void tst_combobox_filter::byTextsWithTheFirst()
{
    Fixture f;
    f.box.setVisibleItems(someTexts(), 0);
    QCOMPARE(f.modelTexts(), someTexts());
    QCOMPARE(f.offered(), list(1, 5));
    QCOMPARE(f.box.currentIndex(), 0); // not among them
    QCOMPARE(f.row(), 0);
    QCOMPARE(f.log, QStringList(text("text(item 5)")));
}

void tst_combobox_filter::byTextsWithANegativeIndex()
{
    Fixture f;
    f.box.setVisibleItems(someTexts(), -3);
    QCOMPARE(f.box.currentIndex(), -3); // stored as it is
    QCOMPARE(f.row(), 0);
    QCOMPARE(f.log, QStringList(text("text(item 5)")));
}

void tst_combobox_filter::byTextsOutOfRange()
{
    Fixture f(7);
    f.box.setVisibleItems(someTexts(), 99);
    QCOMPARE(f.offered(), list(1, 5));
    QCOMPARE(f.box.currentIndex(), 99);
    QCOMPARE(f.row(), 0);
    f.box.showPopup();
    f.box.hidePopup();
    QCOMPARE(f.log, QStringList());
}

void tst_combobox_filter::byTextsThatTheTableDoesNotHave()
{
    Fixture f;
    const QStringList texts = QStringList() << text("ITEM 1") << text("other") << text("item 3");
    f.box.setVisibleItems(texts, 3);
    QCOMPARE(f.modelTexts(), texts); // the closed box has them all the same
    QCOMPARE(f.offered(), list(3));
    QCOMPARE(f.box.currentText(), text("item 3"));
    QVERIFY(f.box.isChanged(texts, 3));
}

void tst_combobox_filter::byTextsRepeated()
{
    Fixture f(1);
    f.box.addItems(QStringList() << text("a") << text("b") << text("a") << QString());
    f.box.setVisibleItems(QStringList(text("a")), 2);
    QCOMPARE(f.offered(), list(0, 2));
    QCOMPARE(f.box.currentIndex(), 2);
    f.box.setVisibleItems(QStringList(QString()), 3);
    QCOMPARE(f.offered(), list(3));
}

void tst_combobox_filter::byTextsAndText_data()
{
    QTest::addColumn<QString>("current");
    QTest::addColumn<int>("index");
    QTest::newRow("offered") << text("item 5") << 5;
    QTest::newRow("not offered") << text("item 3") << 3;
    QTest::newRow("not in the table") << text("other") << 6; // the one before
    QTest::newRow("first") << text("item 0") << 0;
}

void tst_combobox_filter::byTextsAndText()
{
    QFETCH(QString, current);
    QFETCH(int, index);
    Fixture f;
    f.box.setCurrentIndex(6);
    f.box.setVisibleItems(someTexts(), current);
    QCOMPARE(f.offered(), list(1, 5));
    QCOMPARE(f.box.currentIndex(), index);
    QCOMPARE(f.modelTexts(), someTexts());
}

void tst_combobox_filter::byTextsAndTextWithAnIndexPastTheCount()
{
    Fixture f(7);
    f.box.setVisibleItems(list(1), 8);
    f.box.setVisibleItems(someTexts(), text("other"));
    QCOMPARE(f.box.currentIndex(), 6);
    f.box.setVisibleItems(list(1), 7); // equal to the count
    f.box.setVisibleItems(someTexts(), text("other"));
    QCOMPARE(f.box.currentIndex(), 7);
}

void tst_combobox_filter::singleText()
{
    Fixture f;
    f.box.setVisibleItem(text("item 9"));
    QCOMPARE(f.offered(), list(9));
    QCOMPARE(f.modelTexts(), QStringList(text("item 9")));
    QCOMPARE(f.box.currentIndex(), 9);
    QCOMPARE(f.row(), 0);
}

void tst_combobox_filter::singleUnknownText()
{
    Fixture f;
    f.box.setCurrentIndex(4);
    f.box.setVisibleItem(text("other"));
    QCOMPARE(f.offered(), QList<int>());
    QCOMPARE(f.modelTexts(), QStringList(text("other")));
    QCOMPARE(f.box.currentIndex(), 4);
}

void tst_combobox_filter::blockedSignalsStayBlocked()
{
    Fixture f;
    f.box.blockSignals(true);
    f.box.setVisibleItems(someTexts(), 1);
    QVERIFY(f.box.signalsBlocked());
    f.box.setVisibleItems(someTexts(), 0);
    QVERIFY(f.box.signalsBlocked());
    QCOMPARE(f.log, QStringList());
    f.box.blockSignals(false);
    f.box.setVisibleItems(numberedTexts(3), 0);
    QVERIFY(!f.box.signalsBlocked());
    QCOMPARE(f.log, QStringList(text("text(item 0)")));
}

void tst_combobox_filter::boxMayDieInItsSignals()
{
    typedef void (*Restriction)(CComboBox*);
    const Restriction restrictions[] = {
        [](CComboBox* box) { box->setVisibleItems(0x6ULL, 2u); },
        [](CComboBox* box) { box->setVisibleItems(0u, 2u); },
        [](CComboBox* box) { box->setVisibleItems(someTexts(), 0); },
        [](CComboBox* box) { box->setVisibleItems(someTexts(), 1); },
        [](CComboBox* box) { box->setVisibleItem(text("item 0")); },
        [](CComboBox* box) { box->setCurrentIndex(3); },
        [](CComboBox* box) { box->addItems(someTexts()); },
    };
    for (size_t i = 0; i < sizeof restrictions / sizeof restrictions[0]; ++i) {
        CComboBox* box = new CComboBox;
        box->addItems(numberedTexts(7));
        QPointer<CComboBox> guard(box);
        Reaction reaction(box, SIGNAL(currentValueChanged(QString)), [box]() { delete box; });
        restrictions[i](box);
        QVERIFY2(!guard, QByteArray::number(static_cast<int>(i)).constData());
    }
}

QTEST_MAIN(tst_combobox_filter)
#include "tst_combobox_filter.moc"
