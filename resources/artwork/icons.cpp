#include "palette.h"
#include "picture.h"
#include "shape.h"

#include <QPainter>

namespace
{

// White glyphs stand on buttons and bars, ink on light backgrounds.
const Scheme OnButton = {Palette::White, Palette::White, Palette::White, Palette::Inactive};
const Scheme OnPage = {Palette::Ink, Palette::Ink, Palette::Paper, Palette::Inactive};

enum Icon {
    Back,
    Forward,
    Reload,
    Stop,
    Folder,
    Radio,
    Laptop,
    Phone,
    Magnifier
};

struct IconRow {
    const Scheme& scheme;
    const char* shape;
};

// clang-format off
const IconRow Icons[] = {
    { OnButton, "Si2.5 M 24 15 L 6.5 15 M 13 8 L 6 15 L 13 22" },
    { OnButton, "Si2.5 M 6 15 L 23.5 15 M 17 8 L 24 15 L 17 22" },
    { OnButton, "Si2.5 A 15 15.5 8.5 34 292 M 22 5 L 22 10.75 L 16.25 10.75" },
    { OnButton, "Si2.5 M 8.5 8.5 L 21.5 21.5 M 21.5 8.5 L 8.5 21.5" },
    { OnButton, "Si2.5 M 4.25 24.75 L 4.25 7.25 L 12 7.25 L 15 10.75 L 27.75 10.75 L 27.75 24.75 Z" },
    { OnPage,   "Fi O 16 16 2.5;"
                "Si2 A 16 16 7 -45 90 A 16 16 7 135 90 A 16 16 11.5 -45 90 A 16 16 11.5 135 90" },
    { OnPage,   "Si2 R 6 7 20 14 1.5 M 3 25 L 29 25" },
    { OnPage,   "Si2 R 9 4 14 24 2.5 M 14 24 L 18 24" },
    { OnPage,   "Si2 O 9.5 9.5 6 M 14.5 14.5 L 19 19" },
};
// clang-format on

void drawIcon(QPainter& painter, const QSize&, int, int icon)
{
    drawShape(painter, Icons[icon].shape, Icons[icon].scheme);
}

// clang-format off
const Picture Pictures[] = {
    { "back.png",             30, 30, 1, 1, drawIcon, Back, OnDark },
    { "Forward.png",          30, 30, 1, 1, drawIcon, Forward, OnDark },
    { "Reload.png",           30, 30, 1, 1, drawIcon, Reload, OnDark },
    { "Stop.png",             30, 30, 1, 1, drawIcon, Stop, OnDark },
    { "fileopen.png",         32, 32, 1, 1, drawIcon, Folder, OnDark },
    { "bluetooth-device.png", 32, 32, 1, 1, drawIcon, Radio, OnLight },
    { "computer-laptop.png",  32, 32, 1, 1, drawIcon, Laptop, OnLight },
    { "mobile-phone.png",     32, 32, 1, 1, drawIcon, Phone, OnLight },
    { "zoom.png",             22, 22, 1, 1, drawIcon, Magnifier, OnLight },
};
// clang-format on

} // namespace

PictureGroup iconPictures()
{
    const PictureGroup group = {"Icons", Pictures, sizeof(Pictures) / sizeof(Pictures[0])};
    return group;
}
