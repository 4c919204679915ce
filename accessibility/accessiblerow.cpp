#include "accessibility/accessiblerow_p.h"

#include "keypad/keybutton.h"
#include "keypad/softkeypad.h"
#include "pages/pagebar.h"
#include "pages/pagelistwidget.h"
#include "pages/pagelistwidgetheader.h"
#include "pages/pagelistwidgetitem.h"
#include "parm/parmcheckbox.h"
#include "parm/parmcombobox.h"
#include "parm/parmlabel.h"
#include "parm/parmlineedit.h"
#include "style/table_p.h"
#include "widgets/checkbox.h"
#include "widgets/clockprogress.h"
#include "widgets/label.h"
#include "widgets/progressbar.h"
#include "widgets/toptitlearea.h"

#include <QCoreApplication>

#if !defined(QT_NO_ACCESSIBILITY)

namespace accessible
{

namespace
{

template <typename Widget>
const Widget* as(const QWidget* widget)
{
    return static_cast<const Widget*>(widget);
}

// ---- texts

QString textOf(const char* source)
{
    return QCoreApplication::translate("CAccessible", source);
}

/// The arrow back comes first among the children of a page bar.
QString arrowName(const QWidget* button)
{
    const QList<CPushButton*> arrows = button->parentWidget()->findChildren<CPushButton*>();
    //: The arrows of the page bar, as a screen reader tells them.
    static const char* const names[] = {QT_TRANSLATE_NOOP("CAccessible", "Previous page"),
                                        QT_TRANSLATE_NOOP("CAccessible", "Next page")};
    return textOf(arrows.value(0) == button ? names[0] : names[1]);
}

QString buttonName(const QWidget* widget)
{
    const QString text = as<CPushButton>(widget)->getText();
    const bool isArrow = text.isEmpty() && qobject_cast<CPageBar*>(widget->parentWidget());
    return isArrow ? arrowName(widget) : text;
}

QString keyName(const QWidget* widget)
{
    //: The key that deletes the character before the cursor, as a screen reader tells it.
    static const char* const backspace = QT_TRANSLATE_NOOP("CAccessible", "Backspace");
    return as<CKeyButton>(widget)->key() == Qt::Key_Backspace ? textOf(backspace)
                                                              : buttonName(widget);
}

QString pageText(const QWidget* widget)
{
    const CPageBar* const bar = as<CPageBar>(widget);
    return CPageBar::tr("Page %1 of %2").arg(bar->currentIndex() + 1).arg(bar->count());
}

QString keypadTitle(const QWidget* widget)
{
    const CTopTitleArea* const strip = widget->findChild<CTopTitleArea*>();
    return strip ? strip->title() : QString();
}

// What a getter of a class returns.
template <typename Widget, QString (Widget::*getter)() const>
QString got(const QWidget* widget)
{
    return (as<Widget>(widget)->*getter)();
}

// ---- states and numbers

void addButtonState(const QWidget* widget, QAccessible::State* state)
{
    const CPushButton* const button = as<CPushButton>(widget);
    state->pressed = button->isDown();
    state->checkable = button->isCheckable();
    state->checked = button->isChecked();
    state->selectable = button->isSelected();
    state->selected = button->isSelected();
}

template <typename Box>
void addCheckState(const QWidget* widget, QAccessible::State* state)
{
    state->checkable = true;
    state->checked = as<Box>(widget)->checkState() == Qt::Checked;
}

void addRowState(const QWidget* widget, QAccessible::State* state)
{
    state->selectable = true;
    state->selected = as<CPageListWidgetItem>(widget)->isSelected();
}

void addFieldState(const QWidget* widget, QAccessible::State* state)
{
    const CParmLineEdit* const field = as<CParmLineEdit>(widget);
    state->editable = !field->isReadOnly();
    state->readOnly = field->isReadOnly();
    state->disabled = !field->isEnabled() || !field->isValueEnabled();
}

void addClockState(const QWidget* widget, QAccessible::State* state)
{
    state->busy = as<CClockProgress>(widget)->isRunning();
}

template <typename Bar>
Range barRange(const QWidget* widget)
{
    const Bar* const bar = as<Bar>(widget);
    const Range range = {bar->minimum(), bar->maximum(), bar->value()};
    return range;
}

Range pageRange(const QWidget* widget)
{
    const CPageBar* const bar = as<CPageBar>(widget);
    const Range range = {qMin(1, bar->count()), bar->count(), bar->currentIndex() + 1};
    return range;
}

// clang-format off
const Row rows[] = {
    {"CPushButton",             QAccessible::Button,       buttonName,                                                nullptr,                                                  addButtonState,               nullptr,                  PressOperation,  nullptr},
    {"CKeyButton",              QAccessible::Button,       keyName,                                                   nullptr,                                                  addButtonState,               nullptr,                  PressOperation,  nullptr},
    {"CLabel",                  QAccessible::StaticText,   got<CLabel, &CLabel::text>,                                nullptr,                                                  nullptr,                      nullptr,                  PressOperation,  nullptr},
    {"CCheckBox",               QAccessible::CheckBox,     got<QAbstractButton, &QAbstractButton::text>,              nullptr,                                                  addCheckState<CCheckBox>,     nullptr,                  ToggleOperation, nullptr},
    {"CProgressBar",            QAccessible::ProgressBar,  nullptr,                                                   nullptr,                                                  nullptr,                      barRange<CProgressBar>,   NoOperation,     nullptr},
    {"CClockProgress",          QAccessible::ProgressBar,  nullptr,                                                   nullptr,                                                  addClockState,                barRange<CClockProgress>, NoOperation,     nullptr},
    {"CTopTitleArea",           QAccessible::Heading,      got<CTopTitleArea, &CTopTitleArea::title>,                 nullptr,                                                  nullptr,                      nullptr,                  NoOperation,     nullptr},
    {"CPageBar",                QAccessible::SpinBox,      pageText,                                                  nullptr,                                                  nullptr,                      pageRange,                TurnOperation,   nullptr},
    {"CPageListWidget",         QAccessible::Pane,         got<CPageListWidget, &CPageListWidget::title>,             nullptr,                                                  nullptr,                      nullptr,                  NoOperation,     nullptr},
    {"CPageListWidgetHeader",   QAccessible::Heading,      got<CPageListWidgetHeader, &CPageListWidgetHeader::title>, got<CPageListWidgetHeader, &CPageListWidgetHeader::text>, nullptr,                      nullptr,                  NoOperation,     nullptr},
    {"CPageListWidgetItemArea", QAccessible::List,         nullptr,                                                   nullptr,                                                  nullptr,                      nullptr,                  NoOperation,     nullptr},
    {"CPageListWidgetItem",     QAccessible::ListItem,     got<CPageListWidgetItem, &CPageListWidgetItem::text>,      nullptr,                                                  addRowState,                  nullptr,                  PressOperation,  nullptr},
    {"CParmLabel",              QAccessible::StaticText,   got<CParmLabel, &CParmLabel::name>,                        got<CParmLabel, &CParmLabel::text>,                       nullptr,                      nullptr,                  NoOperation,     "CLabel"},
    {"CParmLineEdit",           QAccessible::EditableText, got<CParmLineEdit, &CParmLineEdit::name>,                  got<CParmLineEdit, &CParmLineEdit::text>,                 addFieldState,                nullptr,                  PressOperation,  "CLineEdit"},
    {"CParmComboBox",           QAccessible::ComboBox,     got<CParmComboBox, &CParmComboBox::name>,                  got<CParmComboBox, &CParmComboBox::currentText>,          nullptr,                      nullptr,                  PressOperation,  "CComboBox"},
    {"CParmCheckBox",           QAccessible::CheckBox,     got<CParmCheckBox, &CParmCheckBox::name>,                  got<CParmCheckBox, &CParmCheckBox::text>,                 addCheckState<CParmCheckBox>, nullptr,                  ToggleOperation, "CCheckBox"},
    {"CAbstractKeyPad",         QAccessible::Grouping,     nullptr,                                                   nullptr,                                                  nullptr,                      nullptr,                  NoOperation,     nullptr},
    {"CSoftKeyPad",             QAccessible::Dialog,       keypadTitle,                                               got<CSoftKeyPad, &CSoftKeyPad::getInput>,                 nullptr,                      nullptr,                  NoOperation,     nullptr},
};
// clang-format on

} // namespace

/// The row of a class; null when there is nothing to tell of it.
const Row* rowOf(const QString& className)
{
    for (int i = 0; i < table::count(rows); ++i) {
        if (className == QLatin1String(rows[i].className))
            return &rows[i];
    }
    return nullptr;
}

/// The row of the class of \a object, or of the nearest of its base classes.
const Row* rowOf(const QObject* object)
{
    const Row* row = nullptr;
    for (const QMetaObject* meta = object->metaObject(); meta && !row; meta = meta->superClass())
        row = rowOf(QString::fromLatin1(meta->className()));
    return row;
}

} // namespace accessible

#endif
