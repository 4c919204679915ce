#include "face.h"
#include "palette.h"
#include "picture.h"

#include <QImage>
#include <QPainter>
#include <QRectF>

namespace
{

const int KeyLooks = 3; // released, pressed, selected
const qreal KeyGap = 1; // px around each key that are the keypad's
const qreal KeyRadius = 5;

enum Tone {
    Letter,
    Function,
    DelAll,
    Apply,
    ToneCount
};

const QRgb KeySlate = 0xff596079;
const QRgb FunctionSlate = 0xff3a3f52;
const QRgb FunctionLine = 0xff7c84a0;
const QRgb Danger = 0xff8e2a33;
const QRgb DangerLit = 0xfff2a7ac;
const QRgb ApplyGreen = 0xff1b7a48;
const QRgb ApplyPressed = 0xff0f4a2c;

// The keys write their own texts: white on released and pressed, black on selected.
// clang-format off
const Face KeyFaces[ToneCount][KeyLooks] = {
    { { KeySlate,      false, 0, 0, 0 },
      PressedFace,
      { Palette::Lavender, false, 0, 0, 0 } },
    { { FunctionSlate, false, FunctionLine, 0, 1 },
      PressedFace,
      { Palette::Lavender, false, 0, 0, 0 } },
    { { Danger,        false, 0, 0, 0 },
      PressedFace,
      { DangerLit, false, 0, 0, 0 } },
    { { ApplyGreen,    false, 0, 0, 0 },
      { ApplyPressed, false, Palette::GreenLit, 0, 2 },
      { Palette::GreenLit, false, 0, 0, 0 } },
};

// The numeric keypad shows its keys smaller than their pictures.
const struct {
    QSize cell;
    QSize shown;
} ShownSizes[] = {
    { QSize(80, 50), QSize(75, 40) },
    { QSize(50, 40), QSize(40, 30) },
    { QSize(77, 40), QSize(77, 30) },
    { QSize(90, 40), QSize(90, 30) },
};
// clang-format on

QSize shownSize(const QSize& cell)
{
    for (size_t i = 0; i < sizeof(ShownSizes) / sizeof(ShownSizes[0]); ++i) {
        if (ShownSizes[i].cell == cell)
            return ShownSizes[i].shown;
    }
    return cell;
}

// The background is the keypad's, since a key fills what its picture leaves open with violet.
QImage keyImage(const QSize& size, const Face& face)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Palette::Black);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF box(QPointF(0, 0), size);
    drawFace(painter, box.adjusted(KeyGap, KeyGap, -KeyGap, -KeyGap), face, KeyRadius);
    return image;
}

// Where a row or column of a picture comes from: the one of the shown key that scaling without
// smoothing takes it for, or, where it is left out, from the two beside it.
struct Source {
    int first;
    int second;
};

Source sourceOf(int line, int lines, int shownLines)
{
    const int shown = (2 * line + 1) * shownLines / (2 * lines);
    const int taken = ((2 * shown + 1) * lines - 1) / (2 * shownLines); // the first of two middles
    const Source source = {line > taken ? shown : qMin(shown, shown + line - taken),
                           line > taken ? shown + 1 : shown};
    return source;
}

int mixed(int a, int b, int c, int d)
{
    return (a + b + c + d) / 4;
}

QRgb mixed(QRgb a, QRgb b, QRgb c, QRgb d)
{
    return qRgb(mixed(qRed(a), qRed(b), qRed(c), qRed(d)),
                mixed(qGreen(a), qGreen(b), qGreen(c), qGreen(d)),
                mixed(qBlue(a), qBlue(b), qBlue(c), qBlue(d)));
}

// A key in the size of its picture. Those pixels that the keypad shows are the key's own, so that
// its corners stay round and its lines even there.
QImage stretched(const QImage& key, const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        const Source row = sourceOf(y, size.height(), key.height());
        for (int x = 0; x < size.width(); ++x) {
            const Source column = sourceOf(x, size.width(), key.width());
            image.setPixel(
                x, y,
                mixed(key.pixel(column.first, row.first), key.pixel(column.second, row.first),
                      key.pixel(column.first, row.second), key.pixel(column.second, row.second)));
        }
    }
    return image;
}

void drawKey(QPainter& painter, const QSize& cell, int look, int tone)
{
    painter.drawImage(0, 0, stretched(keyImage(shownSize(cell), KeyFaces[tone][look]), cell));
}

// clang-format off
const Picture Pictures[] = {
    { "GENKB_BUTTON.png",         135, 45, 3, 1, drawKey, Letter, OnBlack },
    { "GENKB_CAPS_BTN.png",       165, 45, 3, 1, drawKey, Function, OnBlack },
    { "GENKB_SHIFT_BTN.png",      165, 45, 3, 1, drawKey, Function, OnBlack },
    { "GENKB_SYMBOL_BTN.png",     198, 45, 3, 1, drawKey, Function, OnBlack },
    { "GENKB_DELALL_BTN.png",     225, 45, 3, 1, drawKey, DelAll, OnBlack },
    { "GENKB_APPLY_BTN.png",      285, 45, 3, 1, drawKey, Apply, OnBlack },
    { "GENKB_SPACE_BTN.png",     1095, 45, 3, 1, drawKey, Letter, OnBlack },
    { "HEXKB_BUTTON.png",         225, 40, 3, 1, drawKey, Letter, OnBlack },
    { "HEXKB_DEL_BTN.png",        120, 30, 3, 1, drawKey, Function, OnBlack },
    { "HEXKB_DELALL_BTN.png",     231, 30, 3, 1, drawKey, DelAll, OnBlack },
    { "HEXKB_DOT_BTN.png",        120, 30, 3, 1, drawKey, Letter, OnBlack },
    { "HEXKB_APPLY_BTN.png",      270, 30, 3, 1, drawKey, Apply, OnBlack },
    { "HEXKB_BACKSPACE_BTN.png",  120, 30, 3, 1, drawKey, Function, OnBlack },
    { "NUMKB_BUTTON.png",         240, 50, 3, 1, drawKey, Letter, OnBlack },
    { "NUMKB_DEL_BTN.png",        150, 40, 3, 1, drawKey, Function, OnBlack },
    { "NUMKB_DELALL_BTN.png",     231, 40, 3, 1, drawKey, DelAll, OnBlack },
    { "NUMKB_DOT_BTN.png",        150, 40, 3, 1, drawKey, Letter, OnBlack },
    { "NUMKB_APPLY_BTN.png",      270, 40, 3, 1, drawKey, Apply, OnBlack },
    { "NUMKB_BACKSPACE_BTN.png",  150, 40, 3, 1, drawKey, Function, OnBlack },
};
// clang-format on

} // namespace

PictureGroup keyPictures()
{
    const PictureGroup group = {"Keypad keys", Pictures, sizeof(Pictures) / sizeof(Pictures[0])};
    return group;
}
