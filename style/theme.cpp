#include "style/table_p.h"
#include "style/widgetstyle.h"

#include <QApplication>

namespace
{

// One row per colour code. Equal colours are distinct roles that happen to look alike.
const struct ColorRow {
    bool isGlobal;
    Qt::GlobalColor global;
    QRgb rgb;
} colors[] = {
    // clang-format off
    {false, Qt::black, 0x635E80}, //  0
    {false, Qt::black, 0xE0E0FF}, //  1
    {false, Qt::black, 0xE0E0FF}, //  2
    {false, Qt::black, 0x777777}, //  3
    {false, Qt::black, 0x777777}, //  4
    {false, Qt::black, 0xB5C7E8}, //  5
    {false, Qt::black, 0xB0B0B0}, //  6
    {false, Qt::black, 0xD4D4D4}, //  7
    {false, Qt::black, 0x4040A0}, //  8
    {true,  Qt::black, 0},        //  9
    {true,  Qt::white, 0},        // 10
    {true,  Qt::gray,  0},        // 11
    {true,  Qt::white, 0},        // 12
    {false, Qt::black, 0x848284}, // 13
    {true,  Qt::black, 0},        // 14
    {true,  Qt::white, 0},        // 15
    {false, Qt::black, 0xFF5050}, // 16
    {false, Qt::black, 0xFF7C80}, // 17
    {false, Qt::black, 0x66FF33}, // 18
    {false, Qt::black, 0xCCFFCC}, // 19
    {false, Qt::black, 0xFFFF99}, // 20
    {false, Qt::black, 0xFFFFCC}, // 21
    {false, Qt::black, 0x0000CC}, // 22
    {false, Qt::black, 0x0000FF}, // 23
    {false, Qt::black, 0x66FFFF}, // 24
    {false, Qt::black, 0xCCFFFF}, // 25
    {false, Qt::black, 0xCCCFD4}, // 26
    {false, Qt::black, 0xE7E9EB}, // 27
    {false, Qt::black, 0xFF9999}, // 28
    // clang-format on
};
static_assert(table::count(colors) == CWidgetStyle::Color28 + 1, "each ColorCode has a row");

// One row per font code. Without a family it is the application's font; a size of 0 pixels leaves
// size and weight as they are.
const struct FontRow {
    const char* family;
    int pixelSize;
} fonts[] = {
    // clang-format off
    {"Arial",     0},  // 0
    {"Helvetica", 12}, // 1
    {nullptr,     13}, // 2
    {nullptr,     13}, // 3
    {nullptr,     16}, // 4
    {nullptr,     10}, // 5
    {nullptr,     13}, // 6
    // clang-format on
};
static_assert(table::count(fonts) == CWidgetStyle::Font6 + 1, "each FontType has a row");

// One row per size code, in pixels.
const struct SizeRow {
    int width;
    int height;
} sizes[] = {
    // clang-format off
    {800, 600}, // 0
    {800,  44}, // 1
    {800,  44}, // 2
    {120, 512}, // 3
    {120, 512}, // 4
    {800, 512}, // 5
    {680, 512}, // 6
    {800, 556}, // 7
    {560, 512}, // 8
    {560, 440}, // 9
    // clang-format on
};
static_assert(table::count(sizes) == CWidgetStyle::BetweenColumnsLowSize + 1,
              "each SizeCode has a row");

} // namespace

/// The opaque colour of the palette with the given code; an invalid one for an unknown code.
QColor CWidgetStyle::getColor(ColorCode code)
{
    const ColorRow* row = table::row(colors, code);
    if (!row)
        return QColor();
    return row->isGlobal ? QColor(row->global) : QColor(row->rgb);
}

/// The font with the given code, sized in pixels; a default font for an unknown code. Fonts 2 to 6
/// are made of the application's font.
QFont CWidgetStyle::getFont(FontType type)
{
    const FontRow* row = table::row(fonts, type);
    if (!row)
        return QFont();
    QFont font = row->family ? QFont() : QApplication::font();
    if (row->family)
        font.setFamily(QLatin1String(row->family));
    if (row->pixelSize > 0) {
        font.setWeight(QFont::Bold);
        font.setPixelSize(row->pixelSize);
    }
    return font;
}

/// The size, in pixels, of the area with the given code; 0 x 0 for an unknown code.
QSize CWidgetStyle::getSize(SizeCode code)
{
    const SizeRow* row = table::row(sizes, code);
    return row ? QSize(row->width, row->height) : QSize(0, 0);
}

/// The part of the 800 x 600 screen that is reserved for plug-in windows.
QRect CWidgetStyle::getPluginWindowRect()
{
    return QRect(QPoint(142, 63), QPoint(796, 456));
}
