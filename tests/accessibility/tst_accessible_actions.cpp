#include "accessibletesting.h"
#include "support/desktopmain.h"
#include "support/signaltools.h"
#include "support/testing.h"

#include "keypad/genkeypad.h"
#include "keypad/keybutton.h"
#include "keypad/softkeypad.h"
#include "pages/pagebar.h"
#include "pages/pagelistwidgetitemarea.h"
#include "parm/parmcheckbox.h"
#include "parm/parmlineedit.h"
#include "widgets/checkbox.h"
#include "widgets/pushbutton.h"

#include <QDialog>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTimer>

using accessibletesting::interfaceOf;
using accessibletesting::modes;
using accessibletesting::settlingTime;
using accessibletesting::shown;
using accessibletesting::toldBy;

class tst_accessible_actions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void buttonIsPressed();
    void disabledOrHiddenButtonIsNotPressed();
    void nothingIsPressedBehindADialog();
    void keyIsPressed();
    void checkBoxIsToggled();
    void nameAndCheckBoxAreToggledTogether();
    void arrowsOfThePageBar();
    void pagesAreTurned();
    void rowIsChosen();
    void touchOpensTheKeypadWithoutWaiting();

private:
    QScopedPointer<QWidget> m_window;
};

void tst_accessible_actions::initTestCase()
{
    QVERIFY2(accessibletesting::listen(), "there is no accessibility bus");
}

void tst_accessible_actions::init()
{
    m_window.reset(new QWidget);
    m_window->resize(600, 450);
}

void tst_accessible_actions::cleanup()
{
    m_window.reset();
}

void tst_accessible_actions::buttonIsPressed()
{
    CPushButton* const button = shown(new CPushButton(m_window.data()));
    QSignalSpy pressed(button, SIGNAL(pressed()));
    QSignalSpy clicked(button, SIGNAL(clicked()));
    interfaceOf(button)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicked.count(), 0); // not before the caller is back
    QTest::qWait(settlingTime);
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(clicked.count(), 1);
}

void tst_accessible_actions::disabledOrHiddenButtonIsNotPressed()
{
    CPushButton* const button = shown(new CPushButton(m_window.data()));
    QSignalSpy clicked(button, SIGNAL(clicked()));
    button->setEnabled(false);
    QVERIFY(interfaceOf(button)->state().disabled);
    interfaceOf(button)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    button->setEnabled(true);
    button->hide();
    interfaceOf(button)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTest::qWait(settlingTime);
    QCOMPARE(clicked.count(), 0);
}

void tst_accessible_actions::nothingIsPressedBehindADialog()
{
    CPushButton* const button = shown(new CPushButton(m_window.data()));
    QSignalSpy clicked(button, SIGNAL(clicked()));
    QDialog dialog(m_window.data());
    CPushButton* const inside = new CPushButton(&dialog);
    QSignalSpy insideClicked(inside, SIGNAL(clicked()));
    dialog.setModal(true);
    dialog.show();
    QVERIFY(testcompat::waitForWindow(&dialog));
    interfaceOf(button)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    interfaceOf(inside)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTest::qWait(settlingTime);
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(insideClicked.count(), 1);
}

void tst_accessible_actions::keyIsPressed()
{
    CGenKeyPad* const grid = shown(new CGenKeyPad(m_window.data()));
    QSignalSpy changed(grid, SIGNAL(currentKeyChanged(QString, int)));
    CKeyButton* const key = grid->findChildren<CKeyButton*>().at(10);
    interfaceOf(key)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTest::qWait(settlingTime);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toString(), QString::fromLatin1("q"));
    QVERIFY(interfaceOf(key)->state().selected);
}

void tst_accessible_actions::checkBoxIsToggled()
{
    CCheckBox* const box = shown(new CCheckBox(QLatin1String("Logging"), m_window.data()));
    QSignalSpy changed(box, SIGNAL(stateChanged(int)));
    QVERIFY(interfaceOf(box)->state().checkable);
    QVERIFY(!interfaceOf(box)->state().checked);
    QAccessibleActionInterface* const actions = interfaceOf(box)->actionInterface();
    QCOMPARE(toldBy([&] { actions->doAction(QAccessibleActionInterface::toggleAction()); }),
             QStringList() << QLatin1String("state it checked"));
    QVERIFY(interfaceOf(box)->state().checked);
    QCOMPARE(changed.count(), 1);
}

void tst_accessible_actions::nameAndCheckBoxAreToggledTogether()
{
    CParmCheckBox* const field = shown(
        new CParmCheckBox(QLatin1String("Sensor"), QLatin1String("attached"), m_window.data()));
    QSignalSpy changed(field, SIGNAL(stateChanged(int)));
    QAccessibleActionInterface* const actions = interfaceOf(field)->actionInterface();
    QCOMPARE(toldBy([&] { actions->doAction(QAccessibleActionInterface::toggleAction()); }),
             QStringList() << QLatin1String("state it checked"));
    QCOMPARE(changed.count(), 1);
    QVERIFY(interfaceOf(field)->state().checked);
}

void tst_accessible_actions::arrowsOfThePageBar()
{
    CPageBar* const bar = shown(new CPageBar(m_window.data()));
    QAccessibleInterface* const interface = interfaceOf(bar);
    QCOMPARE(interface->child(0)->text(QAccessible::Name), QString::fromLatin1("Previous page"));
    QCOMPARE(interface->child(1)->text(QAccessible::Name), QString::fromLatin1("Next page"));
    bar->setCount(3);
    interface->child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTest::qWait(settlingTime);
    QCOMPARE(bar->currentIndex(), 1);
}

void tst_accessible_actions::pagesAreTurned()
{
    CPageBar* const bar = shown(new CPageBar(m_window.data()));
    bar->setCount(5);
    QSignalSpy changed(bar, SIGNAL(pageChanged(int)));
    QAccessibleActionInterface* const actions = interfaceOf(bar)->actionInterface();
    QCOMPARE(toldBy([&] { actions->doAction(QAccessibleActionInterface::nextPageAction()); }),
             QStringList() << QLatin1String("name it") << QLatin1String("value it 2"));
    QCOMPARE(changed.count(), 1);
    actions->doAction(QAccessibleActionInterface::previousPageAction());
    QTest::qWait(settlingTime);
    QCOMPARE(bar->currentIndex(), 0);
    QAccessibleValueInterface* const value = interfaceOf(bar)->valueInterface();
    value->setCurrentValue(4);
    QCOMPARE(value->currentValue().toInt(), 4);
    QCOMPARE(changed.last().at(0).toInt(), 3);
    value->setCurrentValue(99);
    QCOMPARE(bar->currentIndex(), 4);
    bar->clear();
    value->setCurrentValue(1);
    QCOMPARE(value->currentValue().toInt(), 0);
    QCOMPARE(value->maximumValue().toInt(), 0);
}

void tst_accessible_actions::rowIsChosen()
{
    CPageListWidgetItemArea* const area = shown(new CPageListWidgetItemArea(m_window.data()));
    area->setSize(220, 148);
    area->addItems(modes());
    area->setVisibleItems(QList<int>() << 0 << 1 << 2);
    QTest::qWait(settlingTime);
    QSignalSpy chosen(area, SIGNAL(currentItemChanged(int)));
    QAccessibleInterface* const row = interfaceOf(area)->child(1);
    row->object()->setObjectName(QLatin1String("row"));
    QCOMPARE(toldBy([&] {
                 row->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
             }),
             QStringList() << QLatin1String("state row selected"));
    QCOMPARE(chosen.count(), 1);
    QCOMPARE(chosen.at(0).at(0).toInt(), 1);
}

void tst_accessible_actions::touchOpensTheKeypadWithoutWaiting()
{
    CParmLineEdit* const field =
        shown(new CParmLineEdit(QLatin1String("Set point"), QLatin1String("22"), m_window.data()));
    bool opened = false;
    QTimer timer;
    const Reaction reaction(&timer, SIGNAL(timeout()), [&] {
        CSoftKeyPad* const keypad = qobject_cast<CSoftKeyPad*>(QApplication::activeModalWidget());
        opened = opened || keypad;
        if (keypad)
            keypad->reject();
    });
    QSignalSpy edited(field, SIGNAL(textEdited(QString)));
    interfaceOf(field)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(!QApplication::activeModalWidget());
    timer.start(50);
    for (int i = 0; i < 100 && edited.count() == 0; ++i)
        QTest::qWait(20);
    QVERIFY(opened);
    QCOMPARE(edited.count(), 1);
}

CWIDGET_DESKTOP_TEST_MAIN(tst_accessible_actions)
#include "tst_accessible_actions.moc"
