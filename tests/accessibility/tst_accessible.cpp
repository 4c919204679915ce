#include "support/desktopmain.h"
#include "support/signaltools.h"
#include "support/testing.h"

#include "keypad/genkeypad.h"
#include "keypad/keybutton.h"
#include "keypad/keypadedit.h"
#include "keypad/softkeypad.h"
#include "pages/combobox.h"
#include "pages/pagebar.h"
#include "pages/pagelistwidget.h"
#include "pages/pagelistwidgetheader.h"
#include "pages/pagelistwidgetitem.h"
#include "pages/pagelistwidgetitemarea.h"
#include "parm/parmcheckbox.h"
#include "parm/parmcombobox.h"
#include "parm/parmlabel.h"
#include "parm/parmlineedit.h"
#include "widgets/checkbox.h"
#include "widgets/clockprogress.h"
#include "widgets/dialog.h"
#include "widgets/label.h"
#include "widgets/lineedit.h"
#include "widgets/progressbar.h"
#include "widgets/pushbutton.h"
#include "widgets/toptitlearea.h"

#include <QAccessible>
#include <QDialog>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTimer>

namespace
{

QStringList modes()
{
    return QString::fromLatin1("Off,Auto,Manual,Holiday,Night,Boost,Test").split(QLatin1Char(','));
}

// ---- a widget of each class, with something to tell

QWidget* pushButton()
{
    CPushButton* const button = new CPushButton;
    button->setText(QLatin1String("Start"));
    return button;
}

QWidget* keyButton()
{
    CKeyButton* const key = new CKeyButton;
    key->setKeyText(QLatin1String("q"));
    return key;
}

QWidget* backspaceKey()
{
    CKeyButton* const key = new CKeyButton;
    key->setKey(Qt::Key_Backspace);
    return key;
}

QWidget* label()
{
    CLabel* const label = new CLabel;
    label->setText(QLatin1String("Pressure"));
    return label;
}

QWidget* checkBox()
{
    return new CCheckBox(QLatin1String("Logging"));
}

QWidget* progressBar()
{
    CProgressBar* const bar = new CProgressBar;
    bar->setValue(40);
    return bar;
}

QWidget* clockProgress()
{
    return new CClockProgress;
}

QWidget* topTitleArea()
{
    CTopTitleArea* const strip = new CTopTitleArea;
    strip->setTitle(QLatin1String("Alarms"));
    return strip;
}

QWidget* pageBar()
{
    CPageBar* const bar = new CPageBar;
    bar->setCount(5);
    bar->setCurrentIndex(1);
    return bar;
}

QWidget* pageList()
{
    CPageListWidget* const list = new CPageListWidget;
    list->setTitle(QLatin1String("Mode"));
    list->setItems(modes());
    return list;
}

QWidget* listHeader()
{
    return new CPageListWidgetHeader(QLatin1String("Mode"), QLatin1String("Auto"));
}

QWidget* listArea()
{
    CPageListWidgetItemArea* const area = new CPageListWidgetItemArea;
    area->addItems(modes());
    return area;
}

QWidget* listRow()
{
    return new CPageListWidgetItem(QLatin1String("Auto"));
}

QWidget* parmLabel()
{
    return new CParmLabel(QLatin1String("Temperature"), QLatin1String("21"));
}

QWidget* parmLineEdit()
{
    return new CParmLineEdit(QLatin1String("Set point"), QLatin1String("22"));
}

QWidget* parmComboBox()
{
    return new CParmComboBox(QLatin1String("Mode"), modes(), QLatin1String("Auto"));
}

QWidget* parmCheckBox()
{
    return new CParmCheckBox(QLatin1String("Sensor"), QLatin1String("attached"));
}

QWidget* keyPad()
{
    return new CGenKeyPad;
}

QWidget* softKeyPad()
{
    CSoftKeyPad* const keypad = new CSoftKeyPad(CKeyPadFactory::SKP_DECIMAL);
    keypad->setText(QLatin1String("Set point"), QLatin1String("22"));
    return keypad;
}

QWidget* dialog()
{
    return new CDialog;
}

QWidget* lineEdit()
{
    CLineEdit* const edit = new CLineEdit;
    edit->setText(QLatin1String("22"));
    return edit;
}

QWidget* comboBox()
{
    CComboBox* const box = new CComboBox;
    box->setItems(modes());
    return box;
}

// What is told of it. The last three are left to Qt, which knows their base classes.
const struct Row {
    const char* what;
    QWidget* (*make)();
    QAccessible::Role role;
    const char* name;
    const char* value;
    const char* actions;
    int children;
} rows[] = {
    // clang-format off
    {"push button",    pushButton,    QAccessible::Button,       "Start",       "",         "Press",                   0},
    {"key",            keyButton,     QAccessible::Button,       "q",           "",         "Press",                   0},
    {"backspace key",  backspaceKey,  QAccessible::Button,       "Backspace",   "",         "Press",                   0},
    {"label",          label,         QAccessible::StaticText,   "Pressure",    "",         "Press",                   0},
    {"check box",      checkBox,      QAccessible::CheckBox,     "Logging",     "",         "Toggle",                  0},
    {"progress bar",   progressBar,   QAccessible::ProgressBar,  "",            "",         "",                        0},
    {"clock",          clockProgress, QAccessible::ProgressBar,  "",            "",         "",                        0},
    {"title strip",    topTitleArea,  QAccessible::Heading,      "Alarms",      "",         "",                        0},
    {"page bar",       pageBar,       QAccessible::SpinBox,      "Page 2 of 5", "",         "Previous Page,Next Page", 2},
    {"paged list",     pageList,      QAccessible::Pane,         "Mode",        "",         "",                        3},
    {"list header",    listHeader,    QAccessible::Heading,      "Mode",        "Auto",     "",                        0},
    {"list rows",      listArea,      QAccessible::List,         "",            "",         "",                        7},
    {"list row",       listRow,       QAccessible::ListItem,     "Auto",        "",         "Press",                   0},
    {"name and text",  parmLabel,     QAccessible::StaticText,   "Temperature", "21",       "",                        0},
    {"name and edit",  parmLineEdit,  QAccessible::EditableText, "Set point",   "22",       "Press",                   0},
    {"name and combo", parmComboBox,  QAccessible::ComboBox,     "Mode",        "Auto",     "Press",                   0},
    {"name and check", parmCheckBox,  QAccessible::CheckBox,     "Sensor",      "attached", "Toggle",                  0},
    {"grid of keys",   keyPad,        QAccessible::Grouping,     "",            "",         "",                        46},
    {"keypad",         softKeyPad,    QAccessible::Dialog,       "Set point",   "22",       "",                        2},
    {"dialog",         dialog,        QAccessible::Dialog,       "",            "",         "",                        0},
    {"line edit",      lineEdit,      QAccessible::EditableText, "",            "22",       "",                        0},
    {"combo box",      comboBox,      QAccessible::ComboBox,     "Off",         "Off",      "ShowMenu,Press",                1},
    // clang-format on
};

const int settlingTime = 50; // ms, for the X server to have everything painted
const int timeout = 5000;

// What Qt is told, as lines "type object detail".
QStringList told;

QString stateText(const QAccessible::State& state)
{
    QStringList names;
    if (state.pressed)
        names << QLatin1String("pressed");
    if (state.checked)
        names << QLatin1String("checked");
    if (state.selected)
        names << QLatin1String("selected");
    if (state.busy)
        names << QLatin1String("busy");
    if (state.readOnly)
        names << QLatin1String("readOnly");
    return names.join(QLatin1String("+"));
}

void hear(QAccessibleEvent* event)
{
    const QString name = event->object()->objectName();
    if (name.isEmpty())
        return;
    if (event->type() == QAccessible::NameChanged)
        told << QLatin1String("name ") + name;
    else if (event->type() == QAccessible::ValueChanged)
        told << QLatin1String("value ") + name + QLatin1Char(' ') +
                    static_cast<QAccessibleValueChangeEvent*>(event)->value().toString();
    else if (event->type() == QAccessible::StateChanged)
        told << QLatin1String("state ") + name + QLatin1Char(' ') +
                    stateText(static_cast<QAccessibleStateChangeEvent*>(event)->changedStates());
}

QAccessibleInterface* interfaceOf(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

/// What is told when \a action is done and the screen painted.
template <typename Action>
QStringList toldBy(Action action)
{
    QTest::qWait(settlingTime);
    told.clear();
    action();
    for (int waited = 0; waited < timeout && told.isEmpty(); waited += settlingTime)
        QTest::qWait(settlingTime);
    QTest::qWait(settlingTime);
    return told;
}

} // namespace

class tst_accessible : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void tells_data();
    void tells();
    void nothingIsToldOfUnknownClasses();
    void applicationsNameGoesFirst();
    void derivedClassIsToldAsItsBase();
    void cornerTextIsTheDescription();
    void pressedStateFollowsTheFinger();
    void buttonIsPressed();
    void disabledOrHiddenButtonIsNotPressed();
    void nothingIsPressedBehindADialog();
    void keyIsPressed();
    void selectedButton();
    void checkBoxIsToggled();
    void silentCheckIsTold();
    void nameAndCheckBoxAreToggledTogether();
    void progressIsTold();
    void runningClockIsBusy();
    void arrowsOfThePageBar();
    void pagesAreTurned();
    void rowsOfTheList();
    void rowIsChosen();
    void nameAndLineEditAreOne();
    void valueOfAFieldIsTold();
    void entryOfTheKeypadIsTold();
    void touchOpensTheKeypadWithoutWaiting();
    void nothingIsToldWithoutAChange();

private:
    template <typename Widget>
    Widget* show(Widget* widget);

    QScopedPointer<QWidget> m_window;
};

void tst_accessible::initTestCase()
{
    for (int i = 0; i < 100 && !QAccessible::isActive(); ++i)
        QTest::qWait(50);
    QVERIFY2(QAccessible::isActive(), "there is no accessibility bus");
    QAccessible::installUpdateHandler(hear);
}

void tst_accessible::init()
{
    m_window.reset(new QWidget);
    m_window->resize(600, 450);
}

void tst_accessible::cleanup()
{
    m_window.reset();
}

/// Puts \a widget, a child of the window, on the screen, with somebody who has asked about it.
template <typename Widget>
Widget* tst_accessible::show(Widget* widget)
{
    widget->setObjectName(QLatin1String("it"));
    widget->show();
    m_window->show();
    m_window->activateWindow();
    if (!testcompat::waitForWindow(m_window.data()))
        qFatal("no window");
    interfaceOf(widget);
    return widget;
}

void tst_accessible::tells_data()
{
    QTest::addColumn<int>("index");
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i)
        QTest::newRow(rows[i].what) << static_cast<int>(i);
}

void tst_accessible::tells()
{
    QFETCH(int, index);
    const Row& row = rows[index];
    const QScopedPointer<QWidget> widget(row.make());
    QAccessibleInterface* const interface = interfaceOf(widget.data());
    QVERIFY(interface);
    QCOMPARE(interface->role(), row.role);
    QCOMPARE(interface->text(QAccessible::Name), QString::fromLatin1(row.name));
    QCOMPARE(interface->text(QAccessible::Value), QString::fromLatin1(row.value));
    QCOMPARE(interface->childCount(), row.children);
    QStringList actions = interface->actionInterface()->actionNames();
    actions.removeAll(QAccessibleActionInterface::setFocusAction());
    QCOMPARE(actions.join(QLatin1String(",")), QString::fromLatin1(row.actions));
}

void tst_accessible::nothingIsToldOfUnknownClasses()
{
    QWidget plain;
    QVERIFY(interfaceOf(&plain)->text(QAccessible::Name).isEmpty());
    QVERIFY(!interfaceOf(&plain)->valueInterface());
    QVERIFY(plain.children().isEmpty()); // nobody watches it
}

void tst_accessible::applicationsNameGoesFirst()
{
    const QScopedPointer<QWidget> button(pushButton());
    button->setAccessibleName(QLatin1String("Start pump 1"));
    QCOMPARE(interfaceOf(button.data())->text(QAccessible::Name),
             QString::fromLatin1("Start pump 1"));
}

class OwnButton : public CPushButton
{
    Q_OBJECT
};

void tst_accessible::derivedClassIsToldAsItsBase()
{
    OwnButton button;
    button.setText(QLatin1String("own"));
    QCOMPARE(interfaceOf(&button)->text(QAccessible::Name), QString::fromLatin1("own"));
}

void tst_accessible::cornerTextIsTheDescription()
{
    CLabel label;
    label.setCornerText(QLatin1String("bar"));
    QCOMPARE(interfaceOf(&label)->text(QAccessible::Description), QString::fromLatin1("bar"));
}

void tst_accessible::pressedStateFollowsTheFinger()
{
    CPushButton* const button = show(new CPushButton(m_window.data()));
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

void tst_accessible::buttonIsPressed()
{
    CPushButton* const button = show(new CPushButton(m_window.data()));
    QSignalSpy pressed(button, SIGNAL(pressed()));
    QSignalSpy clicked(button, SIGNAL(clicked()));
    interfaceOf(button)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicked.count(), 0); // not before the caller is back
    QTest::qWait(settlingTime);
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(clicked.count(), 1);
}

void tst_accessible::disabledOrHiddenButtonIsNotPressed()
{
    CPushButton* const button = show(new CPushButton(m_window.data()));
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

void tst_accessible::nothingIsPressedBehindADialog()
{
    CPushButton* const button = show(new CPushButton(m_window.data()));
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

void tst_accessible::keyIsPressed()
{
    CGenKeyPad* const grid = show(new CGenKeyPad(m_window.data()));
    QSignalSpy changed(grid, SIGNAL(currentKeyChanged(QString, int)));
    CKeyButton* const key = grid->findChildren<CKeyButton*>().at(10);
    interfaceOf(key)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTest::qWait(settlingTime);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toString(), QString::fromLatin1("q"));
    QVERIFY(interfaceOf(key)->state().selected);
}

void tst_accessible::selectedButton()
{
    CPushButton* const button = show(new CPushButton(m_window.data()));
    QCOMPARE(toldBy([&] { button->setSelected(true); }), QStringList()
                                                             << QLatin1String("state it selected"));
    QVERIFY(interfaceOf(button)->state().selected);
}

void tst_accessible::checkBoxIsToggled()
{
    CCheckBox* const box = show(new CCheckBox(QLatin1String("Logging"), m_window.data()));
    QSignalSpy changed(box, SIGNAL(stateChanged(int)));
    QVERIFY(interfaceOf(box)->state().checkable);
    QVERIFY(!interfaceOf(box)->state().checked);
    QAccessibleActionInterface* const actions = interfaceOf(box)->actionInterface();
    QCOMPARE(toldBy([&] { actions->doAction(QAccessibleActionInterface::toggleAction()); }),
             QStringList() << QLatin1String("state it checked"));
    QVERIFY(interfaceOf(box)->state().checked);
    QCOMPARE(changed.count(), 1);
}

void tst_accessible::silentCheckIsTold()
{
    CCheckBox* const box = show(new CCheckBox(QLatin1String("Logging"), m_window.data()));
    QSignalSpy changed(box, SIGNAL(stateChanged(int)));
    QCOMPARE(toldBy([&] { box->setChecked(true); }), QStringList()
                                                         << QLatin1String("state it checked"));
    QCOMPARE(changed.count(), 0);
}

void tst_accessible::nameAndCheckBoxAreToggledTogether()
{
    CParmCheckBox* const field = show(
        new CParmCheckBox(QLatin1String("Sensor"), QLatin1String("attached"), m_window.data()));
    QSignalSpy changed(field, SIGNAL(stateChanged(int)));
    QAccessibleActionInterface* const actions = interfaceOf(field)->actionInterface();
    QCOMPARE(toldBy([&] { actions->doAction(QAccessibleActionInterface::toggleAction()); }),
             QStringList() << QLatin1String("state it checked"));
    QCOMPARE(changed.count(), 1);
    QVERIFY(interfaceOf(field)->state().checked);
}

void tst_accessible::progressIsTold()
{
    CProgressBar* const bar = show(new CProgressBar(m_window.data()));
    bar->setRange(10, 50);
    QAccessibleValueInterface* const value = interfaceOf(bar)->valueInterface();
    QVERIFY(value);
    QCOMPARE(value->minimumValue().toInt(), 10);
    QCOMPARE(value->maximumValue().toInt(), 50);
    QCOMPARE(toldBy([&] { bar->setValue(30); }), QStringList() << QLatin1String("value it 30"));
    QCOMPARE(value->currentValue().toInt(), 30);
    value->setCurrentValue(40); // is not for others to say
    QCOMPARE(bar->value(), 30);
}

void tst_accessible::runningClockIsBusy()
{
    CClockProgress* const clock = show(new CClockProgress(m_window.data()));
    clock->setRange(0, 60);
    clock->setValue(6);
    QVERIFY(!interfaceOf(clock)->state().busy);
    QVERIFY(toldBy([&] { clock->start(); }).contains(QLatin1String("state it busy")));
    QVERIFY(interfaceOf(clock)->state().busy);
    QCOMPARE(interfaceOf(clock)->valueInterface()->currentValue().toInt(), 6);
}

void tst_accessible::arrowsOfThePageBar()
{
    CPageBar* const bar = show(new CPageBar(m_window.data()));
    QAccessibleInterface* const interface = interfaceOf(bar);
    QCOMPARE(interface->child(0)->text(QAccessible::Name), QString::fromLatin1("Previous page"));
    QCOMPARE(interface->child(1)->text(QAccessible::Name), QString::fromLatin1("Next page"));
    bar->setCount(3);
    interface->child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTest::qWait(settlingTime);
    QCOMPARE(bar->currentIndex(), 1);
}

void tst_accessible::pagesAreTurned()
{
    CPageBar* const bar = show(new CPageBar(m_window.data()));
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

void tst_accessible::rowsOfTheList()
{
    CPageListWidgetItemArea* const area = show(new CPageListWidgetItemArea(m_window.data()));
    area->setSize(220, 148);
    area->addItems(modes());
    area->setVisibleItems(QList<int>() << 0 << 1 << 2 << 3 << 4 << 5 << 6);
    area->setCurrentIndex(2);
    QTest::qWait(settlingTime);
    QAccessibleInterface* const interface = interfaceOf(area);
    QCOMPARE(interface->childCount(), 7);
    for (int i = 0; i < 7; ++i) {
        QCOMPARE(interface->child(i)->text(QAccessible::Name), modes().at(i));
        QVERIFY(interface->child(i)->state().selectable);
        QCOMPARE(static_cast<bool>(interface->child(i)->state().selected), i == 2);
        QCOMPARE(static_cast<bool>(interface->child(i)->state().invisible), i > 4);
    }
}

void tst_accessible::rowIsChosen()
{
    CPageListWidgetItemArea* const area = show(new CPageListWidgetItemArea(m_window.data()));
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

void tst_accessible::nameAndLineEditAreOne()
{
    CParmLineEdit* const field =
        show(new CParmLineEdit(QLatin1String("Set point"), QLatin1String("22"), m_window.data()));
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

void tst_accessible::valueOfAFieldIsTold()
{
    CParmLabel* const label =
        show(new CParmLabel(QLatin1String("Temperature"), QLatin1String("21"), m_window.data()));
    label->setWidth(300, Proportion1To1);
    QCOMPARE(toldBy([&] { label->setText(QLatin1String("22")); }),
             QStringList() << QLatin1String("value it 22"));
    m_window.reset(new QWidget);
    CParmLineEdit* const edit =
        show(new CParmLineEdit(QLatin1String("Set point"), QLatin1String("22"), m_window.data()));
    QCOMPARE(toldBy([&] { edit->setText(QLatin1String("23")); }),
             QStringList() << QLatin1String("value it 23"));
    m_window.reset(new QWidget);
    CParmComboBox* const combo = show(
        new CParmComboBox(QLatin1String("Mode"), modes(), QLatin1String("Auto"), m_window.data()));
    QVERIFY(toldBy([&] { combo->setCurrentIndex(2); }).contains(QLatin1String("value it Manual")));
}

void tst_accessible::entryOfTheKeypadIsTold()
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

void tst_accessible::touchOpensTheKeypadWithoutWaiting()
{
    CParmLineEdit* const field =
        show(new CParmLineEdit(QLatin1String("Set point"), QLatin1String("22"), m_window.data()));
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

void tst_accessible::nothingIsToldWithoutAChange()
{
    CPushButton* const button = show(new CPushButton(m_window.data()));
    CProgressBar* const bar = show(new CProgressBar(m_window.data()));
    const QStringList lines = toldBy([&] {
        button->update();
        bar->setValue(bar->value());
        button->setText(QLatin1String("changed")); // after the others
    });
    QCOMPARE(lines, QStringList() << QLatin1String("name it"));
}

CWIDGET_DESKTOP_TEST_MAIN(tst_accessible)
#include "tst_accessible.moc"
