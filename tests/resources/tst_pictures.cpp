#include "resources/artwork/picturefile.h"
#include "support/colors.h"
#include "support/testing.h"

#include <QBuffer>
#include <QSet>

namespace
{

QImage load(const char* name)
{
    const QImage image(QLatin1String(":/images/") + QLatin1String(name));
    if (image.isNull())
        qFatal("there is no picture %s", name);
    return image.convertToFormat(QImage::Format_ARGB32);
}

QImage cellOf(const char* name, int cell, int width)
{
    const QImage image = load(name);
    const int columns = image.width() / width;
    return image.copy(cell % columns * width, 0, width, image.height());
}

// ---- hashes

QList<QByteArray> hashLines()
{
    QList<QByteArray> lines =
        testing::contentOf(QLatin1String(CWIDGET_SOURCE_DIR "/tests/resources/pictures.txt"))
            .split('\n');
    lines.removeAll(QByteArray());
    return lines;
}

// ---- hues

// A hue in degrees, from the first up to the second; across 0 where the first is larger.
const struct Hue {
    const char* image;
    int from;
    int to;
    int mostSaturation; // of 255
    int leastSaturation;
} hues[] = {
    // clang-format off
    {"RCTB_BUTTONGRAY_3states.png",       210, 240, 110,   0},
    {"RCTB_BUTTONGREEN_3states.png",      120, 165, 255, 128},
    {"RCTB_BUTTONORANGE_3states.png",      20,  45, 255, 128},
    {"RCTB_BUTTONRED_3states.png",        345,  10, 255, 128},
    {"BIG_RCTB_BUTTONGRAY_3states.png",   210, 240, 110,   0},
    {"BIG_RCTB_BUTTONGREEN_3states.png",  120, 165, 255, 128},
    {"BIG_RCTB_BUTTONORANGE_3states.png",  20,  45, 255, 128},
    {"BIG_RCTB_BUTTONRED_3states.png",    345,  10, 255, 128},
    {"GENKB_BUTTON.png",                  210, 240, 110,   0},
    {"GENKB_SPACE_BTN.png",               210, 240, 110,   0},
    {"GENKB_SHIFT_BTN.png",               210, 240, 110,   0},
    {"GENKB_DELALL_BTN.png",              345,  10, 255, 128},
    {"HEXKB_DELALL_BTN.png",              345,  10, 255, 128},
    {"NUMKB_DELALL_BTN.png",              345,  10, 255, 128},
    {"GENKB_APPLY_BTN.png",               120, 165, 255, 128},
    {"HEXKB_APPLY_BTN.png",               120, 165, 255, 128},
    {"NUMKB_APPLY_BTN.png",               120, 165, 255, 128},
    // clang-format on
};

bool isWithin(int hue, const Hue& wanted)
{
    if (wanted.from <= wanted.to)
        return hue >= wanted.from && hue <= wanted.to;
    return hue >= wanted.from || hue <= wanted.to;
}

// ---- signs

enum Ink {
    Opaque, // the sign stands on nothing
    Bright  // the sign is white on a surface
};

enum Direction {
    Left,
    Right,
    Up,
    Down
};

bool isInk(QRgb pixel, Ink ink)
{
    return qAlpha(pixel) > 128 && (ink == Opaque || colors::luminance(pixel) > 0.6);
}

/// The box around the sign; invalid when there is none.
QRect inkBox(const QImage& image, const QRect& within, Ink ink)
{
    QRect box;
    for (int y = within.top(); y <= within.bottom(); ++y) {
        for (int x = within.left(); x <= within.right(); ++x) {
            if (isInk(image.pixel(x, y), ink))
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

int inkCount(const QImage& image, Ink ink)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += isInk(image.pixel(x, y), ink) ? 1 : 0;
    }
    return count;
}

/// The picture turned so that what pointed to \a direction points to the left.
QImage turnedLeft(const QImage& image, Direction direction)
{
    QImage turned = direction == Left || direction == Right
                        ? image
                        : QImage(image.height(), image.width(), image.format());
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (direction == Right)
                turned.setPixel(image.width() - 1 - x, y, image.pixel(x, y));
            else if (direction == Up)
                turned.setPixel(y, x, image.pixel(x, y));
            else if (direction == Down)
                turned.setPixel(image.height() - 1 - y, x, image.pixel(x, y));
        }
    }
    return turned;
}

/// Whether the sign has its tip at the left, halfway up.
bool pointsLeft(const QImage& image, Ink ink)
{
    const QRect box = inkBox(image, image.rect(), ink);
    if (!box.isValid())
        return false;
    const int middle = box.center().y();
    const QRect tip = inkBox(image, QRect(box.left(), middle, box.width(), 2), ink);
    const QRect upper = inkBox(image, QRect(box.left(), box.top(), box.width(), 2), ink);
    const QRect lower = inkBox(image, QRect(box.left(), box.bottom() - 1, box.width(), 2), ink);
    const int wing = upper.left() - box.left();
    if (tip.left() > box.left() + 1 || wing < 2 || qAbs(lower.left() - upper.left()) > 1)
        return false;
    const bool hasShaft = tip.right() >= box.right() - 1; // the wings are nearer to the tip
    return !hasShaft || wing < box.right() - upper.right();
}

// Every arrow, and the one it is a mirror image of: the row after it, from an even row.
const struct Arrow {
    const char* image;
    int cell;
    int width;
    Ink ink;
    Direction direction;
} arrows[] = {
    // clang-format off
    {"hspinbox_arrow_20.png",        0, 26, Bright, Left},
    {"hspinbox_arrow_20.png",        2, 26, Bright, Right},
    {"hspinbox_arrow_20.png",        1, 26, Bright, Left},
    {"hspinbox_arrow_20.png",        3, 26, Bright, Right},
    {"arrow-up-3states.png",         0, 24, Bright, Up},
    {"arrow-down-3states.png",       0, 24, Bright, Down},
    {"arrow-up-3states.png",         2, 24, Bright, Up},
    {"arrow-down-3states.png",       2, 24, Bright, Down},
    {"prev_page.png",                0, 25, Bright, Left},
    {"next_page.png",                0, 25, Bright, Right},
    {"prev_page.png",                1, 25, Bright, Left},
    {"next_page.png",                1, 25, Bright, Right},
    {"go-previous-view_2states.png", 0, 16, Opaque, Left},
    {"go-next-view_2states.png",     0, 16, Opaque, Right},
    {"go-previous-view_2states.png", 1, 16, Bright, Left},
    {"go-next-view_2states.png",     1, 16, Bright, Right},
    {"arrow_20x20pixels.png",        0, 20, Opaque, Left},
    {"arrow_20x20pixels.png",        2, 20, Opaque, Right},
    {"arrow_20x20pixels.png",        1, 20, Opaque, Up},
    {"arrow_20x20pixels.png",        3, 20, Opaque, Down},
    {"ARROW-WHITE.png",              0, 26, Opaque, Left},
    {"ARROW-WHITE.png",              1, 26, Opaque, Right},
    {"ARROW-BLACK.png",              0, 26, Opaque, Left},
    {"ARROW-BLACK.png",              1, 26, Opaque, Right},
    {"back.png",                     0, 30, Opaque, Left},
    {"Forward.png",                  0, 30, Opaque, Right},
    // clang-format on
};

// The pictures that hold signs.
const struct Sign {
    const char* image;
    int width;
    Ink ink;
} signs[] = {
    // clang-format off
    {"ARROW-BLACK.png",              26, Opaque},
    {"ARROW-WHITE.png",              26, Opaque},
    {"arrow_20x20pixels.png",        20, Opaque},
    {"arrow-down-3states.png",       24, Bright},
    {"arrow-up-3states.png",         24, Bright},
    {"back.png",                     30, Opaque},
    {"backlight.png",                40, Opaque},
    {"BB_LIGHT_4states.png",         20, Opaque},
    {"bluetooth-device.png",         32, Opaque},
    {"checkbox_3states.png",         16, Opaque},
    {"computer-laptop.png",          32, Opaque},
    {"drop-down.png",                20, Opaque},
    {"fileopen.png",                 32, Opaque},
    {"Forward.png",                  30, Opaque},
    {"go-next-view_2states.png",     16, Opaque},
    {"go-previous-view_2states.png", 16, Opaque},
    {"hspinbox_arrow_20.png",        26, Bright},
    {"led_16X16 pixels.png",         16, Opaque},
    {"MISC_PROGCLK_11states.png",    30, Bright},
    {"mobile-phone.png",             32, Opaque},
    {"next_page.png",                25, Bright},
    {"object-locked.png",            16, Opaque},
    {"prev_page.png",                25, Bright},
    {"Reload.png",                   30, Opaque},
    {"security.png",                 16, Opaque},
    {"spin_minus.png",               28, Bright},
    {"spin_plus.png",                28, Bright},
    {"stock-zoom-in-16_2states.png", 16, Opaque},
    {"stock-zoom-out-16_2states.png",16, Opaque},
    {"Stop.png",                     30, Opaque},
    {"TB_CLOSE_3states.png",         44, Bright},
    {"wireless-0.png",               24, Opaque},
    {"wireless-25.png",              24, Opaque},
    {"wireless-50.png",              24, Opaque},
    {"wireless-75.png",              24, Opaque},
    {"wireless-100.png",             24, Opaque},
    {"wireless-connected.png",       32, Opaque},
    {"zoom.png",                     22, Opaque},
    {"zoom_in.png",                  25, Bright},
    {"zoom_out.png",                 25, Bright},
    // clang-format on
};

const int leastInk = 2; // percent of a cell

} // namespace

class tst_pictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pixelsAreThoseThatWereDrawn();
    void filesHaveAPaletteWhereItHoldsAllColors();
    void paletteLosesNoPixel_data();
    void paletteLosesNoPixel();
    void hashIsThatOfThePixels();
    void colorsHaveTheirHue_data();
    void colorsHaveTheirHue();
    void arrowsPointTheirWay_data();
    void arrowsPointTheirWay();
    void opposedArrowsMirrorEachOther();
    void noSignIsEmpty_data();
    void noSignIsEmpty();
    void everyTileHasASignOfItsOwn();
    void plusHasMoreThanMinus();
    void laptopIsWideAndPhoneHigh();
    void dropDownPointsDown();
    void barsHaveALineAtTheBottom();
};

/// A picture that is drawn anew gets a new hash from the program that draws it, together with its
/// file. Whatever else changes a picture is found here.
void tst_pictures::pixelsAreThoseThatWereDrawn()
{
    const QList<QByteArray> lines = hashLines();
    QCOMPARE(lines.size(), 73);
    for (int i = 0; i < lines.size(); ++i) {
        const QByteArray name = lines.at(i).mid(42);
        QVERIFY2(pixelHash(load(name.constData())) == lines.at(i).left(40), name.constData());
    }
}

void tst_pictures::filesHaveAPaletteWhereItHoldsAllColors()
{
    const QList<QByteArray> lines = hashLines();
    for (int i = 0; i < lines.size(); ++i) {
        const QByteArray name = lines.at(i).mid(42);
        const QImage stored(QLatin1String(":/images/") + QLatin1String(name.constData()));
        const QImage image = load(name.constData());
        QSet<QRgb> colorsUsed;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                colorsUsed.insert(image.pixel(x, y));
        }
        QVERIFY2((stored.depth() <= 8) == (colorsUsed.size() <= 256), name.constData());
    }
}

void tst_pictures::paletteLosesNoPixel_data()
{
    QTest::addColumn<int>("colorCount");
    QTest::addColumn<bool>("opaque");
    QTest::addColumn<int>("depth");
    QTest::newRow("one colour") << 1 << true << 8;
    QTest::newRow("256 opaque") << 256 << true << 8;
    QTest::newRow("256 with alpha") << 256 << false << 8;
    QTest::newRow("257 opaque") << 257 << true << 32;
    QTest::newRow("257 with alpha") << 257 << false << 32;
}

void tst_pictures::paletteLosesNoPixel()
{
    QFETCH(int, colorCount);
    QFETCH(bool, opaque);
    QFETCH(int, depth);
    QImage image(20, 20, QImage::Format_ARGB32);
    for (int i = 0; i < 400; ++i) {
        const int color = i % colorCount;
        image.setPixel(i % 20, i / 20,
                       qRgba(color & 0xFF, color >> 8, 7, opaque ? 255 : 255 - color / 2));
    }
    QBuffer file;
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(withPalette(image).save(&file, "PNG"));
    const QImage stored = QImage::fromData(file.data(), "PNG");
    QCOMPARE(stored.depth() <= 8, depth <= 8);
    QVERIFY(stored.convertToFormat(QImage::Format_ARGB32) == image);
}

void tst_pictures::hashIsThatOfThePixels()
{
    QImage image(4, 2, QImage::Format_ARGB32);
    image.fill(0xFF102030);
    const QByteArray hash = pixelHash(image);
    QCOMPARE(hash.size(), 40);
    QCOMPARE(pixelHash(withPalette(image)), hash);
    QVERIFY(pixelHash(image.copy(0, 0, 2, 4)) != hash);
    image.setPixel(3, 1, 0xFF102031);
    QVERIFY(pixelHash(image) != hash);
    image.setPixel(3, 1, 0x00FFFFFF);
    const QByteArray transparent = pixelHash(image);
    image.setPixel(3, 1, 0x00000000);
    QCOMPARE(pixelHash(image), transparent);
}

void tst_pictures::colorsHaveTheirHue_data()
{
    QTest::addColumn<int>("index");
    for (size_t i = 0; i < sizeof hues / sizeof hues[0]; ++i)
        QTest::newRow(hues[i].image) << static_cast<int>(i);
}

void tst_pictures::colorsHaveTheirHue()
{
    QFETCH(int, index);
    const Hue& wanted = hues[index];
    const QImage image = load(wanted.image);
    const QColor middle(image.pixel(image.width() / 6, image.height() / 2));
    QVERIFY2(isWithin(middle.hue(), wanted), qPrintable(middle.name()));
    QVERIFY2(middle.saturation() >= wanted.leastSaturation, qPrintable(middle.name()));
    QVERIFY2(middle.saturation() <= wanted.mostSaturation, qPrintable(middle.name()));
}

void tst_pictures::arrowsPointTheirWay_data()
{
    QTest::addColumn<int>("index");
    for (size_t i = 0; i < sizeof arrows / sizeof arrows[0]; ++i)
        QTest::newRow(qPrintable(
            QString::fromLatin1("%1 %2").arg(QLatin1String(arrows[i].image)).arg(arrows[i].cell)))
            << static_cast<int>(i);
}

void tst_pictures::arrowsPointTheirWay()
{
    QFETCH(int, index);
    const Arrow& arrow = arrows[index];
    const QImage image = cellOf(arrow.image, arrow.cell, arrow.width);
    const Direction all[] = {Left, Right, Up, Down};
    for (int i = 0; i < 4; ++i)
        QCOMPARE(pointsLeft(turnedLeft(image, all[i]), arrow.ink), all[i] == arrow.direction);
}

void tst_pictures::opposedArrowsMirrorEachOther()
{
    for (size_t i = 0; i < sizeof arrows / sizeof arrows[0]; i += 2) {
        const bool upright = arrows[i].direction == Up;
        const QImage first = cellOf(arrows[i].image, arrows[i].cell, arrows[i].width);
        const QImage second = cellOf(arrows[i + 1].image, arrows[i + 1].cell, arrows[i].width);
        const QRect box = inkBox(first, first.rect(), arrows[i].ink);
        const QRect mirrored =
            inkBox(second.mirrored(!upright, upright), second.rect(), arrows[i].ink);
        QVERIFY2(box == mirrored, arrows[i].image);
        QVERIFY2(qAbs(inkCount(first, arrows[i].ink) - inkCount(second, arrows[i].ink)) <= 4,
                 arrows[i].image);
    }
}

void tst_pictures::noSignIsEmpty_data()
{
    QTest::addColumn<int>("index");
    for (size_t i = 0; i < sizeof signs / sizeof signs[0]; ++i)
        QTest::newRow(signs[i].image) << static_cast<int>(i);
}

void tst_pictures::noSignIsEmpty()
{
    QFETCH(int, index);
    const Sign& sign = signs[index];
    const int cells = load(sign.image).width() / sign.width;
    for (int cell = 0; cell < cells; ++cell) {
        const QImage image = cellOf(sign.image, cell, sign.width);
        const int share = 100 * inkCount(image, sign.ink) / (image.width() * image.height());
        QVERIFY2(share >= leastInk,
                 qPrintable(QString::fromLatin1("cell %1: %2 %").arg(cell).arg(share)));
    }
}

void tst_pictures::everyTileHasASignOfItsOwn()
{
    const QImage sheet = load("selection_final.png");
    const QSize tile(93, 44);
    QList<QImage> tiles;
    for (int i = 0; i < 30; ++i) {
        const QImage image =
            sheet.copy(QRect(QPoint(i % 3 * tile.width(), i / 3 * tile.height()), tile));
        QVERIFY2(inkCount(image, Bright) >= 45, qPrintable(QString::number(i)));
        QVERIFY2(!tiles.contains(image), qPrintable(QString::number(i)));
        tiles.append(image);
    }
}

void tst_pictures::plusHasMoreThanMinus()
{
    for (int cell = 0; cell < 2; ++cell) {
        QVERIFY(inkCount(cellOf("spin_plus.png", cell, 28), Bright) >=
                inkCount(cellOf("spin_minus.png", cell, 28), Bright) + 12);
        QVERIFY(inkCount(cellOf("zoom_in.png", cell, 25), Bright) >=
                inkCount(cellOf("zoom_out.png", cell, 25), Bright) + 4);
    }
    QVERIFY(inkCount(cellOf("stock-zoom-in-16_2states.png", 0, 16), Opaque) >=
            inkCount(cellOf("stock-zoom-out-16_2states.png", 0, 16), Opaque) + 4);
    QVERIFY(inkCount(cellOf("stock-zoom-in-16_2states.png", 1, 16), Bright) >=
            inkCount(cellOf("stock-zoom-out-16_2states.png", 1, 16), Bright) + 4);
}

void tst_pictures::laptopIsWideAndPhoneHigh()
{
    const QImage laptop = load("computer-laptop.png");
    const QImage phone = load("mobile-phone.png");
    const QRect laptopBox = inkBox(laptop, laptop.rect(), Opaque);
    const QRect phoneBox = inkBox(phone, phone.rect(), Opaque);
    QVERIFY(laptopBox.width() > laptopBox.height());
    QVERIFY(phoneBox.height() > phoneBox.width());
}

void tst_pictures::dropDownPointsDown()
{
    QVERIFY(pointsLeft(turnedLeft(load("drop-down.png"), Down), Opaque));
}

void tst_pictures::barsHaveALineAtTheBottom()
{
    const QImage title = load("UTIL_TB_BKGROUND.png");
    const QImage close = load("TB_CLOSE_3states.png");
    QCOMPARE(title.pixel(400, 42), QColor(0x2B, 0x2E, 0x3B).rgb());
    QCOMPARE(title.pixel(400, 43), QColor(0x63, 0x5E, 0x80).rgb());
    for (int x = 0; x < close.width(); ++x)
        QCOMPARE(close.pixel(x, 43), title.pixel(0, 43)); // one line through both
}

QTEST_MAIN(tst_pictures)
#include "tst_pictures.moc"
