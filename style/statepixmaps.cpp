#include "style/table_p.h"
#include "style/widgetstyle.h"

namespace
{

// The looks of a strip of three pictures, from the left, and of a strip of two.
enum StripLook {
    ReleasedLook = 0,
    PressedLook = 1,
    SelectedLook = 2
};

// Picture number `index` of a strip of pictures of this size.
struct Slice {
    const char* image;
    int index;
    int width;
    int height;
};

QPixmap load(const char* image)
{
    return QPixmap(QLatin1String(":/images/") + QLatin1String(image));
}

QPixmap load(const char* image, int x, int y, int width, int height)
{
    return load(image).copy(x, y, width, height);
}

QPixmap load(const Slice& slice)
{
    return load(slice.image, slice.index * slice.width, 0, slice.width, slice.height);
}

// ---- buttons

const int buttonWidth = 120;
const int buttonHeight = 40;

const struct {
    const char* normal;
    const char* big;
    StripLook look;
} buttons[] = {
    // clang-format off
    {"RCTB_BUTTONGRAY_3states.png",   "BIG_RCTB_BUTTONGRAY_3states.png",   ReleasedLook}, //  0
    {"RCTB_BUTTONGRAY_3states.png",   "BIG_RCTB_BUTTONGRAY_3states.png",   PressedLook},  //  1
    {"RCTB_BUTTONGRAY_3states.png",   "BIG_RCTB_BUTTONGRAY_3states.png",   SelectedLook}, //  2
    {"RCTB_BUTTONGREEN_3states.png",  "BIG_RCTB_BUTTONGREEN_3states.png",  PressedLook},  //  3
    {"RCTB_BUTTONGREEN_3states.png",  "BIG_RCTB_BUTTONGREEN_3states.png",  ReleasedLook}, //  4
    {"RCTB_BUTTONGREEN_3states.png",  "BIG_RCTB_BUTTONGREEN_3states.png",  SelectedLook}, //  5
    {"RCTB_BUTTONORANGE_3states.png", "BIG_RCTB_BUTTONORANGE_3states.png", PressedLook},  //  6
    {"RCTB_BUTTONORANGE_3states.png", "BIG_RCTB_BUTTONORANGE_3states.png", ReleasedLook}, //  7
    {"RCTB_BUTTONORANGE_3states.png", "BIG_RCTB_BUTTONORANGE_3states.png", SelectedLook}, //  8
    {"RCTB_BUTTONRED_3states.png",    "BIG_RCTB_BUTTONRED_3states.png",    ReleasedLook}, //  9
    {"RCTB_BUTTONRED_3states.png",    "BIG_RCTB_BUTTONRED_3states.png",    PressedLook},  // 10
    {"RCTB_BUTTONRED_3states.png",    "BIG_RCTB_BUTTONRED_3states.png",    SelectedLook}, // 11
    // A look that pressing does not change.
    {"RCTB_BUTTONGRAY_3states.png",   "BIG_RCTB_BUTTONGRAY_3states.png",   SelectedLook}, // 12
    {"RCTB_BUTTONGRAY_3states.png",   "BIG_RCTB_BUTTONGRAY_3states.png",   SelectedLook}, // 13
    {"RCTB_BUTTONGRAY_3states.png",   "BIG_RCTB_BUTTONGRAY_3states.png",   SelectedLook}, // 14
    {"RCTB_BUTTONGRAY_3states.png",   "BIG_RCTB_BUTTONGRAY_3states.png",   SelectedLook}, // 15
    // clang-format on
};
static_assert(table::count(buttons) == CWidgetStyle::FixedSpare2 + 1,
              "each ButtonStatus has a picture");

// ---- keys: one row per key; each key has the states pressed, released and selected

const struct {
    const char* image;
    int width;
    int height;
} keys[] = {
    // clang-format off
    {"GENKB_BUTTON.png",        45, 45}, //  0
    {"GENKB_CAPS_BTN.png",      55, 45}, //  1
    {"GENKB_SHIFT_BTN.png",     55, 45}, //  2
    {"GENKB_SYMBOL_BTN.png",    66, 45}, //  3
    {"GENKB_DELALL_BTN.png",    75, 45}, //  4
    {"GENKB_SPACE_BTN.png",    365, 45}, //  5
    {"GENKB_APPLY_BTN.png",     95, 45}, //  6
    {"HEXKB_BUTTON.png",        75, 40}, //  7
    {"HEXKB_DEL_BTN.png",       40, 30}, //  8
    {"HEXKB_DELALL_BTN.png",    77, 30}, //  9
    {"HEXKB_DOT_BTN.png",       40, 30}, // 10
    {"HEXKB_APPLY_BTN.png",     90, 30}, // 11
    {"HEXKB_BACKSPACE_BTN.png", 40, 30}, // 12
    {"NUMKB_BUTTON.png",        80, 50}, // 13
    {"NUMKB_DEL_BTN.png",       50, 40}, // 14
    {"NUMKB_DELALL_BTN.png",    77, 40}, // 15
    {"NUMKB_DOT_BTN.png",       50, 40}, // 16
    {"NUMKB_APPLY_BTN.png",     90, 40}, // 17
    {"NUMKB_BACKSPACE_BTN.png", 50, 40}, // 18
    // clang-format on
};

const StripLook keyLooks[] = {PressedLook, ReleasedLook, SelectedLook};
const int keyLookCount = table::count(keyLooks);
static_assert(table::count(keys) * keyLookCount == CWidgetStyle::NumBackspaceSelected + 1,
              "each KeyStatus has a picture");

// ---- lamps

const int ledCount = CWidgetStyle::LedState5 + 1;

const struct {
    const char* image;
    int pitch;
    int size;
} leds[] = {
    // clang-format off
    {"BB_LIGHT_4states.png",  20, 19}, // large. Deliberate: a pixel short of the pitch
    {"BB_LIGHT_4states.png",  20, 19},
    {"led_16X16 pixels.png",  16, 16},
    // clang-format on
};
static_assert(table::count(leds) == CWidgetStyle::SmallIcon + 1, "each IconMode has a picture");

// ---- arrows, signs and backgrounds; a row without image is a null pixmap

const Slice pageSwitches[] = {
    // clang-format off
    {"hspinbox_arrow_20.png",  0, 26, 20}, //  0
    {"hspinbox_arrow_20.png",  1, 26, 20}, //  1
    {nullptr,                  0,  0,  0}, //  2
    {"hspinbox_arrow_20.png",  2, 26, 20}, //  3
    {"hspinbox_arrow_20.png",  3, 26, 20}, //  4
    {nullptr,                  0,  0,  0}, //  5
    {"arrow-up-3states.png",   0, 24, 40}, //  6
    {"arrow-up-3states.png",   2, 24, 40}, //  7
    {nullptr,                  0,  0,  0}, //  8
    {"arrow-down-3states.png", 0, 24, 40}, //  9
    {"arrow-down-3states.png", 2, 24, 40}, // 10
    {nullptr,                  0,  0,  0}, // 11
    // clang-format on
};
static_assert(table::count(pageSwitches) == CWidgetStyle::DownSelected + 1,
              "each PageSwitchStatus has a row");

const Slice closeButtons[] = {
    // clang-format off
    {"TB_CLOSE_3states.png", PressedLook,  44, 44}, // 0
    {"TB_CLOSE_3states.png", ReleasedLook, 44, 44}, // 1
    {"TB_CLOSE_3states.png", SelectedLook, 44, 44}, // 2
    // clang-format on
};
static_assert(table::count(closeButtons) == CWidgetStyle::CloseSelected + 1,
              "each CloseStatus has a picture");

const Slice entries[] = {
    // clang-format off
    {"menuentry_top-140x50.png", 0, 140, 50}, // 0
    {"menuentry_top-140x50.png", 1, 140, 50}, // 1
    {"menuentry_top-140x50.png", 2, 140, 50}, // 2
    // clang-format on
};
static_assert(table::count(entries) == CWidgetStyle::EntryThird + 1,
              "each EntryStatus has a picture");

const Slice zooms[] = {
    // clang-format off
    {"stock-zoom-in-16_2states.png",  PressedLook,  16, 16}, // 0
    {"stock-zoom-in-16_2states.png",  ReleasedLook, 16, 16}, // 1
    {"stock-zoom-in-16_2states.png",  PressedLook,  16, 16}, // 2
    {"stock-zoom-out-16_2states.png", PressedLook,  16, 16}, // 3
    {"stock-zoom-out-16_2states.png", ReleasedLook, 16, 16}, // 4
    {"stock-zoom-out-16_2states.png", PressedLook,  16, 16}, // 5
    // clang-format on
};
static_assert(table::count(zooms) == CWidgetStyle::ZoomOutSelected + 1,
              "each ZoomStatus has a picture");

const Slice slides[] = {
    // clang-format off
    {"go-previous-view_2states.png", PressedLook,  16, 16}, // 0
    {"go-previous-view_2states.png", ReleasedLook, 16, 16}, // 1
    {"go-previous-view_2states.png", PressedLook,  16, 16}, // 2
    {"go-next-view_2states.png",     PressedLook,  16, 16}, // 3
    {"go-next-view_2states.png",     ReleasedLook, 16, 16}, // 4
    {"go-next-view_2states.png",     PressedLook,  16, 16}, // 5
    // clang-format on
};
static_assert(table::count(slides) == CWidgetStyle::SlidNextSelected + 1,
              "each SlidStatus has a picture");

const Slice arrows[] = {
    // clang-format off
    {"arrow_20x20pixels.png", 2, 20, 20}, // 0
    {"arrow_20x20pixels.png", 1, 20, 20}, // 1
    {"arrow_20x20pixels.png", 0, 20, 20}, // 2
    {"arrow_20x20pixels.png", 3, 20, 20}, // 3
    {"ARROW-WHITE.png",       1, 26, 26}, // 4
    {"ARROW-WHITE.png",       0, 26, 26}, // 5
    // clang-format on
};
static_assert(table::count(arrows) == CWidgetStyle::WhiteArrowA + 1,
              "each ArrowStatus has a picture");

const char* const signalImages[] = {
    "wireless-0.png", "wireless-25.png", "wireless-50.png", "wireless-75.png", "wireless-100.png",
};
static_assert(table::count(signalImages) == CWidgetStyle::Signal100 + 1,
              "each WIFISignalStatus has a picture");

// ---- the application grid

const int appWidth = 93;
const int appHeight = 44;
const int appRows[] = {0, 1, 1, 0, 2, 2, 3, 1, 1, 3, 2, 2, 6, 4, 4, 6, 5, 5, 9, 7, 7, 9, 8, 8};
// Deliberate: only the first six tiles come from other columns than the first.
const int appColumns[] = {0, 1, 2, 0, 1, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
static_assert(table::count(appRows) == CWidgetStyle::App23 + 1, "each AppStatus has a tile's row");
static_assert(table::count(appColumns) == table::count(appRows), "and its column");

} // namespace

/// The push button's picture, 120 x 40 pixels, from the normal strips or from the big ones; a null
/// pixmap for an unknown status.
QPixmap CWidgetStyle::getButtonStatus(ButtonStatus status, bool normalSize)
{
    if (!table::has(buttons, status))
        return QPixmap();
    const char* image = normalSize ? buttons[status].normal : buttons[status].big;
    return load(image, buttons[status].look * buttonWidth, 0, buttonWidth, buttonHeight);
}

/// The picture of a key of a keypad; a null pixmap for an unknown status.
QPixmap CWidgetStyle::getKeyStatus(KeyStatus status)
{
    // Deliberate: two slices are irregular. Both end at the image's edge: the first is 75 x 45
    // all the same, the second 20 x 30 of the other keypad's key.
    if (status == GenDelAllSelected)
        return load("GENKB_DELALL_BTN.png", 150, 0, 750, 45);
    if (status == NumDelSelected)
        return load("HEXKB_DEL_BTN.png", 100, 0, 50, 40);
    if (status < 0 || !table::has(keys, status / keyLookCount))
        return QPixmap();
    const int key = status / keyLookCount;
    const int x = keyLooks[status % keyLookCount] * keys[key].width;
    return load(keys[key].image, x, 0, keys[key].width, keys[key].height);
}

/// The picture of a lamp. An unknown status gives the first picture, an unknown size a null pixmap.
QPixmap CWidgetStyle::getLEDStatus(LEDStatus status, IconMode mode)
{
    if (!table::has(leds, mode))
        return QPixmap();
    const int index = status >= 0 && status < ledCount ? status : 0;
    return load(leds[mode].image, index * leds[mode].pitch, 0, leds[mode].size, leds[mode].size);
}

/// The picture of a page bar's arrow; null for the selected ones and for an unknown status.
QPixmap CWidgetStyle::getPageSwitchStatus(PageSwitchStatus status)
{
    if (!table::has(pageSwitches, status) || !pageSwitches[status].image)
        return QPixmap();
    return load(pageSwitches[status]);
}

/// The lock, 16 x 16 pixels, whatever the status.
QPixmap CWidgetStyle::getLockStatus(LockStatus status)
{
    Q_UNUSED(status);
    return load("object-locked.png");
}

/// A tile of the application grid, 93 x 44 pixels; the first one for an unknown status.
QPixmap CWidgetStyle::getAppStatus(AppStatus status)
{
    const int tile = table::has(appRows, status) ? status : 0;
    const int x = appColumns[tile] * appWidth;
    return load("selection_final.png", x, appRows[tile] * appHeight, appWidth, appHeight);
}

/// The sign of a Bluetooth device, 32 x 32 pixels: 1 for a computer, 2 for a mobile phone, anything
/// else for a device of no known kind.
QPixmap CWidgetStyle::getBluetoothDeviceIcon(int kind)
{
    switch (kind) {
    case 1:
        return load("computer-laptop.png");
    case 2:
        return load("mobile-phone.png");
    default:
        return load("bluetooth-device.png");
    }
}

/// The picture of a close button, 44 x 44 pixels; the released one for an unknown status.
QPixmap CWidgetStyle::getCloseStatus(CloseStatus status)
{
    return load(closeButtons[table::has(closeButtons, status) ? status : CloseReleased]);
}

/// The background of a menu entry, 140 x 50 pixels; a null pixmap for an unknown status.
QPixmap CWidgetStyle::getEntryStatus(EntryStatus status)
{
    return table::has(entries, status) ? load(entries[status]) : QPixmap();
}

/// The sign of the wireless signal, 24 x 24 pixels; no signal for an unknown status.
QPixmap CWidgetStyle::getWIFISignalStatus(WIFISignalStatus status)
{
    return load(signalImages[table::has(signalImages, status) ? status : Signal0]);
}

/// The picture of a zoom button, 16 x 16 pixels; 'zoom in', released, for an unknown status.
QPixmap CWidgetStyle::getZoomStatus(ZoomStatus status)
{
    return load(zooms[table::has(zooms, status) ? status : ZoomInReleased]);
}

/// The picture of an arrow, 20 x 20 or, the white ones, 26 x 26 pixels; null for an unknown status.
QPixmap CWidgetStyle::getArrowStatus(ArrowStatus status)
{
    return table::has(arrows, status) ? load(arrows[status]) : QPixmap();
}

/// The picture of a slide button, 16 x 16 pixels; 'previous', released, for an unknown status.
QPixmap CWidgetStyle::getSlidStatus(SlidStatus status)
{
    return load(slides[table::has(slides, status) ? status : SlidPrevReleased]);
}
