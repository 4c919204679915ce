#include "widgetrow.h"

#include <CAbstractKeyPad>
#include <CCheckBox>
#include <CClockProgress>
#include <CComboBox>
#include <CDialog>
#include <CGenKeyPad>
#include <CGraphicsView>
#include <CHexKeyPad>
#include <CKeyButton>
#include <CKeyPadEdit>
#include <CLabel>
#include <CLineEdit>
#include <CNumKeyPad>
#include <CPageBar>
#include <CPageListWidget>
#include <CPageListWidgetHeader>
#include <CPageListWidgetItem>
#include <CPageListWidgetItemArea>
#include <CPageWidget>
#include <CParmCheckBox>
#include <CParmComboBox>
#include <CParmLabel>
#include <CParmLineEdit>
#include <CProgressBar>
#include <CPushButton>
#include <CSoftKeyPad>
#include <CTopTitleArea>
#include <CWidget>

namespace
{

template <typename Widget>
QWidget* make(QWidget* parent)
{
    return new Widget(parent);
}

} // namespace

// Texts are without spaces around tags, so that one line stands for one property.
#define TEXT(name, text) "<property name=\"" name "\"><string>" text "</string></property>"
#define NUMBER(name, number) "<property name=\"" name "\"><number>" number "</number></property>"
#define SWITCH(name, on) "<property name=\"" name "\"><bool>" on "</bool></property>"
#define CHOICE(name, key) "<property name=\"" name "\" stdset=\"0\"><enum>" key "</enum></property>"
#define ITEMS                                                                                      \
    "<property name=\"items\"><stringlist>"                                                        \
    "<string>Off</string><string>Auto</string><string>Manual</string></stringlist></property>"
#define FIXED(name, width, height)                                                                 \
    "<property name=\"" name "\"><size><width>" width "</width><height>" height                    \
    "</height></size></property>"
#define WIDE FIXED("minimumSize", "160", "28") FIXED("maximumSize", "16777215", "28")
#define CAPTION TEXT("text", "Check box") SWITCH("borderVisible", "true")
#define PAGES "<widget class=\"CWidget\" name=\"page\"/><widget class=\"CWidget\" name=\"page_2\"/>"

// clang-format off
const WidgetRow widgetRows[] = {
    {"CWidget",                 make<CWidget>,                 true,  200, 120, "main-area_selection.png",           0, 120, "Base of all screens: a background and a border",        ""},
    {"CDialog",                 make<CDialog>,                 true,  320, 200, "TB_CLOSE_3states.png",              0,  44, "Dialog with a background and a border",                 ""},
    {"CPageWidget",             make<CPageWidget>,             true,  320, 240, "next_page.png",                     0,  25, "Pages, one shown at a time, and a page bar",        PAGES},
    {"CGraphicsView",           make<CGraphicsView>,           false, 200, 120, "zoom.png",                          0,  22, "Graphics view with a background and a border",          ""},
    {"CTopTitleArea",           make<CTopTitleArea>,           true,  320,  30, "UTIL_TB_BKGROUND.png",              0,  44, "Strip with a title",                                TEXT("title", "Title")},
    {"CPushButton",             make<CPushButton>,             false, 120,  40, "RCTB_BUTTONGREEN_3states.png",      0, 120, "Touch button",                                      TEXT("text", "Button") CHOICE("buttonStyle", "CPushButton::GreenStyle")},
    {"CLabel",                  make<CLabel>,                  false, 120,  28, "group-background_120X30.png",       0, 120, "Text with a second one in the right corner",        TEXT("text", "Label")},
    {"CCheckBox",               make<CCheckBox>,               false, 160,  28, "checkbox_3states.png",             16,  16, "Check box that changes at the first touch",         WIDE CAPTION},
    {"CLineEdit",               make<CLineEdit>,               false, 160,  28, "GENKB_BUTTON.png",                 45,  45, "Line of text that opens a keypad",                  TEXT("title", "Title")},
    {"CProgressBar",            make<CProgressBar>,            false, 300,  50, "backlight.png",                    80,  40, "Progress as a bar",                                 NUMBER("value", "60")},
    {"CClockProgress",          make<CClockProgress>,          false,  30,  30, "MISC_PROGCLK_11states.png",        60,  30, "Turning clock",                                     ""},
    {"CPageBar",                make<CPageBar>,                false, 150,  30, "hspinbox_arrow_20.png",            52,  26, "Number of the page between two arrows",             NUMBER("count", "3")},
    {"CComboBox",               make<CComboBox>,               false, 160,  28, "drop-down.png",                     0,  20, "Choice from a paged list",                          TEXT("title", "Mode") ITEMS},
    {"CPageListWidget",         make<CPageListWidget>,         false, 220, 238, "arrow-down-3states.png",            0,  24, "List with pages, a popup",                          TEXT("title", "Mode") ITEMS},
    {"CPageListWidgetHeader",   make<CPageListWidgetHeader>,   false, 220,  60, "menuentry_top.png",                 0, 120, "Header of a paged list",                            TEXT("title", "Mode") TEXT("text", "Auto")},
    {"CPageListWidgetItem",     make<CPageListWidgetItem>,     false, 220,  28, "menuentry_top.png",               240, 120, "Row of a paged list",                               TEXT("text", "Row")},
    {"CPageListWidgetItemArea", make<CPageListWidgetItemArea>, false, 220, 148, "selection_final.png",               0,  93, "Rows of a paged list",                              ""},
    {"CParmLabel",              make<CParmLabel>,              false, 300,  30, "arrow_20x20pixels.png",             0,  20, "Parameter: name and value",                         TEXT("name", "Name") TEXT("text", "Value")},
    {"CParmLineEdit",           make<CParmLineEdit>,           false, 300,  30, "HEXKB_BUTTON.png",                   0,  75, "Parameter: name and line of text",                  TEXT("name", "Name") TEXT("text", "Value")},
    {"CParmComboBox",           make<CParmComboBox>,           false, 300,  30, "arrow_20x20pixels.png",             40,  20, "Parameter: name and choice",                        TEXT("name", "Name") ITEMS},
    {"CParmCheckBox",           make<CParmCheckBox>,           false, 300,  30, "checkbox_3states.png",             32,  16, "Parameter: name and check box",                     TEXT("name", "Name") TEXT("text", "on")},
    {"CKeyButton",              make<CKeyButton>,              false,  75,  40, "NUMKB_BUTTON.png",                  0,  80, "Key of a keypad",                                   FIXED("minimumSize", "75", "40") FIXED("maximumSize", "75", "40") TEXT("keyText", "A") NUMBER("key", "65")},
    {"CAbstractKeyPad",         make<CAbstractKeyPad>,         true,  560, 390, "GENKB_SPACE_BTN.png",               0, 365, "Base of the grids of keys",                         ""},
    {"CGenKeyPad",              make<CGenKeyPad>,              false, 560, 390, "GENKB_APPLY_BTN.png",               0,  95, "Keys for texts",                                    ""},
    {"CNumKeyPad",              make<CNumKeyPad>,              false, 560, 390, "NUMKB_APPLY_BTN.png",               0,  90, "Keys for numbers",                                  ""},
    {"CHexKeyPad",              make<CHexKeyPad>,              false, 560, 390, "HEXKB_DELALL_BTN.png",              0,  77, "Keys for hexadecimal numbers",                      ""},
    {"CKeyPadEdit",             make<CKeyPadEdit>,             false, 320,  82, "HEXKB_BUTTON.png",                 75,  75, "Entry field of a keypad",                           ""},
    {"CSoftKeyPad",             make<CSoftKeyPad>,             false, 519, 390, "computer-laptop.png",               0,  32, "Keypad with its entry field, a dialog",             ""},
};
// clang-format on

const int widgetRowCount = sizeof widgetRows / sizeof widgetRows[0];
