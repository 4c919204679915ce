#include "accessibletesting.h"
#include "support/desktopmain.h"
#include "support/rows.h"
#include "support/testing.h"

#include "keypad/softkeypad.h"
#include "pages/pagelistwidgetitemarea.h"
#include "parm/parmcombobox.h"
#include "parm/parmlabel.h"
#include "parm/parmlineedit.h"
#include "widgets/checkbox.h"
#include "widgets/clockprogress.h"
#include "widgets/progressbar.h"
#include "widgets/pushbutton.h"

#include <QScopedPointer>
#include <QSignalSpy>

using accessibletesting::interfaceOf;
using accessibletesting::modes;
using accessibletesting::settlingTime;
using accessibletesting::shown;
using accessibletesting::toldBy;

class tst_accessible_changes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void pressedStateFollowsTheFinger();
    void selectedButton();
    void silentCheckIsTold();
    void progressIsTold();
    void runningClockIsBusy();
    void rowsOfTheList();
    void nameAndLineEditAreOne();
    void valueOfAFieldIsTold();
    void entryOfTheKeypadIsTold();
    void nothingIsToldWithoutAChange();

private:
    QScopedPointer<QWidget> m_window;
};

void tst_accessible_changes::initTestCase()
{
    QVERIFY2(accessibletesting::listen(), "there is no accessibility bus");
}

void tst_accessible_changes::init()
{
    m_window.reset(new QWidget);
    m_window->resize(600, 450);
}

void tst_accessible_changes::cleanup()
{
    m_window.reset();
}

void tst_accessible_changes::pressedStateFollowsTheFinger()
{
    CPushButton* const button = shown(new CPushButton(m_window.data()));
    QVERIFY(!interfaceOf(button)->state().pressed);
    QCOMPARE(toldBy([&] { QTest::mousePress(button, Qt::LeftButton); }),
             QStringList() << QLatin1String("state it pressed"));
    QVERIFY(interfaceOf(button)->state().pressed);
    QCOMPARE(toldBy([&] { QTest::mouseRelease(button, Qt::LeftButton); }),
             QStringList() << QLatin1String("state it pressed"));
    QVERIFY(!interfaceOf(button)->state().pressed);
    QCOMPARE(toldBy([&] { button->setText(QLatin1String("Stop")); }),
             QStringList() << QLatin1String("name it"));
}

void tst_accessible_changes::selectedButton()
{
    CPushButton* const button = shown(new CPushButton(m_window.data()));
    QCOMPARE(toldBy([&] { button->setSelected(true); }), QStringList()
                                                             << QLatin1String("state it selected"));
    QVERIFY(interfaceOf(button)->state().selected);
}

void tst_accessible_changes::silentCheckIsTold()
{
    CCheckBox* const box = shown(new CCheckBox(QLatin1String("Logging"), m_window.data()));
    QSignalSpy changed(box, SIGNAL(stateChanged(int)));
    QCOMPARE(toldBy([&] { box->setChecked(true); }), QStringList()
                                                         << QLatin1String("state it checked"));
    QCOMPARE(changed.count(), 0);
}

void tst_accessible_changes::progressIsTold()
{
    CProgressBar* const bar = shown(new CProgressBar(m_window.data()));
    bar->setRange(10, 50);
    QAccessibleValueInterface* const value = interfaceOf(bar)->valueInterface();
    QVERIFY(value);
    QCOMPARE(value->minimumValue().toInt(), 10);
    QCOMPARE(value->maximumValue().toInt(), 50);
    QCOMPARE(toldBy([&] { bar->setValue(30); }), QStringList() << QLatin1String("value it 30"));
    QCOMPARE(value->currentValue().toInt(), 30);
    value->setCurrentValue(40); // is ignored: only the application sets it
    QCOMPARE(bar->value(), 30);
}

void tst_accessible_changes::runningClockIsBusy()
{
    CClockProgress* const clock = shown(new CClockProgress(m_window.data()));
    clock->setRange(0, 60);
    clock->setValue(6);
    QVERIFY(!interfaceOf(clock)->state().busy);
    QVERIFY(toldBy([&] { clock->start(); }).contains(QLatin1String("state it busy")));
    QVERIFY(interfaceOf(clock)->state().busy);
    QCOMPARE(interfaceOf(clock)->valueInterface()->currentValue().toInt(), 6);
}

void tst_accessible_changes::rowsOfTheList()
{
    CPageListWidgetItemArea* const area = shown(new CPageListWidgetItemArea(m_window.data()));
    area->setSize(220, 148);
    area->addItems(modes());
    area->setVisibleItems(QList<int>() << 0 << 1 << 2 << 3 << 4 << 5 << 6);
    area->setCurrentIndex(2);
    QTest::qWait(settlingTime);
    QAccessibleInterface* const interface = interfaceOf(area);
    QCOMPARE(interface->childCount(), 7);
    for (int i = 0; i < 7; ++i) {
        const testing::InRow inRow(i);
        QCOMPARE(interface->child(i)->text(QAccessible::Name), modes().at(i));
        QVERIFY(interface->child(i)->state().selectable);
        QCOMPARE(static_cast<bool>(interface->child(i)->state().selected), i == 2);
        QCOMPARE(static_cast<bool>(interface->child(i)->state().invisible), i > 4);
    }
}

void tst_accessible_changes::nameAndLineEditAreOne()
{
    CParmLineEdit* const field =
        shown(new CParmLineEdit(QLatin1String("Set point"), QLatin1String("22"), m_window.data()));
    QAccessibleInterface* const interface = interfaceOf(field);
    QVERIFY(interface->state().editable);
    QVERIFY(!interface->child(0));
    QVERIFY(!interface->childAt(field->mapToGlobal(QPoint(2, 2)).x(),
                                field->mapToGlobal(QPoint(2, 2)).y()));
    QVERIFY(interface->textInterface());
    QCOMPARE(interface->textInterface()->text(0, 2), QString::fromLatin1("22"));
    QVERIFY(interface->editableTextInterface());
    field->setReadOnly(true);
    QVERIFY(interface->state().readOnly);
    field->setEnable(false);
    QVERIFY(interface->state().disabled);
}

void tst_accessible_changes::valueOfAFieldIsTold()
{
    CParmLabel* const label =
        shown(new CParmLabel(QLatin1String("Temperature"), QLatin1String("21"), m_window.data()));
    label->setWidth(300, Proportion1To1);
    QCOMPARE(toldBy([&] { label->setText(QLatin1String("22")); }),
             QStringList() << QLatin1String("value it 22"));
    m_window.reset(new QWidget);
    CParmLineEdit* const edit =
        shown(new CParmLineEdit(QLatin1String("Set point"), QLatin1String("22"), m_window.data()));
    QCOMPARE(toldBy([&] { edit->setText(QLatin1String("23")); }),
             QStringList() << QLatin1String("value it 23"));
    m_window.reset(new QWidget);
    CParmComboBox* const combo = shown(
        new CParmComboBox(QLatin1String("Mode"), modes(), QLatin1String("Auto"), m_window.data()));
    QVERIFY(toldBy([&] { combo->setCurrentIndex(2); }).contains(QLatin1String("value it Manual")));
}

void tst_accessible_changes::entryOfTheKeypadIsTold()
{
    const QScopedPointer<CSoftKeyPad> keypad(new CSoftKeyPad(CKeyPadFactory::SKP_GENERAL));
    keypad->setText(QLatin1String("Name"), QLatin1String("a"));
    keypad->setObjectName(QLatin1String("it"));
    keypad->show();
    QVERIFY(testcompat::waitForWindow(keypad.data()));
    interfaceOf(keypad.data());
    QVERIFY(toldBy([&] {
                keypad->changedkey(QLatin1String("b"), Qt::Key_B);
            }).contains(QLatin1String("value it ab")));
    QCOMPARE(interfaceOf(keypad.data())->text(QAccessible::Value), QString::fromLatin1("ab"));
    QCOMPARE(interfaceOf(keypad.data())->text(QAccessible::Name), QString::fromLatin1("Name"));
}

void tst_accessible_changes::nothingIsToldWithoutAChange()
{
    CPushButton* const button = shown(new CPushButton(m_window.data()));
    CProgressBar* const bar = shown(new CProgressBar(m_window.data()));
    const QStringList lines = toldBy([&] {
        button->update();
        bar->setValue(bar->value());
        button->setText(QLatin1String("changed")); // after the others
    });
    QCOMPARE(lines, QStringList() << QLatin1String("name it"));
}

CWIDGET_DESKTOP_TEST_MAIN(tst_accessible_changes)
#include "tst_accessible_changes.moc"
