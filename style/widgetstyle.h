#ifndef CWIDGET_STYLE_WIDGETSTYLE_H
#define CWIDGET_STYLE_WIDGETSTYLE_H

#include "global.h"
#include "style.h"

#include <QObject>
#include <QPixmap>
#include <QRect>
#include <QSize>

class QDomElement;

/// Where widgets get their looks: the styles of the style file, the pictures of their states, the
/// compiled-in colours, fonts and sizes, and what is known about the attached input devices.
///
/// All of it is static; there is never an object of this class. Everything is meant for the GUI
/// thread, except that the device registry may be written and read from any. Applications may pass
/// any number as a status or a code; the enumerations are ints so that each has its answer.
class CWIDGET_EXPORT CWidgetStyle : public QObject
{
    Q_OBJECT

public:
    // clang-format off

    /// Pictures of the push button, see getButtonStatus(). Mind the order of green and orange.
    enum ButtonStatus : int {
        GrayReleased = 0,   GrayPressed = 1,     GraySelected = 2,
        GreenPressed = 3,   GreenReleased = 4,   GreenSelected = 5,
        OrangePressed = 6,  OrangeReleased = 7,  OrangeSelected = 8,
        RedReleased = 9,    RedPressed = 10,     RedSelected = 11,
        FixedReleased = 12, FixedPressed = 13,   FixedSpare1 = 14, FixedSpare2 = 15
    };

    /// Pictures of the keys of the general, hexadecimal and numeric keypads.
    enum KeyStatus : int {
        GenKeyPressed = 0,        GenKeyReleased = 1,        GenKeySelected = 2,
        GenCapsPressed = 3,       GenCapsReleased = 4,       GenCapsSelected = 5,
        GenShiftPressed = 6,      GenShiftReleased = 7,      GenShiftSelected = 8,
        GenSymbolPressed = 9,     GenSymbolReleased = 10,    GenSymbolSelected = 11,
        GenDelAllPressed = 12,    GenDelAllReleased = 13,    GenDelAllSelected = 14,
        GenSpacePressed = 15,     GenSpaceReleased = 16,     GenSpaceSelected = 17,
        GenApplyPressed = 18,     GenApplyReleased = 19,     GenApplySelected = 20,
        HexKeyPressed = 21,       HexKeyReleased = 22,       HexKeySelected = 23,
        HexDelPressed = 24,       HexDelReleased = 25,       HexDelSelected = 26,
        HexDelAllPressed = 27,    HexDelAllReleased = 28,    HexDelAllSelected = 29,
        HexDotPressed = 30,       HexDotReleased = 31,       HexDotSelected = 32,
        HexApplyPressed = 33,     HexApplyReleased = 34,     HexApplySelected = 35,
        HexBackspacePressed = 36, HexBackspaceReleased = 37, HexBackspaceSelected = 38,
        NumKeyPressed = 39,       NumKeyReleased = 40,       NumKeySelected = 41,
        NumDelPressed = 42,       NumDelReleased = 43,       NumDelSelected = 44,
        NumDelAllPressed = 45,    NumDelAllReleased = 46,    NumDelAllSelected = 47,
        NumDotPressed = 48,       NumDotReleased = 49,       NumDotSelected = 50,
        NumApplyPressed = 51,     NumApplyReleased = 52,     NumApplySelected = 53,
        NumBackspacePressed = 54, NumBackspaceReleased = 55, NumBackspaceSelected = 56
    };

    /// The six looks of a lamp, from left to right in its strip.
    enum LEDStatus : int {
        LedState0 = 0, LedState1 = 1, LedState2 = 2, LedState3 = 3, LedState4 = 4, LedState5 = 5
    };

    /// Sizes of a lamp: 19 x 19 pixels (both large ones) or 16 x 16.
    enum IconMode : int { LargeIcon = 0, LargeIconAlt = 1, SmallIcon = 2 };

    /// Pictures of the page bar's arrows. There is no picture for the selected ones.
    enum PageSwitchStatus : int {
        PrevPressed = 0, PrevReleased = 1,  PrevSelected = 2,
        NextPressed = 3, NextReleased = 4,  NextSelected = 5,
        UpPressed = 6,   UpReleased = 7,    UpSelected = 8,
        DownPressed = 9, DownReleased = 10, DownSelected = 11
    };

    /// Pictures of a lock.
    enum LockStatus : int { Locked = 0 };

    /// Tiles of the application grid.
    enum AppStatus : int {
        App0 = 0,   App1 = 1,   App2 = 2,   App3 = 3,   App4 = 4,   App5 = 5,
        App6 = 6,   App7 = 7,   App8 = 8,   App9 = 9,   App10 = 10, App11 = 11,
        App12 = 12, App13 = 13, App14 = 14, App15 = 15, App16 = 16, App17 = 17,
        App18 = 18, App19 = 19, App20 = 20, App21 = 21, App22 = 22, App23 = 23
    };

    /// Pictures of a close button.
    enum CloseStatus : int { ClosePressed = 0, CloseReleased = 1, CloseSelected = 2 };

    /// Backgrounds of a menu entry.
    enum EntryStatus : int { EntryFirst = 0, EntrySecond = 1, EntryThird = 2 };

    /// Strength of the wireless signal in percent.
    enum WIFISignalStatus : int { Signal0 = 0, Signal25 = 1, Signal50 = 2, Signal75 = 3, Signal100 = 4 };

    /// Signs for a closer and a wider look.
    enum ZoomStatus : int {
        ZoomInPressed = 0,  ZoomInReleased = 1,  ZoomInSelected = 2,
        ZoomOutPressed = 3, ZoomOutReleased = 4, ZoomOutSelected = 5
    };

    /// Arrows for applications; the letters count the pictures of a strip from the left.
    enum ArrowStatus : int {
        SmallArrowC = 0, SmallArrowB = 1, SmallArrowA = 2, SmallArrowD = 3,
        WhiteArrowB = 4, WhiteArrowA = 5
    };

    /// Signs for slides before and after.
    enum SlidStatus : int {
        SlidPrevPressed = 0, SlidPrevReleased = 1, SlidPrevSelected = 2,
        SlidNextPressed = 3, SlidNextReleased = 4, SlidNextSelected = 5
    };

    /// Orientation of a page bar.
    enum PageBarType : int { HorizontalPageBar = 0, VerticalPageBar = 1 };

    /// Kinds of devices in the registry.
    enum DeviceType : int { DeviceKeyboard = 1, DeviceMouse = 2, DeviceStorage = 3 };

    /// Roles of the palette. Some share a colour today and are distinct all the same.
    enum ColorCode : int {
        PanelBackgroundColor = 0,  ControlBackgroundColor = 1, ContainerBackgroundColor = 2,
        Color3 = 3,                Color4 = 4,                 Color5 = 5,
        NameBackgroundColor = 6,   Color7 = 7,                 Color8 = 8,
        KeyPadBackgroundColor = 9, Color10 = 10,               Color11 = 11,
        Color12 = 12,              Color13 = 13,               Color14 = 14,
        Color15 = 15,              Color16 = 16,               Color17 = 17,
        Color18 = 18,              Color19 = 19,               Color20 = 20,
        Color21 = 21,              Color22 = 22,               Color23 = 23,
        Color24 = 24,              Color25 = 25,               Color26 = 26,
        Color27 = 27,              Color28 = 28
    };

    /// Fonts of the theme, see getFont().
    enum FontType : int { Font0 = 0, Font1 = 1, Font2 = 2, Font3 = 3, Font4 = 4, Font5 = 5, Font6 = 6 };

    /// Areas that the 800 x 600 screen is divided into.
    enum SizeCode : int {
        ScreenSize = 0,            TopBarSize = 1,             BottomBarSize = 2,
        LeftColumnSize = 3,        RightColumnSize = 4,        BetweenBarsSize = 5,
        BesideColumnSize = 6,      BelowTopBarSize = 7,        BetweenColumnsSize = 8,
        BetweenColumnsLowSize = 9
    };

    // clang-format on

    static bool initialize(const QString& path);
    static WidgetStyle getWidgetStyle(const QString& name, bool* ok = nullptr);
    static WidgetStyle getWidgetStyle(unsigned int& type, bool* ok = nullptr);
    static bool setWidgetStyle(const QString& path, const QFont& font);
    static bool setStyle(const QDomElement& element, const QFont& font);

    static QPixmap getButtonStatus(ButtonStatus status, bool normalSize);
    static QPixmap getKeyStatus(KeyStatus status);
    static QPixmap getLEDStatus(LEDStatus status, IconMode mode);
    static QPixmap getPageSwitchStatus(PageSwitchStatus status);
    static QPixmap getLockStatus(LockStatus status);
    static QPixmap getAppStatus(AppStatus status);
    static QPixmap getBluetoothDeviceIcon(int kind);
    static QPixmap getCloseStatus(CloseStatus status);
    static QPixmap getEntryStatus(EntryStatus status);
    static QPixmap getWIFISignalStatus(WIFISignalStatus status);
    static QPixmap getZoomStatus(ZoomStatus status);
    static QPixmap getArrowStatus(ArrowStatus status);
    static QPixmap getSlidStatus(SlidStatus status);

    static QColor getColor(ColorCode code);
    static QFont getFont(FontType type);
    static QSize getSize(SizeCode code);
    static QRect getPluginWindowRect();

    static bool isDeviceAvailable(DeviceType type);
    static void setDeviceAvailable(DeviceType type, bool available);
    static QString getUSBDir();
    static void setUSBDir(const QString& dir);
};

CWIDGET_EXPORT Style getStyle(bool* ok, Style::Field field, const QDomElement& element);

#endif
