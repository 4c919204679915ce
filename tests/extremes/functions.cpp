#include "extremes/calls.h"

#include "hotplug/devicewatcher.h"
#include "hotplug/hotplugwatcher.h"
#include "keypad/genkeypad.h"
#include "keypad/hexkeypad.h"
#include "keypad/keybutton.h"
#include "keypad/keypadedit.h"
#include "keypad/numkeypad.h"
#include "keypad/softkeypad.h"
#include "pages/combobox.h"
#include "pages/pagebar.h"
#include "pages/pagelistwidget.h"
#include "pages/pagelistwidgetheader.h"
#include "pages/pagelistwidgetitem.h"
#include "pages/pagelistwidgetitemarea.h"
#include "pages/pagewidget.h"
#include "parm/parmcheckbox.h"
#include "parm/parmcombobox.h"
#include "parm/parmlabel.h"
#include "parm/parmlineedit.h"
#include "style/widgetstyle.h"
#include "widgets/checkbox.h"
#include "widgets/clockprogress.h"
#include "widgets/dialog.h"
#include "widgets/graphicsview.h"
#include "widgets/label.h"
#include "widgets/lineedit.h"
#include "widgets/progressbar.h"
#include "widgets/pushbutton.h"
#include "widgets/toptitlearea.h"

namespace extremes
{

namespace
{

void addStyle(Table* table)
{
    Rows<CWidgetStyle>(table, "CWidgetStyle")
        .addStatic("setDeviceAvailable", &CWidgetStyle::setDeviceAvailable)
        .addStatic("setUSBDir", &CWidgetStyle::setUSBDir);
}

void addContainers(Table* table)
{
    Rows<CWidget>(table, "CWidget")
        .add("apply", &CWidget::apply)
        .add("initialize", &CWidget::initialize)
        .add("load", &CWidget::load)
        .add("save", &CWidget::save)
        .add("updateParm", &CWidget::updateParm)
        .form<int, int>("setSize", &CWidget::setSize)
        .form<const QSize&>("setSize", &CWidget::setSize)
        .form<int, int>("setFixedSize", &CWidget::setFixedSize)
        .add("setWidth", &CWidget::setWidth)
        .add("setHeight", &CWidget::setHeight)
        .add("clientWndStateChanged", &CWidget::clientWndStateChanged)
        .add("translate", &CWidget::translate)
        .add("updateWidgetStyle", &CWidget::updateWidgetStyle)
        .add("setBackgroundColor", &CWidget::setBackgroundColor)
        .add("setBorderColor", &CWidget::setBorderColor)
        .add("setBackground", &CWidget::setBackground)
        .add("setBorderWidth", &CWidget::setBorderWidth)
        .add("setTransparency", &CWidget::setTransparency)
        .add("setTransparentEnabled", &CWidget::setTransparentEnabled)
        .add("setAutoStyleEnabled", &CWidget::setAutoStyleEnabled)
        .add("setAutoManagment", &CWidget::setAutoManagment)
        .add("setWidgetStyle", &CWidget::setWidgetStyle)
        .add("lockWidget", &CWidget::lockWidget)
        .add("unlockWidget", &CWidget::unlockWidget);
    Rows<CDialog>(table, "CDialog")
        .add("initialize", &CDialog::initialize)
        .add("load", &CDialog::load)
        .add("save", &CDialog::save)
        .add("setSize", &CDialog::setSize)
        .add("setWidth", &CDialog::setWidth)
        .add("setHeight", &CDialog::setHeight)
        .add("setBorderWidth", &CDialog::setBorderWidth)
        .add("setBorderColor", &CDialog::setBorderColor)
        .add("setBackgroundColor", &CDialog::setBackgroundColor);
    Rows<CGraphicsView>(table, "CGraphicsView")
        .add("updateParm", &CGraphicsView::updateParm)
        .add("setBorderWidth", &CGraphicsView::setBorderWidth)
        .add("setBorderColor", &CGraphicsView::setBorderColor)
        .add("setBackgroundColor", &CGraphicsView::setBackgroundColor)
        .add("setSize", &CGraphicsView::setSize)
        .add("setWidth", &CGraphicsView::setWidth)
        .add("setHeight", &CGraphicsView::setHeight);
    Rows<CTopTitleArea>(table, "CTopTitleArea").add("setTitle", &CTopTitleArea::setTitle);
}

void addButtons(Table* table)
{
    Rows<CPushButton>(table, "CPushButton")
        .add("initialize", &CPushButton::initialize)
        .add("setText", &CPushButton::setText)
        .add("setTextSize", &CPushButton::setTextSize)
        .add("setTextColor", &CPushButton::setTextColor)
        .add("setBorderColor", &CPushButton::setBorderColor)
        .add("setBackgroundColor", &CPushButton::setBackgroundColor)
        .add("setBackground", &CPushButton::setBackground)
        .add("setExtraAttr", &CPushButton::setExtraAttr)
        .form<CPushButton::ButtonStyle, bool>("setStyle", &CPushButton::setStyle)
        .add("setButtonStyle", &CPushButton::setButtonStyle)
        .add("setNormalSize", &CPushButton::setNormalSize)
        .add("setSelected", &CPushButton::setSelected)
        .add("updateStatus", &CPushButton::updateStatus)
        .add("setAutoStyleEnabled", &CPushButton::setAutoStyleEnabled)
        .add("setWidgetStyle", &CPushButton::setWidgetStyle);
    Rows<CCheckBox>(table, "CCheckBox")
        .add("setChecked", &CCheckBox::setChecked)
        .add("setCheckState", &CCheckBox::setCheckState)
        .add("setBorderVisible", &CCheckBox::setBorderVisible)
        .add("setForegroundColor", &CCheckBox::setForegroundColor)
        .add("setBackgroundColor", &CCheckBox::setBackgroundColor)
        .add("setAutoStyleEnabled", &CCheckBox::setAutoStyleEnabled)
        .add("setWidgetStyle", &CCheckBox::setWidgetStyle);
    Rows<CKeyButton>(table, "CKeyButton")
        .add("setKey", &CKeyButton::setKey)
        .add("setKeyText", &CKeyButton::setKeyText)
        .add("setSymbol", &CKeyButton::setSymbol)
        .add("showSymbol", &CKeyButton::showSymbol);
}

void addTexts(Table* table)
{
    Rows<CLabel>(table, "CLabel")
        .add("initialize", &CLabel::initialize)
        .add("setText", &CLabel::setText)
        .add("setCornerText", &CLabel::setCornerText)
        .add("setTextColor", &CLabel::setTextColor)
        .add("setTextSize", &CLabel::setTextSize)
        .add("setAlignment", &CLabel::setAlignment)
        .add("setWrapMode", &CLabel::setWrapMode)
        .add("setAutoStyleEnabled", &CLabel::setAutoStyleEnabled)
        .add("setWidgetStyle", &CLabel::setWidgetStyle);
    Rows<CLineEdit>(table, "CLineEdit")
        .add("setTitle", &CLineEdit::setTitle)
        .add("setSKPActive", &CLineEdit::setSKPActive)
        .add("setSKPType", &CLineEdit::setSKPType)
        .form<int, int>("setRange", &CLineEdit::setRange)
        .form<const QString&, const QString&>("setRange", &CLineEdit::setRange)
        .add("setRangeEnabled", &CLineEdit::setRangeEnabled)
        .add("setMinimum", &CLineEdit::setMinimum)
        .add("setMaximum", &CLineEdit::setMaximum)
        .add("setBorderVisible", &CLineEdit::setBorderVisible)
        .add("setAutoStyleEnabled", &CLineEdit::setAutoStyleEnabled)
        .add("setFont", &CLineEdit::setFont)
        .add("setWidgetStyle", &CLineEdit::setWidgetStyle);
}

void addProgress(Table* table)
{
    Rows<CProgressBar>(table, "CProgressBar")
        .add("setRange", &CProgressBar::setRange)
        .add("setMinimum", &CProgressBar::setMinimum)
        .add("setMaximum", &CProgressBar::setMaximum)
        .add("setValue", &CProgressBar::setValue)
        .add("setBorderColor", &CProgressBar::setBorderColor)
        .add("setProgressColor", &CProgressBar::setProgressColor)
        .add("setGradientEabled", &CProgressBar::setGradientEabled);
    Rows<CClockProgress>(table, "CClockProgress")
        .add("start", &CClockProgress::start)
        .add("stop", &CClockProgress::stop)
        .add("setRunning", &CClockProgress::setRunning)
        .add("setRange", &CClockProgress::setRange)
        .add("setMinimum", &CClockProgress::setMinimum)
        .add("setMaximum", &CClockProgress::setMaximum)
        .add("setValue", &CClockProgress::setValue)
        .add("setFormat", &CClockProgress::setFormat)
        .add("roll", &CClockProgress::roll);
}

void addPages(Table* table)
{
    Rows<CPageBar>(table, "CPageBar")
        .add("setCount", &CPageBar::setCount)
        .add("addPage", &CPageBar::addPage)
        .add("removePage", &CPageBar::removePage)
        .add("clear", &CPageBar::clear)
        .add("setText", &CPageBar::setText)
        .add("setTextColor", &CPageBar::setTextColor)
        .add("setBackgroundColor", &CPageBar::setBackgroundColor)
        .add("setCurrentIndex", &CPageBar::setCurrentIndex)
        .add("update", &CPageBar::update)
        .add("leftClicked", &CPageBar::leftClicked)
        .add("rightClicked", &CPageBar::rightClicked);
    Rows<CPageWidget>(table, "CPageWidget")
        .add("addPage", &CPageWidget::addPage)
        .add("insertPage", &CPageWidget::insertPage)
        .add("removePage", &CPageWidget::removePage)
        .add("setBackgroundColor", &CPageWidget::setBackgroundColor)
        .add("openPageAutoUpdate", &CPageWidget::openPageAutoUpdate)
        .add("closePageAutoUpdate", &CPageWidget::closePageAutoUpdate)
        .add("updateParm", &CPageWidget::updateParm)
        .form<int, int>("setSize", &CPageWidget::setSize)
        .add("setCurrentPage", &CPageWidget::setCurrentPage)
        .add("showPage", &CPageWidget::showPage)
        .add("hidePage", &CPageWidget::hidePage);
}

void addLists(Table* table)
{
    Rows<CPageListWidgetItem>(table, "CPageListWidgetItem")
        .add("initialize", &CPageListWidgetItem::initialize)
        .add("setIndex", &CPageListWidgetItem::setIndex)
        .add("setText", &CPageListWidgetItem::setText)
        .add("setActive", &CPageListWidgetItem::setActive)
        .add("setSelect", &CPageListWidgetItem::setSelect)
        .add("setHoverIn", &CPageListWidgetItem::setHoverIn)
        .add("setHoverOut", &CPageListWidgetItem::setHoverOut)
        .add("clear", &CPageListWidgetItem::clear);
    Rows<CPageListWidgetHeader>(table, "CPageListWidgetHeader")
        .add("initialize", &CPageListWidgetHeader::initialize)
        .add("setTitle", &CPageListWidgetHeader::setTitle)
        .add("setText", &CPageListWidgetHeader::setText);
    Rows<CPageListWidgetItemArea>(table, "CPageListWidgetItemArea")
        .add("addItems", &CPageListWidgetItemArea::addItems)
        .add("clear", &CPageListWidgetItemArea::clear)
        .add("setVisibleItems", &CPageListWidgetItemArea::setVisibleItems)
        .add("setCurrentIndex", &CPageListWidgetItemArea::setCurrentIndex)
        .add("setMaxVisibleRows", &CPageListWidgetItemArea::setMaxVisibleRows)
        .add("updateStatus", &CPageListWidgetItemArea::updateStatus)
        .form<int, int>("setSize", &CPageListWidgetItemArea::setSize)
        .add("setCurrentPage", &CPageListWidgetItemArea::setCurrentPage);
    Rows<CPageListWidget>(table, "CPageListWidget")
        .add("setItems", &CPageListWidget::setItems)
        .add("addItems", &CPageListWidget::addItems)
        .add("addItem", &CPageListWidget::addItem)
        .add("clear", &CPageListWidget::clear)
        .add("setVisibleItems", &CPageListWidget::setVisibleItems)
        .form<int>("show", &CPageListWidget::show)
        .form<const QString&>("show", &CPageListWidget::show)
        .add("setTitle", &CPageListWidget::setTitle)
        .add("setText", &CPageListWidget::setText)
        .form<int, int>("setSize", &CPageListWidget::setSize)
        .add("adjustHeight", &CPageListWidget::adjustHeight)
        .add("adjustPageCount", &CPageListWidget::adjustPageCount)
        .add("setCurrentIndex", &CPageListWidget::setCurrentIndex);
}

void addComboBox(Table* table)
{
    Rows<CComboBox>(table, "CComboBox")
        .add("setItems", &CComboBox::setItems)
        .add("addItems", &CComboBox::addItems)
        .form<unsigned long long, unsigned int>("setVisibleItems", &CComboBox::setVisibleItems)
        .form<unsigned int, unsigned int>("setVisibleItems", &CComboBox::setVisibleItems)
        .form<const QList<int>&, int>("setVisibleItems", &CComboBox::setVisibleItems)
        .form<const QStringList&, int>("setVisibleItems", &CComboBox::setVisibleItems)
        .form<const QStringList&, const QString&>("setVisibleItems", &CComboBox::setVisibleItems)
        .add("setVisibleItem", &CComboBox::setVisibleItem)
        .add("setInvisibleItems", &CComboBox::setInvisibleItems)
        .add("setTitle", &CComboBox::setTitle)
        .add("setBorderVisible", &CComboBox::setBorderVisible)
        .add("setFont", &CComboBox::setFont)
        .add("setAutoStyleEnabled", &CComboBox::setAutoStyleEnabled)
        .add("setWidgetStyle", &CComboBox::setWidgetStyle)
        .add("showPopup", &CComboBox::showPopup)
        .add("hidePopup", &CComboBox::hidePopup)
        .add("setCurrentIndex", &CComboBox::setCurrentIndex)
        .add("changeCurrentText", &CComboBox::changeCurrentText)
        .form<const QString&>("changeCurrentItem", &CComboBox::changeCurrentItem)
        .form<int>("changeCurrentItem", &CComboBox::changeCurrentItem)
        .add("itemActivated", &CComboBox::itemActivated);
}

void addLabelField(Table* table)
{
    Rows<CParmLabel>(table, "CParmLabel")
        .add("setName", &CParmLabel::setName)
        .form<int, Proportion>("setWidth", &CParmLabel::setWidth)
        .add("setHeight", &CParmLabel::setHeight)
        .add("setFont", &CParmLabel::setFont)
        .add("setWrapMode", &CParmLabel::setWrapMode)
        .form<const QColor&, FieldFlag>("setBackgroundColor", &CParmLabel::setBackgroundColor)
        .add("setTextColor", &CParmLabel::setTextColor)
        .add("setBorderVisible", &CParmLabel::setBorderVisible)
        .add("setAlignment", &CParmLabel::setAlignment)
        .add("setWidgetStyle", &CParmLabel::setWidgetStyle)
        .add("setText", &CParmLabel::setText);
}

void addLineEditField(Table* table)
{
    Rows<CParmLineEdit>(table, "CParmLineEdit")
        .add("setName", &CParmLineEdit::setName)
        .form<int, Proportion>("setWidth", &CParmLineEdit::setWidth)
        .form<const QColor&, FieldFlag>("setBackgroundColor", &CParmLineEdit::setBackgroundColor)
        .add("setTextColor", &CParmLineEdit::setTextColor)
        .add("setWidgetStyle", &CParmLineEdit::setWidgetStyle)
        .add("setRange", &CParmLineEdit::setRange)
        .add("setRangeEnabled", &CParmLineEdit::setRangeEnabled)
        .add("setMinimum", &CParmLineEdit::setMinimum)
        .add("setMaximum", &CParmLineEdit::setMaximum)
        .add("setSKPType", &CParmLineEdit::setSKPType)
        .add("setSKPActive", &CParmLineEdit::setSKPActive)
        .add("setReadOnly", &CParmLineEdit::setReadOnly)
        .add("setEnable", &CParmLineEdit::setEnable)
        .add("setText", &CParmLineEdit::setText);
}

void addComboBoxField(Table* table)
{
    typedef CParmComboBox Field;
    Rows<Field>(table, "CParmComboBox")
        .add("setName", &Field::setName)
        .add("setItems", &Field::setItems)
        .add("addItems", &Field::addItems)
        .form<unsigned long long, unsigned int>("setVisibleItems", &Field::setVisibleItems)
        .form<unsigned int, unsigned int>("setVisibleItems", &Field::setVisibleItems)
        .form<const QList<int>&, int>("setVisibleItems", &Field::setVisibleItems)
        .form<const QStringList&, int>("setVisibleItems", &Field::setVisibleItems)
        .form<const QStringList&, const QString&>("setVisibleItems", &Field::setVisibleItems)
        .add("setVisibleItem", &Field::setVisibleItem)
        .add("setInvisibleItems", &Field::setInvisibleItems)
        .add("setWidth", &Field::setWidth)
        .form<const QColor&, FieldFlag>("setBackgroundColor", &Field::setBackgroundColor)
        .add("setTextColor", &Field::setTextColor)
        .add("setBorderVisible", &Field::setBorderVisible)
        .add("setWidgetStyle", &Field::setWidgetStyle)
        .add("setCurrentIndex", &Field::setCurrentIndex);
}

void addCheckBoxField(Table* table)
{
    Rows<CParmCheckBox>(table, "CParmCheckBox")
        .add("setName", &CParmCheckBox::setName)
        .add("setText", &CParmCheckBox::setText)
        .add("setChecked", &CParmCheckBox::setChecked)
        .add("setCheckState", &CParmCheckBox::setCheckState)
        .add("setBorderVisible", &CParmCheckBox::setBorderVisible)
        .add("setWidgetStyle", &CParmCheckBox::setWidgetStyle);
}

void addKeypads(Table* table)
{
    Rows<CNumKeyPad>(table, "CNumKeyPad")
        .add("initialize", &CNumKeyPad::initialize)
        .add("setMode", &CNumKeyPad::setMode);
    Rows<CHexKeyPad>(table, "CHexKeyPad").add("initialize", &CHexKeyPad::initialize);
    Rows<CGenKeyPad>(table, "CGenKeyPad").add("initialize", &CGenKeyPad::initialize);
    Rows<CKeyPadEdit>(table, "CKeyPadEdit")
        .add("setSKPType", &CKeyPadEdit::setSKPType)
        .form<int, int>("setFixedSize", &CKeyPadEdit::setFixedSize)
        .form<const QString&, const QString&>("setText", &CKeyPadEdit::setText);
    Rows<CSoftKeyPad>(table, "CSoftKeyPad")
        .add("initialize", &CSoftKeyPad::initialize)
        .add("setSize", &CSoftKeyPad::setSize)
        .add("setSKPType", &CSoftKeyPad::setSKPType)
        .form<int, int>("setRange", &CSoftKeyPad::setRange)
        .form<const QString&, const QString&>("setRange", &CSoftKeyPad::setRange)
        .add("setText", &CSoftKeyPad::setText)
        .add("clearInput", &CSoftKeyPad::clearInput)
        .add("changedkey", &CSoftKeyPad::changedkey)
        .add("changeText", &CSoftKeyPad::changeText);
}

void addWatchers(Table* table)
{
    Rows<QDeviceWatcher>(table, "QDeviceWatcher")
        .add("start", &QDeviceWatcher::start)
        .add("stop", &QDeviceWatcher::stop)
        .add("appendEventReceiver", &QDeviceWatcher::appendEventReceiver);
    Rows<CHotplugWatcher>(table, "CHotplugWatcher")
        .add("addDevice", &CHotplugWatcher::addDevice)
        .add("removeDevice", &CHotplugWatcher::removeDevice)
        .add("changeDevice", &CHotplugWatcher::changeDevice);
}

} // namespace

Table everyFunction()
{
    Table table;
    addStyle(&table);
    addContainers(&table);
    addButtons(&table);
    addTexts(&table);
    addProgress(&table);
    addPages(&table);
    addLists(&table);
    addComboBox(&table);
    addLabelField(&table);
    addLineEditField(&table);
    addComboBoxField(&table);
    addCheckBoxField(&table);
    addKeypads(&table);
    addWatchers(&table);
    return table;
}

} // namespace extremes
