#include "accessibletesting.h"
#include "support/desktopmain.h"
#include "support/testing.h"

#include "keypad/genkeypad.h"
#include "keypad/keybutton.h"
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

#include <QScopedPointer>

using accessibletesting::interfaceOf;
using accessibletesting::modes;

namespace
{

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

} // namespace

class tst_accessible : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void tells_data();
    void tells();
    void nothingIsToldOfUnknownClasses();
    void applicationsNameGoesFirst();
    void derivedClassIsToldAsItsBase();
    void cornerTextIsTheDescription();
};

void tst_accessible::initTestCase()
{
    QVERIFY2(accessibletesting::listen(), "there is no accessibility bus");
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

CWIDGET_DESKTOP_TEST_MAIN(tst_accessible)
#include "tst_accessible.moc"
