#include "keypad/genkeypad.h"
#include "keypad/hexkeypad.h"
#include "keypad/keypadedit.h"
#include "keypad/numkeypad.h"
#include "support/keypads.h"
#include "support/rows.h"
#include "widgets/toptitlearea.h"

#include <QLayout>
#include <QSignalSpy>

using testing::keyOf;
using testing::keysOf;
using testing::touch;
using testing::type;

namespace
{

CKeyPadEdit* editOf(const QWidget* dialog)
{
    return dialog->findChild<CKeyPadEdit*>();
}

CAbstractKeyPad* gridOf(const QWidget* dialog)
{
    return dialog->findChild<CAbstractKeyPad*>();
}

/// What tells the grids of the types apart: the class and which keys are enabled.
QByteArray kindOf(const QWidget* grid)
{
    QByteArray kind = grid->metaObject()->className();
    if (qobject_cast<const CNumKeyPad*>(grid)) {
        kind += keyOf(grid, Qt::Key_2)->isEnabled() ? "" : " binary";
        kind += keyOf(grid, Key_PlusMinus)->isEnabled() ? "" : " unsigned";
    }
    return kind;
}

const char* const kinds[] = {"CGenKeyPad", "CHexKeyPad", "CNumKeyPad binary", "CNumKeyPad",
                             "CNumKeyPad unsigned"};

} // namespace

class tst_softkeypad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void types();
    void windowOfTheDialog();
    void sizesOfTheDialog();
    void layoutOfTheDialog();
    void gridOfEachType_data();
    void gridOfEachType();
    void everyKeyIsInsideTheDialog_data();
    void everyKeyIsInsideTheDialog();
    void lowestKeysKeepAwayFromTheEdge_data();
    void lowestKeysKeepAwayFromTheEdge();
    void gridBelowTheFieldAfterResizing();
    void initializeBuildsOnce();
    void fieldFiltersAKeyboardByType();
    void paintsBlackBackground();
    void setTextTwiceInserts();
    void clearInputEmptiesTheField();
    void otherTypeReplacesTheGrid_data();
    void otherTypeReplacesTheGrid();
    void sameAndUnknownTypesKeepTheGrid();
    void unknownTypeMayBecomeGeneral();
    void otherTypeWhileShown();
    void replacedGridIsNotHeard();
    void replacedGridIsNotSeenInANestedLoop();
    void otherTypeChangesWhatKeysAreInserted();
    void otherTypeUnblocksSignals();
};

void tst_softkeypad::types()
{
    QCOMPARE(static_cast<int>(CKeyPadFactory::SKP_GENERAL), 0);
    QCOMPARE(static_cast<int>(CKeyPadFactory::SKP_HEX), 1);
    QCOMPARE(static_cast<int>(CKeyPadFactory::SKP_BINARY), 2);
    QCOMPARE(static_cast<int>(CKeyPadFactory::SKP_DECIMAL), 3);
    QCOMPARE(static_cast<int>(CKeyPadFactory::SKP_FLOAT), 4);
}

void tst_softkeypad::windowOfTheDialog()
{
    QWidget parent;
    CSoftKeyPad dialog(CKeyPadFactory::SKP_GENERAL, &parent);
    QCOMPARE(dialog.parent(), static_cast<QObject*>(&parent));
    QCOMPARE(static_cast<int>(dialog.windowFlags()), 0x803);
    QVERIFY(dialog.isWindow());
    QCOMPARE(dialog.windowModality(), Qt::WindowModal);
    QVERIFY(!dialog.isVisible());
    QVERIFY(dialog.getInput().isEmpty());
}

void tst_softkeypad::sizesOfTheDialog()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    QCOMPARE(dialog.size(), QSize(519, 390));
    QCOMPARE(editOf(&dialog)->size(), QSize(469, 82));
    QCOMPARE(gridOf(&dialog)->size(), QSize(469, 390));
    dialog.setSize(600, 420);
    QCOMPARE(dialog.minimumSize(), QSize(600, 420));
    QCOMPARE(dialog.maximumSize(), QSize(600, 420));
    QCOMPARE(editOf(&dialog)->minimumSize(), QSize(550, 82));
    QCOMPARE(editOf(&dialog)->maximumSize(), QSize(550, 82));
    QCOMPARE(editOf(&dialog)->findChild<CTopTitleArea*>()->width(), 550);
    QCOMPARE(gridOf(&dialog)->minimumSize(), QSize(550, 420));
    QCOMPARE(gridOf(&dialog)->maximumSize(), QSize(550, 420));
}

void tst_softkeypad::layoutOfTheDialog()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_GENERAL);
    QVBoxLayout* column = qobject_cast<QVBoxLayout*>(dialog.layout());
    QVERIFY(column);
    QCOMPARE(column->contentsMargins(), QMargins(0, 5, 0, 0));
    QCOMPARE(column->count(), 2);
    QWidget* const expected[] = {editOf(&dialog), gridOf(&dialog)};
    for (int i = 0; i < 2; ++i) {
        QHBoxLayout* row = qobject_cast<QHBoxLayout*>(column->itemAt(i)->layout());
        QVERIFY(row);
        QCOMPARE(row->count(), 1);
        QCOMPARE(row->itemAt(0)->widget(), expected[i]);
        QCOMPARE(row->itemAt(0)->alignment(), Qt::Alignment());
    }
    QCOMPARE(editOf(&dialog)->parentWidget(), static_cast<QWidget*>(&dialog));
    QCOMPARE(gridOf(&dialog)->parentWidget(), static_cast<QWidget*>(&dialog));
}

void tst_softkeypad::gridOfEachType_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("kind");
    for (int i = 0; i < 5; ++i)
        QTest::newRow(kinds[i]) << i << QByteArray(kinds[i]);
    QTest::newRow("above") << 5 << QByteArray("CGenKeyPad");
    QTest::newRow("below") << -1 << QByteArray("CGenKeyPad");
}

void tst_softkeypad::gridOfEachType()
{
    QFETCH(int, number);
    QFETCH(QByteArray, kind);
    CSoftKeyPad dialog(type(number));
    QCOMPARE(dialog.findChildren<CAbstractKeyPad*>().size(), 1);
    QCOMPARE(kindOf(gridOf(&dialog)), kind);
    dialog.setText("Title", "1");
    touch(keyOf(&dialog, Qt::Key_0));
    QCOMPARE(dialog.getInput(), QString("10"));
}

void tst_softkeypad::everyKeyIsInsideTheDialog_data()
{
    QTest::addColumn<int>("number");
    for (int i = 0; i < 5; ++i)
        QTest::newRow(kinds[i]) << i;
}

void tst_softkeypad::everyKeyIsInsideTheDialog()
{
    QFETCH(int, number);
    CSoftKeyPad dialog(type(number));
    dialog.show();
    QVERIFY(testcompat::waitForWindow(&dialog));
    QRegion taken(editOf(&dialog)->geometry());
    QCOMPARE(editOf(&dialog)->geometry(), QRect(25, 5, 469, 82));
    const QList<CKeyButton*> keys = keysOf(&dialog);
    for (int i = 0; i < keys.size(); ++i) {
        const QRect place(keys.at(i)->mapTo(&dialog, QPoint()), keys.at(i)->size());
        QVERIFY2(dialog.rect().contains(place), qPrintable(keys.at(i)->getText()));
        QVERIFY2(!taken.intersects(place), qPrintable(keys.at(i)->getText()));
        taken += place;
    }
}

void tst_softkeypad::lowestKeysKeepAwayFromTheEdge_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("as made") << QSize(519, 390);
    QTest::newRow("larger") << QSize(640, 480);
    QTest::newRow("odd") << QSize(601, 401);
}

/// Two pixels of the dialog, and what the rows leave over when they share the height.
void tst_softkeypad::lowestKeysKeepAwayFromTheEdge()
{
    QFETCH(QSize, size);
    CSoftKeyPad dialog(CKeyPadFactory::SKP_GENERAL);
    dialog.setSize(size.width(), size.height());
    dialog.show();
    QVERIFY(testcompat::waitForWindow(&dialog));
    const CAbstractKeyPad* grid = gridOf(&dialog);
    const int bottom = grid->y() + grid->contentsRect().bottom();
    QCOMPARE(dialog.rect().bottom() - (bottom - grid->layout()->contentsMargins().bottom()), 2);
}

void tst_softkeypad::gridBelowTheFieldAfterResizing()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_GENERAL);
    dialog.setSize(640, 480);
    dialog.show();
    QVERIFY(testcompat::waitForWindow(&dialog));
    QVERIFY(gridOf(&dialog)->y() > editOf(&dialog)->geometry().bottom());
    CKeyButton* apply = keyOf(&dialog, Key_Apply);
    const QRect place(apply->mapTo(&dialog, QPoint()), apply->size());
    QVERIFY(dialog.rect().contains(place));
}

void tst_softkeypad::initializeBuildsOnce()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_HEX);
    CAbstractKeyPad* grid = gridOf(&dialog);
    testing::Messages messages;
    QVERIFY(dialog.initialize());
    QCOMPARE(dialog.findChildren<CAbstractKeyPad*>().size(), 1);
    QCOMPARE(dialog.findChildren<CKeyPadEdit*>().size(), 1);
    QCOMPARE(gridOf(&dialog), grid);
    QCOMPARE(messages.warnings(), QStringList());
}

void tst_softkeypad::fieldFiltersAKeyboardByType()
{
    const char* const kept[] = {"2.ag", "2a", "", "2", "2."};
    for (int number = 0; number < 5; ++number) {
        CSoftKeyPad dialog(type(number));
        QTest::keyClicks(editOf(&dialog), "2.ag");
        QCOMPARE(dialog.getInput(), QString(kept[number]));
    }
}

void tst_softkeypad::paintsBlackBackground()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_GENERAL);
    editOf(&dialog)->hide();
    gridOf(&dialog)->hide();
    CWIDGET_COMPARE_IMAGES(testing::render(&dialog), testing::canvas(&dialog, Qt::black));
}

void tst_softkeypad::setTextTwiceInserts()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    dialog.setText("First", "3");
    QCOMPARE(dialog.getInput(), QString("3"));
    dialog.setText("Second", "5");
    QCOMPARE(dialog.getInput(), QString("35"));
    QCOMPARE(dialog.findChild<CTopTitleArea*>()->title(), QString("Second"));
    // The last good text is what was given, not what the field holds.
    dialog.setRange(100, 200);
    dialog.changeText();
    QCOMPARE(dialog.getInput(), QString("5"));
}

void tst_softkeypad::clearInputEmptiesTheField()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_GENERAL);
    dialog.setText("Title", "text");
    dialog.clearInput();
    QVERIFY(dialog.getInput().isEmpty());
    QVERIFY(editOf(&dialog)->alignment() & Qt::AlignRight);
    dialog.clearInput();
    QVERIFY(dialog.getInput().isEmpty());
}

void tst_softkeypad::otherTypeReplacesTheGrid_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    for (int from = 0; from < 5; ++from) {
        for (int to = 0; to < 5; ++to)
            QTest::newRow(qPrintable(QString("%1 to %2").arg(kinds[from], kinds[to])))
                << from << to;
    }
}

void tst_softkeypad::otherTypeReplacesTheGrid()
{
    QFETCH(int, from);
    QFETCH(int, to);
    CSoftKeyPad dialog(type(from));
    const QPointer<CAbstractKeyPad> before(gridOf(&dialog));
    dialog.setText("Title", "1");
    dialog.setSKPType(type(to));
    QVERIFY(before);
    testing::deleteDeferred();
    QCOMPARE(before.isNull(), from != to);
    QCOMPARE(dialog.findChildren<CAbstractKeyPad*>().size(), 1);
    CAbstractKeyPad* grid = gridOf(&dialog);
    QCOMPARE(kindOf(grid), QByteArray(kinds[to]));
    QCOMPARE(grid->size(), from == to ? QSize(469, 390) : QSize(560, 390));
    QCOMPARE(dialog.getInput(), QString("1"));
    touch(keyOf(grid, Qt::Key_1));
    QCOMPARE(dialog.getInput(), QString("11"));
    QTest::keyClick(editOf(&dialog), 'g'); // the field keeps its type
    QCOMPARE(dialog.getInput(), from == 0 ? QString("11g") : QString("11"));
}

void tst_softkeypad::sameAndUnknownTypesKeepTheGrid()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_BINARY);
    CAbstractKeyPad* grid = gridOf(&dialog);
    const int numbers[] = {2, 5, -1, 1000};
    for (size_t i = 0; i < sizeof numbers / sizeof numbers[0]; ++i) {
        const testing::InRow inRow(i);
        dialog.setSKPType(type(numbers[i]));
        testing::deleteDeferred();
        QCOMPARE(gridOf(&dialog), grid);
        QCOMPARE(grid->size(), QSize(469, 390));
    }
}

void tst_softkeypad::unknownTypeMayBecomeGeneral()
{
    CSoftKeyPad dialog(type(7));
    const QPointer<CAbstractKeyPad> before(gridOf(&dialog));
    dialog.setSKPType(CKeyPadFactory::SKP_GENERAL);
    testing::deleteDeferred();
    QVERIFY(before.isNull());
    QCOMPARE(kindOf(gridOf(&dialog)), QByteArray("CGenKeyPad"));
}

void tst_softkeypad::otherTypeWhileShown()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    dialog.show();
    QVERIFY(testcompat::waitForWindow(&dialog));
    dialog.setSKPType(CKeyPadFactory::SKP_GENERAL);
    testing::deleteDeferred();
    QTRY_VERIFY(gridOf(&dialog)->isVisible());
    dialog.layout()->activate();
    QCOMPARE(dialog.size(), QSize(519, 390));
    QVERIFY(gridOf(&dialog)->y() > editOf(&dialog)->geometry().bottom());
    CKeyButton* apply = keyOf(&dialog, Key_Apply);
    QVERIFY(apply->mapTo(&dialog, QPoint(0, apply->height())).y() <= dialog.height());
    QSignalSpy accepted(&dialog, SIGNAL(accepted()));
    touch(keyOf(&dialog, Qt::Key_Q));
    touch(apply);
    QCOMPARE(dialog.getInput(), QString("q"));
    QCOMPARE(accepted.count(), 1);
}

void tst_softkeypad::replacedGridIsNotHeard()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    const QPointer<CAbstractKeyPad> before(gridOf(&dialog));
    QSignalSpy changes(before, SIGNAL(currentKeyChanged(QString, int)));
    dialog.setSKPType(CKeyPadFactory::SKP_HEX);
    QVERIFY(before);
    touch(keyOf(before, Qt::Key_1));
    QCOMPARE(changes.count(), 0); // all of its connections are gone
    QVERIFY(dialog.getInput().isEmpty());
}

void tst_softkeypad::replacedGridIsNotSeenInANestedLoop()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    const QPointer<CAbstractKeyPad> before(gridOf(&dialog));
    dialog.setSKPType(CKeyPadFactory::SKP_HEX);
    dialog.show();
    QVERIFY(before);
    QVERIFY(!before->isVisible());
    QVERIFY(keyOf(dialog.findChild<CHexKeyPad*>(), Qt::Key_A)->isVisible());
}

void tst_softkeypad::otherTypeChangesWhatKeysAreInserted()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    dialog.changedkey("A", Qt::Key_A);
    QCOMPARE(dialog.getInput(), QString());
    dialog.setSKPType(CKeyPadFactory::SKP_HEX);
    dialog.changedkey("A", Qt::Key_A);
    QCOMPARE(dialog.getInput(), QString("A"));
    dialog.setRange(0, 9);
    QVERIFY(!dialog.validate()); // in base 16 now
    QCOMPARE(dialog.getInput(), QString("9"));
}

void tst_softkeypad::otherTypeUnblocksSignals()
{
    CSoftKeyPad dialog(CKeyPadFactory::SKP_DECIMAL);
    dialog.setSKPType(CKeyPadFactory::SKP_HEX);
    QVERIFY(!dialog.signalsBlocked());
    dialog.blockSignals(true);
    dialog.setSKPType(CKeyPadFactory::SKP_HEX);
    QVERIFY(dialog.signalsBlocked());
    dialog.setSKPType(CKeyPadFactory::SKP_DECIMAL);
    QVERIFY(!dialog.signalsBlocked());
}

QTEST_MAIN(tst_softkeypad)
#include "tst_softkeypad.moc"
