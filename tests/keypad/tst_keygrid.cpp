// What the three grids of keys have in common, on each of them.

#include "keypad/genkeypad.h"
#include "keypad/hexkeypad.h"
#include "keypad/numkeypad.h"
#include "support/keypads.h"
#include "support/rows.h"

#include <QHBoxLayout>
#include <QSignalSpy>
#include <QVBoxLayout>

using testing::ExpectedKeys;
using testing::keyOf;
using testing::keysOf;
using testing::touch;

namespace
{

/// A grid with the methods that each class has for itself.
struct Grid {
    CAbstractKeyPad* pad;
    std::function<void(CKeyButton*)> keyPress;
    std::function<void(CKeyButton*)> appendKey;
};

template <typename Class>
Grid gridOf(Class* pad)
{
    const Grid grid = {pad, [pad](CKeyButton* key) { pad->keyPress(key); },
                       [pad](CKeyButton* key) { pad->appendKey(key); }};
    return grid;
}

Grid newGeneral()
{
    return gridOf(new CGenKeyPad);
}

Grid newHex()
{
    return gridOf(new CHexKeyPad);
}

Grid newNumeric()
{
    return gridOf(new CNumKeyPad(CNumKeyPad::SignedMode));
}

/// What is particular about each grid.
struct GridRow {
    const char* name;
    Grid (*create)();
    ExpectedKeys (*keys)();
    QMargins margins;
    int spacing;
    QList<int> rowSpacings;
    QList<bool> rowsCentered;
    int otherKey;
    int applyPicture;
};

QList<GridRow> gridRows()
{
    const QList<bool> none = QList<bool>() << false << false;
    const GridRow general = {"general",
                             newGeneral,
                             testing::generalKeys,
                             QMargins(1, 5, 3, 0),
                             4,
                             QList<int>() << -1 << -1 << -1 << -1 << -1 << -1,
                             QList<bool>() << false << false << true << true << true << true,
                             Qt::Key_Q,
                             19};
    const GridRow hex = {"hexadecimal",
                         newHex,
                         testing::hexKeys,
                         QMargins(0, 10, 0, 100),
                         -1,
                         QList<int>() << 10 << 10 << 10 << 10 << 10 << 10 << 10 << -1,
                         QList<bool>(none) << none << none << false << true,
                         Qt::Key_A,
                         34};
    const GridRow numeric = {"numeric",
                             newNumeric,
                             testing::numericKeys,
                             QMargins(0, 20, 0, 100),
                             -1,
                             QList<int>() << 20 << 20 << 20 << 20 << 20 << -1,
                             QList<bool>(none) << none << none,
                             Key_PlusMinus,
                             52};
    return QList<GridRow>() << general << hex << numeric;
}

ExpectedKeys watched(const ExpectedKeys& specs)
{
    ExpectedKeys result;
    for (int i = 0; i < specs.size(); ++i) {
        if (specs.at(i).code != Qt::Key_unknown)
            result.append(specs.at(i));
    }
    return result;
}

QList<CKeyButton*> watchedKeysOf(const QWidget* pad)
{
    QList<CKeyButton*> keys;
    const QList<CKeyButton*> all = keysOf(pad);
    for (int i = 0; i < all.size(); ++i) {
        if (all.at(i)->key() != Qt::Key_unknown)
            keys.append(all.at(i));
    }
    return keys;
}

} // namespace

class tst_keygrid : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void deleteSender()
    {
        delete sender();
    }

private Q_SLOTS:
    void initTestCase_data();
    void init();
    void cleanup();

    void keysInTheirOrder();
    void keysAreChildrenInOrder();
    void looksOfEveryKey();
    void applyStartsSelected();
    void layoutOfTheRows();
    void rowsOfTheLayout();
    void initializeBuildsOnce();
    void everyKeyIsReported();
    void firstPressDeselectsApply();
    void pressedKeyKeepsItsSelectedLook();
    void samePressTwiceIsReportedTwice();
    void quickSecondTouchIsReported();
    void nullPressDeselectsAndReportsNothing();
    void appendedKeyIsWatched();
    void appendingNullIsIgnored();
    void filterLetsThePressThrough();
    void onlyAPressCounts();
    void slotMayDeleteTheGrid();
    void slotMayDeleteAForeignGrid();

private:
    GridRow m_row;
    Grid m_grid;
    QPointer<CAbstractKeyPad> m_pad;
};

/// Every test runs with each grid.
void tst_keygrid::initTestCase_data()
{
    QTest::addColumn<int>("row");
    const QList<GridRow> all = gridRows();
    for (int i = 0; i < all.size(); ++i)
        QTest::newRow(all.at(i).name) << i;
}

void tst_keygrid::init()
{
    QFETCH_GLOBAL(int, row);
    m_row = gridRows().at(row);
    m_grid = m_row.create();
    m_pad = m_grid.pad;
}

void tst_keygrid::cleanup()
{
    delete m_pad;
}

void tst_keygrid::keysInTheirOrder()
{
    const QList<CKeyButton*> keys = watchedKeysOf(m_pad);
    const ExpectedKeys specs = watched(m_row.keys());
    QCOMPARE(keys.size(), specs.size());
    for (int i = 0; i < keys.size(); ++i) {
        const testing::InRow inRow(i);
        QCOMPARE(testing::difference(keys.at(i), specs.at(i)), QString());
        QVERIFY(keys.at(i)->isEnabled());
    }
}

void tst_keygrid::keysAreChildrenInOrder()
{
    QList<CKeyButton*> direct;
    for (int i = 0; i < m_pad->children().size(); ++i) {
        if (CKeyButton* key = qobject_cast<CKeyButton*>(m_pad->children().at(i)))
            direct.append(key);
    }
    QCOMPARE(direct, keysOf(m_pad));
    QCOMPARE(direct.size(), m_row.keys().size());
}

void tst_keygrid::looksOfEveryKey()
{
    const QList<CKeyButton*> keys = watchedKeysOf(m_pad);
    const ExpectedKeys specs = watched(m_row.keys());
    for (int i = 0; i < keys.size(); ++i) {
        const testing::InRow inRow(i);
        const int background = specs.at(i).background;
        if (keys.at(i)->key() == Key_Apply)
            QCOMPARE(testing::lookDifference(keys.at(i), background + 1, Qt::black), QString());
        else
            QCOMPARE(testing::lookDifference(keys.at(i), background, Qt::white), QString());
        QCOMPARE(testing::statesDifference(keys.at(i), background), QString());
    }
}

void tst_keygrid::applyStartsSelected()
{
    QCOMPARE(testing::selectedKeys(keysOf(m_pad)), QList<int>() << Key_Apply);
    QCOMPARE(keyOf(m_pad, Key_Apply)->getText(), QString("Apply"));
}

void tst_keygrid::layoutOfTheRows()
{
    const QSize sizes[] = {QSize(560, 390), QSize(469, 390), QSize(200, 200), QSize(801, 601)};
    for (size_t i = 0; i < sizeof sizes / sizeof sizes[0]; ++i) {
        const testing::InRow inRow(i);
        const QScopedPointer<CAbstractKeyPad> pad(m_row.create().pad);
        pad->setSize(sizes[i]);
        pad->layout()->activate();
        const QList<QRect> expected =
            testing::geometryOf(m_row.keys(), sizes[i], m_row.margins, m_row.spacing,
                                m_row.rowSpacings, m_row.rowsCentered);
        QCOMPARE(testing::geometryOf(keysOf(pad.data())), expected);
    }
}

/// Rows without keys take no place, so only this test sees that they are there.
void tst_keygrid::rowsOfTheLayout()
{
    QVBoxLayout* column = qobject_cast<QVBoxLayout*>(m_pad->layout());
    QVERIFY(column);
    QCOMPARE(column->contentsMargins(), m_row.margins);
    QCOMPARE(column->count(), m_row.rowSpacings.size());
    for (int i = 0; i < column->count(); ++i) {
        QHBoxLayout* row = qobject_cast<QHBoxLayout*>(column->itemAt(i)->layout());
        QVERIFY(row);
        int keys = 0;
        for (int j = 0; j < m_row.keys().size(); ++j)
            keys += m_row.keys().at(j).row == i ? 1 : 0;
        QCOMPARE(row->count(), keys + 2);
        QVERIFY(row->itemAt(0)->spacerItem());
        QVERIFY(row->itemAt(keys + 1)->spacerItem());
        if (m_row.rowSpacings.at(i) >= 0)
            QCOMPARE(row->spacing(), m_row.rowSpacings.at(i));
        const int alignment = m_row.rowsCentered.at(i) ? 0x84 : 0;
        QCOMPARE(static_cast<int>(row->alignment()), alignment);
    }
}

void tst_keygrid::initializeBuildsOnce()
{
    touch(keyOf(m_pad, m_row.otherKey));
    testing::Messages messages;
    QVERIFY(m_pad->initialize());
    QCOMPARE(keysOf(m_pad).size(), m_row.keys().size());
    QCOMPARE(testing::selectedKeys(keysOf(m_pad)), QList<int>() << m_row.otherKey);
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_keygrid::everyKeyIsReported()
{
    const QList<CKeyButton*> keys = watchedKeysOf(m_pad);
    for (int i = 0; i < keys.size(); ++i) {
        const testing::InRow inRow(i);
        QSignalSpy changes(m_pad, SIGNAL(currentKeyChanged(QString, int)));
        touch(keys.at(i));
        QCOMPARE(changes.count(), 1);
        QCOMPARE(changes.at(0).at(1).toInt(), keys.at(i)->key());
        QCOMPARE(testing::selectedKeys(keys), QList<int>() << keys.at(i)->key());
    }
}

void tst_keygrid::firstPressDeselectsApply()
{
    CKeyButton* apply = keyOf(m_pad, Key_Apply);
    testing::press(keyOf(m_pad, m_row.otherKey));
    QVERIFY(!apply->isSelected());
    QCOMPARE(testing::lookDifference(apply, m_row.applyPicture, Qt::white), QString());
}

void tst_keygrid::pressedKeyKeepsItsSelectedLook()
{
    CKeyButton* apply = keyOf(m_pad, Key_Apply);
    touch(keyOf(m_pad, m_row.otherKey));
    testing::press(apply);
    QCOMPARE(testing::lookDifference(apply, m_row.applyPicture - 1, Qt::white), QString());
    testing::release(apply);
    QCOMPARE(testing::lookDifference(apply, m_row.applyPicture + 1, Qt::black), QString());
    touch(keyOf(m_pad, m_row.otherKey));
    QCOMPARE(testing::lookDifference(apply, m_row.applyPicture, Qt::white), QString());
}

void tst_keygrid::samePressTwiceIsReportedTwice()
{
    QSignalSpy changes(m_pad, SIGNAL(currentKeyChanged(QString, int)));
    CKeyButton* key = keyOf(m_pad, m_row.otherKey);
    touch(key);
    touch(key);
    QCOMPARE(changes.count(), 2);
    QCOMPARE(changes.at(0), changes.at(1));
    QVERIFY(key->isSelected());
}

void tst_keygrid::quickSecondTouchIsReported()
{
    QSignalSpy changes(m_pad, SIGNAL(currentKeyChanged(QString, int)));
    CKeyButton* key = keyOf(m_pad, m_row.otherKey);
    touch(key);
    testing::pressAgain(key);
    testing::release(key);
    QCOMPARE(changes.count(), 2);
    QCOMPARE(changes.at(0), changes.at(1));
    QVERIFY(key->isSelected());
}

void tst_keygrid::nullPressDeselectsAndReportsNothing()
{
    const QList<CKeyButton*> keys = keysOf(m_pad);
    QSignalSpy changes(m_pad, SIGNAL(currentKeyChanged(QString, int)));
    m_grid.keyPress(0);
    QCOMPARE(changes.count(), 0);
    QCOMPARE(testing::selectedKeys(keys), QList<int>());
    // The old key is still the recorded one: selected by hand, it is deselected by the next press.
    keyOf(m_pad, Key_Apply)->setSelected(true);
    touch(keyOf(m_pad, m_row.otherKey));
    QCOMPARE(testing::selectedKeys(keys), QList<int>() << m_row.otherKey);
}

void tst_keygrid::appendedKeyIsWatched()
{
    CKeyButton key;
    key.setKeyText("x");
    key.setKey(77);
    QSignalSpy changes(m_pad, SIGNAL(currentKeyChanged(QString, int)));
    touch(&key);
    QCOMPARE(changes.count(), 0);
    m_grid.appendKey(&key);
    touch(&key);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.at(0).at(0).toString(), QString("x"));
    QCOMPARE(changes.at(0).at(1).toInt(), 77);
    QVERIFY(!key.parent());
    delete m_pad;
    touch(&key);
}

void tst_keygrid::appendingNullIsIgnored()
{
    QSignalSpy changes(m_pad, SIGNAL(currentKeyChanged(QString, int)));
    m_grid.appendKey(0);
    touch(keyOf(m_pad, m_row.otherKey));
    QCOMPARE(changes.count(), 1);
}

void tst_keygrid::filterLetsThePressThrough()
{
    CKeyButton* key = keyOf(m_pad, m_row.otherKey);
    QSignalSpy pressed(key, SIGNAL(pressed()));
    touch(key);
    QCOMPARE(pressed.count(), 1);
    QEvent press(QEvent::MouseButtonPress);
    QVERIFY(!m_pad->eventFilter(key, &press));
    QSignalSpy changes(m_pad, SIGNAL(currentKeyChanged(QString, int)));
    CPushButton noKey;
    QVERIFY(!m_pad->eventFilter(&noKey, &press));
    QCOMPARE(changes.count(), 0);
    QCOMPARE(testing::selectedKeys(keysOf(m_pad)), QList<int>());
}

void tst_keygrid::onlyAPressCounts()
{
    CKeyButton* key = keyOf(m_pad, m_row.otherKey);
    QSignalSpy changes(m_pad, SIGNAL(currentKeyChanged(QString, int)));
    const QEvent::Type types[] = {QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick,
                                  QEvent::MouseMove, QEvent::Enter, QEvent::KeyPress};
    for (size_t i = 0; i < sizeof types / sizeof types[0]; ++i) {
        const testing::InRow inRow(i);
        QEvent event(types[i]);
        QVERIFY(!m_pad->eventFilter(key, &event));
    }
    QCOMPARE(changes.count(), 0);
    testing::press(key);
    QCOMPARE(changes.count(), 1);
    testing::release(key);
    QCOMPARE(changes.count(), 1);
}

void tst_keygrid::slotMayDeleteTheGrid()
{
    connect(m_pad, SIGNAL(currentKeyChanged(QString, int)), SLOT(deleteSender()));
    testing::press(keyOf(m_pad, m_row.otherKey));
    QVERIFY(m_pad.isNull());
}

void tst_keygrid::slotMayDeleteAForeignGrid()
{
    CKeyButton key;
    m_grid.appendKey(&key);
    connect(m_pad, SIGNAL(currentKeyChanged(QString, int)), SLOT(deleteSender()));
    QSignalSpy clicked(&key, SIGNAL(clicked()));
    touch(&key);
    QVERIFY(m_pad.isNull());
    QCOMPARE(clicked.count(), 1);
}

QTEST_MAIN(tst_keygrid)
#include "tst_keygrid.moc"
