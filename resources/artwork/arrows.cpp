#include "palette.h"
#include "picture.h"
#include "shape.h"

#include <QPainter>

namespace
{

// Arrows without a face. The strip of four goes left, up, right, down; a strip of two left, right.
const int MostArrows = 4;

enum Strip {
    Small,
    White,
    Black,
    DropDown
};

// clang-format off
const char* const Arrows[][MostArrows] = {
    { "Si2 M 16 10 L 4.5 10 M 9 5 L 4 10 L 9 15",
      "Si2 M 10 16 L 10 4.5 M 5 9 L 10 4 L 15 9",
      "Si2 M 4 10 L 15.5 10 M 11 5 L 16 10 L 11 15",
      "Si2 M 10 4 L 10 15.5 M 5 11 L 10 16 L 15 11" },
    { "Sp3 M 16.5 5.5 L 9 13 L 16.5 20.5", "Sp3 M 9.5 5.5 L 17 13 L 9.5 20.5" },
    { "Sa3 M 16.5 5.5 L 9 13 L 16.5 20.5", "Sa3 M 9.5 5.5 L 17 13 L 9.5 20.5" },
    { "Si3 M 5 7.5 L 10 12.5 L 15 7.5" },
};
// clang-format on

const Scheme ArrowColours = {Palette::Ink, Palette::Black, Palette::White, Palette::Inactive};

void drawArrow(QPainter& painter, const QSize&, int index, int strip)
{
    drawShape(painter, Arrows[strip][index], ArrowColours);
}

// clang-format off
const Picture Pictures[] = {
    { "ARROW-BLACK.png",       52, 26, 2, 1, drawArrow, Black, OnLight },
    { "ARROW-WHITE.png",       52, 26, 2, 1, drawArrow, White, OnDark },
    { "arrow_20x20pixels.png", 80, 20, 4, 1, drawArrow, Small, OnLight },
    { "drop-down.png",         20, 20, 1, 1, drawArrow, DropDown, OnLight },
};
// clang-format on

} // namespace

PictureGroup arrowPictures()
{
    const PictureGroup group = {"Arrows", Pictures, sizeof(Pictures) / sizeof(Pictures[0])};
    return group;
}
