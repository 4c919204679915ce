#include "support/rows.h"
#include "support/testing.h"

namespace
{

enum Family {
    Button,
    BigButton,
    Key,
    Led,
    PageSwitch,
    Lock,
    App,
    Bluetooth,
    Close,
    Entry,
    Wifi,
    Zoom,
    Arrow,
    Slid
};

// One row per picture: what a getter is asked, and which part of which image it answers with. A
// picture without image is null; one without size is the whole image.
struct Row {
    Family family;
    int status;
    int mode; // lamps only
    const char* image;
    int x, y, width, height;
};

// clang-format off
const Row rows[] = {
    {Button,  0, 0, "RCTB_BUTTONGRAY_3states.png",     0, 0, 120, 40},
    {Button,  1, 0, "RCTB_BUTTONGRAY_3states.png",   120, 0, 120, 40},
    {Button,  2, 0, "RCTB_BUTTONGRAY_3states.png",   240, 0, 120, 40},
    {Button,  3, 0, "RCTB_BUTTONGREEN_3states.png",  120, 0, 120, 40},
    {Button,  4, 0, "RCTB_BUTTONGREEN_3states.png",    0, 0, 120, 40},
    {Button,  5, 0, "RCTB_BUTTONGREEN_3states.png",  240, 0, 120, 40},
    {Button,  6, 0, "RCTB_BUTTONORANGE_3states.png", 120, 0, 120, 40},
    {Button,  7, 0, "RCTB_BUTTONORANGE_3states.png",   0, 0, 120, 40},
    {Button,  8, 0, "RCTB_BUTTONORANGE_3states.png", 240, 0, 120, 40},
    {Button,  9, 0, "RCTB_BUTTONRED_3states.png",      0, 0, 120, 40},
    {Button, 10, 0, "RCTB_BUTTONRED_3states.png",    120, 0, 120, 40},
    {Button, 11, 0, "RCTB_BUTTONRED_3states.png",    240, 0, 120, 40},
    {Button, 12, 0, "RCTB_BUTTONGRAY_3states.png",   240, 0, 120, 40},
    {Button, 13, 0, "RCTB_BUTTONGRAY_3states.png",   240, 0, 120, 40},
    {Button, 14, 0, "RCTB_BUTTONGRAY_3states.png",   240, 0, 120, 40},
    {Button, 15, 0, "RCTB_BUTTONGRAY_3states.png",   240, 0, 120, 40},
    {Button, 16, 0, nullptr, 0, 0, 0, 0},
    {Button, 99, 0, nullptr, 0, 0, 0, 0},
    {Button, -1, 0, nullptr, 0, 0, 0, 0},

    {BigButton,  0, 0, "BIG_RCTB_BUTTONGRAY_3states.png",     0, 0, 120, 40},
    {BigButton,  1, 0, "BIG_RCTB_BUTTONGRAY_3states.png",   120, 0, 120, 40},
    {BigButton,  2, 0, "BIG_RCTB_BUTTONGRAY_3states.png",   240, 0, 120, 40},
    {BigButton,  3, 0, "BIG_RCTB_BUTTONGREEN_3states.png",  120, 0, 120, 40},
    {BigButton,  4, 0, "BIG_RCTB_BUTTONGREEN_3states.png",    0, 0, 120, 40},
    {BigButton,  5, 0, "BIG_RCTB_BUTTONGREEN_3states.png",  240, 0, 120, 40},
    {BigButton,  6, 0, "BIG_RCTB_BUTTONORANGE_3states.png", 120, 0, 120, 40},
    {BigButton,  7, 0, "BIG_RCTB_BUTTONORANGE_3states.png",   0, 0, 120, 40},
    {BigButton,  8, 0, "BIG_RCTB_BUTTONORANGE_3states.png", 240, 0, 120, 40},
    {BigButton,  9, 0, "BIG_RCTB_BUTTONRED_3states.png",      0, 0, 120, 40},
    {BigButton, 10, 0, "BIG_RCTB_BUTTONRED_3states.png",    120, 0, 120, 40},
    {BigButton, 11, 0, "BIG_RCTB_BUTTONRED_3states.png",    240, 0, 120, 40},
    {BigButton, 12, 0, "BIG_RCTB_BUTTONGRAY_3states.png",   240, 0, 120, 40},
    {BigButton, 13, 0, "BIG_RCTB_BUTTONGRAY_3states.png",   240, 0, 120, 40},
    {BigButton, 14, 0, "BIG_RCTB_BUTTONGRAY_3states.png",   240, 0, 120, 40},
    {BigButton, 15, 0, "BIG_RCTB_BUTTONGRAY_3states.png",   240, 0, 120, 40},
    {BigButton, 16, 0, nullptr, 0, 0, 0, 0},
    {BigButton, -1, 0, nullptr, 0, 0, 0, 0},

    {Key,  0, 0, "GENKB_BUTTON.png",         45, 0,  45, 45},
    {Key,  1, 0, "GENKB_BUTTON.png",          0, 0,  45, 45},
    {Key,  2, 0, "GENKB_BUTTON.png",         90, 0,  45, 45},
    {Key,  3, 0, "GENKB_CAPS_BTN.png",       55, 0,  55, 45},
    {Key,  4, 0, "GENKB_CAPS_BTN.png",        0, 0,  55, 45},
    {Key,  5, 0, "GENKB_CAPS_BTN.png",      110, 0,  55, 45},
    {Key,  6, 0, "GENKB_SHIFT_BTN.png",      55, 0,  55, 45},
    {Key,  7, 0, "GENKB_SHIFT_BTN.png",       0, 0,  55, 45},
    {Key,  8, 0, "GENKB_SHIFT_BTN.png",     110, 0,  55, 45},
    {Key,  9, 0, "GENKB_SYMBOL_BTN.png",     66, 0,  66, 45},
    {Key, 10, 0, "GENKB_SYMBOL_BTN.png",      0, 0,  66, 45},
    {Key, 11, 0, "GENKB_SYMBOL_BTN.png",    132, 0,  66, 45},
    {Key, 12, 0, "GENKB_DELALL_BTN.png",     75, 0,  75, 45},
    {Key, 13, 0, "GENKB_DELALL_BTN.png",      0, 0,  75, 45},
    {Key, 14, 0, "GENKB_DELALL_BTN.png",    150, 0,  75, 45}, // asked for 750 wide
    {Key, 15, 0, "GENKB_SPACE_BTN.png",     365, 0, 365, 45},
    {Key, 16, 0, "GENKB_SPACE_BTN.png",       0, 0, 365, 45},
    {Key, 17, 0, "GENKB_SPACE_BTN.png",     730, 0, 365, 45},
    {Key, 18, 0, "GENKB_APPLY_BTN.png",      95, 0,  95, 45},
    {Key, 19, 0, "GENKB_APPLY_BTN.png",       0, 0,  95, 45},
    {Key, 20, 0, "GENKB_APPLY_BTN.png",     190, 0,  95, 45},
    {Key, 21, 0, "HEXKB_BUTTON.png",         75, 0,  75, 40},
    {Key, 22, 0, "HEXKB_BUTTON.png",          0, 0,  75, 40},
    {Key, 23, 0, "HEXKB_BUTTON.png",        150, 0,  75, 40},
    {Key, 24, 0, "HEXKB_DEL_BTN.png",        40, 0,  40, 30},
    {Key, 25, 0, "HEXKB_DEL_BTN.png",         0, 0,  40, 30},
    {Key, 26, 0, "HEXKB_DEL_BTN.png",        80, 0,  40, 30},
    {Key, 27, 0, "HEXKB_DELALL_BTN.png",     77, 0,  77, 30},
    {Key, 28, 0, "HEXKB_DELALL_BTN.png",      0, 0,  77, 30},
    {Key, 29, 0, "HEXKB_DELALL_BTN.png",    154, 0,  77, 30},
    {Key, 30, 0, "HEXKB_DOT_BTN.png",        40, 0,  40, 30},
    {Key, 31, 0, "HEXKB_DOT_BTN.png",         0, 0,  40, 30},
    {Key, 32, 0, "HEXKB_DOT_BTN.png",        80, 0,  40, 30},
    {Key, 33, 0, "HEXKB_APPLY_BTN.png",      90, 0,  90, 30},
    {Key, 34, 0, "HEXKB_APPLY_BTN.png",       0, 0,  90, 30},
    {Key, 35, 0, "HEXKB_APPLY_BTN.png",     180, 0,  90, 30},
    {Key, 36, 0, "HEXKB_BACKSPACE_BTN.png",  40, 0,  40, 30},
    {Key, 37, 0, "HEXKB_BACKSPACE_BTN.png",   0, 0,  40, 30},
    {Key, 38, 0, "HEXKB_BACKSPACE_BTN.png",  80, 0,  40, 30},
    {Key, 39, 0, "NUMKB_BUTTON.png",         80, 0,  80, 50},
    {Key, 40, 0, "NUMKB_BUTTON.png",          0, 0,  80, 50},
    {Key, 41, 0, "NUMKB_BUTTON.png",        160, 0,  80, 50},
    {Key, 42, 0, "NUMKB_DEL_BTN.png",        50, 0,  50, 40},
    {Key, 43, 0, "NUMKB_DEL_BTN.png",         0, 0,  50, 40},
    {Key, 44, 0, "HEXKB_DEL_BTN.png",       100, 0,  20, 30}, // the other keypad's
    {Key, 45, 0, "NUMKB_DELALL_BTN.png",     77, 0,  77, 40},
    {Key, 46, 0, "NUMKB_DELALL_BTN.png",      0, 0,  77, 40},
    {Key, 47, 0, "NUMKB_DELALL_BTN.png",    154, 0,  77, 40},
    {Key, 48, 0, "NUMKB_DOT_BTN.png",        50, 0,  50, 40},
    {Key, 49, 0, "NUMKB_DOT_BTN.png",         0, 0,  50, 40},
    {Key, 50, 0, "NUMKB_DOT_BTN.png",       100, 0,  50, 40},
    {Key, 51, 0, "NUMKB_APPLY_BTN.png",      90, 0,  90, 40},
    {Key, 52, 0, "NUMKB_APPLY_BTN.png",       0, 0,  90, 40},
    {Key, 53, 0, "NUMKB_APPLY_BTN.png",     180, 0,  90, 40},
    {Key, 54, 0, "NUMKB_BACKSPACE_BTN.png",  50, 0,  50, 40},
    {Key, 55, 0, "NUMKB_BACKSPACE_BTN.png",   0, 0,  50, 40},
    {Key, 56, 0, "NUMKB_BACKSPACE_BTN.png", 100, 0,  50, 40},
    {Key, 57, 0, nullptr, 0, 0, 0, 0},
    {Key, 58, 0, nullptr, 0, 0, 0, 0},
    {Key, -1, 0, nullptr, 0, 0, 0, 0},

    {Led,  0, 0, "BB_LIGHT_4states.png",   0, 0, 19, 19},
    {Led,  1, 0, "BB_LIGHT_4states.png",  20, 0, 19, 19},
    {Led,  2, 0, "BB_LIGHT_4states.png",  40, 0, 19, 19},
    {Led,  3, 0, "BB_LIGHT_4states.png",  60, 0, 19, 19},
    {Led,  4, 0, "BB_LIGHT_4states.png",  80, 0, 19, 19},
    {Led,  5, 0, "BB_LIGHT_4states.png", 100, 0, 19, 19},
    {Led,  6, 0, "BB_LIGHT_4states.png",   0, 0, 19, 19},
    {Led, -1, 0, "BB_LIGHT_4states.png",   0, 0, 19, 19},
    {Led,  0, 1, "BB_LIGHT_4states.png",   0, 0, 19, 19},
    {Led,  5, 1, "BB_LIGHT_4states.png", 100, 0, 19, 19},
    {Led,  0, 2, "led_16X16 pixels.png",   0, 0, 16, 16},
    {Led,  1, 2, "led_16X16 pixels.png",  16, 0, 16, 16},
    {Led,  2, 2, "led_16X16 pixels.png",  32, 0, 16, 16},
    {Led,  3, 2, "led_16X16 pixels.png",  48, 0, 16, 16},
    {Led,  4, 2, "led_16X16 pixels.png",  64, 0, 16, 16},
    {Led,  5, 2, "led_16X16 pixels.png",  80, 0, 16, 16},
    {Led,  6, 2, "led_16X16 pixels.png",   0, 0, 16, 16},
    {Led,  0, 3, nullptr, 0, 0, 0, 0},
    {Led,  0, -1, nullptr, 0, 0, 0, 0},

    {PageSwitch,  0, 0, "hspinbox_arrow_20.png",   0, 0, 26, 20},
    {PageSwitch,  1, 0, "hspinbox_arrow_20.png",  26, 0, 26, 20},
    {PageSwitch,  2, 0, nullptr, 0, 0, 0, 0},
    {PageSwitch,  3, 0, "hspinbox_arrow_20.png",  52, 0, 26, 20},
    {PageSwitch,  4, 0, "hspinbox_arrow_20.png",  78, 0, 26, 20},
    {PageSwitch,  5, 0, nullptr, 0, 0, 0, 0},
    {PageSwitch,  6, 0, "arrow-up-3states.png",    0, 0, 24, 40},
    {PageSwitch,  7, 0, "arrow-up-3states.png",   48, 0, 24, 40},
    {PageSwitch,  8, 0, nullptr, 0, 0, 0, 0},
    {PageSwitch,  9, 0, "arrow-down-3states.png",  0, 0, 24, 40},
    {PageSwitch, 10, 0, "arrow-down-3states.png", 48, 0, 24, 40},
    {PageSwitch, 11, 0, nullptr, 0, 0, 0, 0},
    {PageSwitch, 12, 0, nullptr, 0, 0, 0, 0},
    {PageSwitch, -1, 0, nullptr, 0, 0, 0, 0},

    {Lock,  0, 0, "object-locked.png", 0, 0, 16, 16},
    {Lock,  1, 0, "object-locked.png", 0, 0, 16, 16},
    {Lock, -1, 0, "object-locked.png", 0, 0, 16, 16},

    {App,  0, 0, "selection_final.png",   0,   0, 93, 44},
    {App,  1, 0, "selection_final.png",  93,  44, 93, 44},
    {App,  2, 0, "selection_final.png", 186,  44, 93, 44},
    {App,  3, 0, "selection_final.png",   0,   0, 93, 44},
    {App,  4, 0, "selection_final.png",  93,  88, 93, 44},
    {App,  5, 0, "selection_final.png", 186,  88, 93, 44},
    {App,  6, 0, "selection_final.png",   0, 132, 93, 44},
    {App,  7, 0, "selection_final.png",   0,  44, 93, 44},
    {App,  8, 0, "selection_final.png",   0,  44, 93, 44},
    {App,  9, 0, "selection_final.png",   0, 132, 93, 44},
    {App, 10, 0, "selection_final.png",   0,  88, 93, 44},
    {App, 11, 0, "selection_final.png",   0,  88, 93, 44},
    {App, 12, 0, "selection_final.png",   0, 264, 93, 44},
    {App, 13, 0, "selection_final.png",   0, 176, 93, 44},
    {App, 14, 0, "selection_final.png",   0, 176, 93, 44},
    {App, 15, 0, "selection_final.png",   0, 264, 93, 44},
    {App, 16, 0, "selection_final.png",   0, 220, 93, 44},
    {App, 17, 0, "selection_final.png",   0, 220, 93, 44},
    {App, 18, 0, "selection_final.png",   0, 396, 93, 44},
    {App, 19, 0, "selection_final.png",   0, 308, 93, 44},
    {App, 20, 0, "selection_final.png",   0, 308, 93, 44},
    {App, 21, 0, "selection_final.png",   0, 396, 93, 44},
    {App, 22, 0, "selection_final.png",   0, 352, 93, 44},
    {App, 23, 0, "selection_final.png",   0, 352, 93, 44},
    {App, 24, 0, "selection_final.png",   0,   0, 93, 44},
    {App, -1, 0, "selection_final.png",   0,   0, 93, 44},

    {Bluetooth,  0, 0, "bluetooth-device.png", 0, 0, 32, 32},
    {Bluetooth,  1, 0, "computer-laptop.png",  0, 0, 32, 32},
    {Bluetooth,  2, 0, "mobile-phone.png",     0, 0, 32, 32},
    {Bluetooth,  3, 0, "bluetooth-device.png", 0, 0, 32, 32},
    {Bluetooth, -1, 0, "bluetooth-device.png", 0, 0, 32, 32},

    {Close,  0, 0, "TB_CLOSE_3states.png", 44, 0, 44, 44},
    {Close,  1, 0, "TB_CLOSE_3states.png",  0, 0, 44, 44},
    {Close,  2, 0, "TB_CLOSE_3states.png", 88, 0, 44, 44},
    {Close,  3, 0, "TB_CLOSE_3states.png",  0, 0, 44, 44},
    {Close,  7, 0, "TB_CLOSE_3states.png",  0, 0, 44, 44},
    {Close, -1, 0, "TB_CLOSE_3states.png",  0, 0, 44, 44},

    {Entry,  0, 0, "menuentry_top-140x50.png",   0, 0, 140, 50},
    {Entry,  1, 0, "menuentry_top-140x50.png", 140, 0, 140, 50},
    {Entry,  2, 0, "menuentry_top-140x50.png", 280, 0, 140, 50},
    {Entry,  3, 0, nullptr, 0, 0, 0, 0},
    {Entry, -1, 0, nullptr, 0, 0, 0, 0},

    {Wifi,  0, 0, "wireless-0.png",   0, 0, 24, 24},
    {Wifi,  1, 0, "wireless-25.png",  0, 0, 24, 24},
    {Wifi,  2, 0, "wireless-50.png",  0, 0, 24, 24},
    {Wifi,  3, 0, "wireless-75.png",  0, 0, 24, 24},
    {Wifi,  4, 0, "wireless-100.png", 0, 0, 24, 24},
    {Wifi,  5, 0, "wireless-0.png",   0, 0, 24, 24},
    {Wifi,  9, 0, "wireless-0.png",   0, 0, 24, 24},
    {Wifi, -1, 0, "wireless-0.png",   0, 0, 24, 24},

    {Zoom,  0, 0, "stock-zoom-in-16_2states.png",  16, 0, 16, 16},
    {Zoom,  1, 0, "stock-zoom-in-16_2states.png",   0, 0, 16, 16},
    {Zoom,  2, 0, "stock-zoom-in-16_2states.png",  16, 0, 16, 16},
    {Zoom,  3, 0, "stock-zoom-out-16_2states.png", 16, 0, 16, 16},
    {Zoom,  4, 0, "stock-zoom-out-16_2states.png",  0, 0, 16, 16},
    {Zoom,  5, 0, "stock-zoom-out-16_2states.png", 16, 0, 16, 16},
    {Zoom,  6, 0, "stock-zoom-in-16_2states.png",   0, 0, 16, 16},
    {Zoom, -1, 0, "stock-zoom-in-16_2states.png",   0, 0, 16, 16},

    {Arrow,  0, 0, "arrow_20x20pixels.png", 40, 0, 20, 20},
    {Arrow,  1, 0, "arrow_20x20pixels.png", 20, 0, 20, 20},
    {Arrow,  2, 0, "arrow_20x20pixels.png",  0, 0, 20, 20},
    {Arrow,  3, 0, "arrow_20x20pixels.png", 60, 0, 20, 20},
    {Arrow,  4, 0, "ARROW-WHITE.png",       26, 0, 26, 26},
    {Arrow,  5, 0, "ARROW-WHITE.png",        0, 0, 26, 26},
    {Arrow,  6, 0, nullptr, 0, 0, 0, 0},
    {Arrow, -1, 0, nullptr, 0, 0, 0, 0},

    {Slid,  0, 0, "go-previous-view_2states.png", 16, 0, 16, 16},
    {Slid,  1, 0, "go-previous-view_2states.png",  0, 0, 16, 16},
    {Slid,  2, 0, "go-previous-view_2states.png", 16, 0, 16, 16},
    {Slid,  3, 0, "go-next-view_2states.png",     16, 0, 16, 16},
    {Slid,  4, 0, "go-next-view_2states.png",      0, 0, 16, 16},
    {Slid,  5, 0, "go-next-view_2states.png",     16, 0, 16, 16},
    {Slid,  6, 0, "go-previous-view_2states.png",  0, 0, 16, 16},
    {Slid, -1, 0, "go-previous-view_2states.png",  0, 0, 16, 16},
};
// clang-format on

typedef CWidgetStyle S;

QPixmap ask(const Row& row)
{
    switch (row.family) {
    case Button:
        return S::getButtonStatus(static_cast<S::ButtonStatus>(row.status), true);
    case BigButton:
        return S::getButtonStatus(static_cast<S::ButtonStatus>(row.status), false);
    case Key:
        return S::getKeyStatus(static_cast<S::KeyStatus>(row.status));
    case Led:
        return S::getLEDStatus(static_cast<S::LEDStatus>(row.status),
                               static_cast<S::IconMode>(row.mode));
    case PageSwitch:
        return S::getPageSwitchStatus(static_cast<S::PageSwitchStatus>(row.status));
    case Lock:
        return S::getLockStatus(static_cast<S::LockStatus>(row.status));
    case App:
        return S::getAppStatus(static_cast<S::AppStatus>(row.status));
    case Bluetooth:
        return S::getBluetoothDeviceIcon(row.status);
    case Close:
        return S::getCloseStatus(static_cast<S::CloseStatus>(row.status));
    case Entry:
        return S::getEntryStatus(static_cast<S::EntryStatus>(row.status));
    case Wifi:
        return S::getWIFISignalStatus(static_cast<S::WIFISignalStatus>(row.status));
    case Zoom:
        return S::getZoomStatus(static_cast<S::ZoomStatus>(row.status));
    case Arrow:
        return S::getArrowStatus(static_cast<S::ArrowStatus>(row.status));
    case Slid:
        return S::getSlidStatus(static_cast<S::SlidStatus>(row.status));
    }
    return QPixmap();
}

} // namespace

class tst_statepixmaps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPicture();
    void enumerators();
};

void tst_statepixmaps::everyPicture()
{
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i) {
        const Row& row = rows[i];
        const QString label =
            QString::fromLatin1("family %1, status %2").arg(row.family).arg(row.status);
        const QPixmap picture = ask(row);
        QVERIFY2(picture.isNull() == !row.image, qPrintable(label));
        if (!row.image)
            continue;
        const QImage strip(QLatin1String(":/images/") + QLatin1String(row.image));
        QVERIFY2(!strip.isNull(), row.image);
        const QRect slice(row.x, row.y, row.width, row.height);
        QVERIFY2(strip.rect().contains(slice), qPrintable(label));
        const QString difference = testing::difference(picture.toImage(), strip.copy(slice));
        QVERIFY2(difference.isEmpty(), qPrintable(label + QLatin1String(": ") + difference));
    }
}

// What applications pass as numbers.
void tst_statepixmaps::enumerators()
{
    const struct {
        int actual;
        int expected;
    } values[] = {
        // clang-format off
        {S::GrayReleased, 0},    {S::GrayPressed, 1},     {S::GraySelected, 2},
        {S::GreenPressed, 3},    {S::GreenReleased, 4},   {S::GreenSelected, 5},
        {S::OrangePressed, 6},   {S::OrangeReleased, 7},  {S::OrangeSelected, 8},
        {S::RedReleased, 9},     {S::RedPressed, 10},     {S::RedSelected, 11},
        {S::FixedReleased, 12},  {S::FixedPressed, 13},   {S::FixedSpare1, 14},
        {S::FixedSpare2, 15},
        {S::GenKeyPressed, 0},   {S::GenKeyReleased, 1},  {S::GenKeySelected, 2},
        {S::GenCapsPressed, 3},  {S::GenShiftPressed, 6}, {S::GenSymbolPressed, 9},
        {S::GenDelAllPressed, 12}, {S::GenDelAllSelected, 14}, {S::GenSpacePressed, 15},
        {S::GenApplyPressed, 18}, {S::HexKeyPressed, 21}, {S::HexDelPressed, 24},
        {S::HexDelAllPressed, 27}, {S::HexDotPressed, 30}, {S::HexApplyPressed, 33},
        {S::HexBackspacePressed, 36}, {S::NumKeyPressed, 39}, {S::NumDelPressed, 42},
        {S::NumDelSelected, 44}, {S::NumDelAllPressed, 45}, {S::NumDotPressed, 48},
        {S::NumApplyPressed, 51}, {S::NumBackspacePressed, 54}, {S::NumBackspaceSelected, 56},
        {S::LedState0, 0},       {S::LedState5, 5},
        {S::LargeIcon, 0},       {S::LargeIconAlt, 1},    {S::SmallIcon, 2},
        {S::PrevPressed, 0},     {S::PrevReleased, 1},    {S::PrevSelected, 2},
        {S::NextPressed, 3},     {S::NextReleased, 4},    {S::NextSelected, 5},
        {S::UpPressed, 6},       {S::UpReleased, 7},      {S::UpSelected, 8},
        {S::DownPressed, 9},     {S::DownReleased, 10},   {S::DownSelected, 11},
        {S::Locked, 0},          {S::App0, 0},            {S::App23, 23},
        {S::ClosePressed, 0},    {S::CloseReleased, 1},   {S::CloseSelected, 2},
        {S::EntryFirst, 0},      {S::EntrySecond, 1},     {S::EntryThird, 2},
        {S::Signal0, 0},         {S::Signal25, 1},        {S::Signal50, 2},
        {S::Signal75, 3},        {S::Signal100, 4},
        {S::ZoomInPressed, 0},   {S::ZoomInReleased, 1},  {S::ZoomInSelected, 2},
        {S::ZoomOutPressed, 3},  {S::ZoomOutReleased, 4}, {S::ZoomOutSelected, 5},
        {S::SmallArrowC, 0},     {S::SmallArrowB, 1},     {S::SmallArrowA, 2},
        {S::SmallArrowD, 3},     {S::WhiteArrowB, 4},     {S::WhiteArrowA, 5},
        {S::SlidPrevPressed, 0}, {S::SlidPrevReleased, 1}, {S::SlidPrevSelected, 2},
        {S::SlidNextPressed, 3}, {S::SlidNextReleased, 4}, {S::SlidNextSelected, 5},
        {S::HorizontalPageBar, 0}, {S::VerticalPageBar, 1},
        // clang-format on
    };
    for (size_t i = 0; i < sizeof values / sizeof values[0]; ++i) {
        const testing::InRow inRow(i);
        QCOMPARE(values[i].actual, values[i].expected);
    }
}

QTEST_MAIN(tst_statepixmaps)
#include "tst_statepixmaps.moc"
