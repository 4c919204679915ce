#include "support/colors.h"
#include "support/rows.h"
#include "support/testing.h"
#include "widgets/pushbutton.h"

#include <QPainter>

namespace
{

const double minimumContrast = 4.5;
const double buttonContrast = 5.5;      // of white on a button that waits for a finger
const double applyContrast = 10.0;      // of black on the key that is chosen first
const double visibleChange = 10.0;      // mean difference of a channel, of 255
const double visibleWithoutColor = 7.0; // mean difference in lightness, of 100
const int ring = 5;                     // pixels of edge and ring around a button's text
const int keyRim = 4;                   // pixels of gap and outline around a key's text
const int rounding = 2;                 // difference of a channel that comes from smoothing
const int roundCorner = 3;              // what a rounding takes from the corners inside of that

// A strip of pictures that carry texts, from the left: released, pressed, selected.
const struct Strip {
    const char* image;
    int width;
    bool blackOnSelected; // else white, like the others
} strips[] = {
    // clang-format off
    {"RCTB_BUTTONGRAY_3states.png",       120, false},
    {"RCTB_BUTTONGREEN_3states.png",      120, false},
    {"RCTB_BUTTONORANGE_3states.png",     120, false},
    {"RCTB_BUTTONRED_3states.png",        120, false},
    {"BIG_RCTB_BUTTONGRAY_3states.png",   120, false},
    {"BIG_RCTB_BUTTONGREEN_3states.png",  120, false},
    {"BIG_RCTB_BUTTONORANGE_3states.png", 120, false},
    {"BIG_RCTB_BUTTONRED_3states.png",    120, false},
    {"GENKB_BUTTON.png",                   45, true},
    {"GENKB_CAPS_BTN.png",                 55, true},
    {"GENKB_SHIFT_BTN.png",                55, true},
    {"GENKB_SYMBOL_BTN.png",               66, true},
    {"GENKB_DELALL_BTN.png",               75, true},
    {"GENKB_SPACE_BTN.png",               365, true},
    {"GENKB_APPLY_BTN.png",                95, true},
    {"HEXKB_BUTTON.png",                   75, true},
    {"HEXKB_DEL_BTN.png",                  40, true},
    {"HEXKB_DELALL_BTN.png",               77, true},
    {"HEXKB_DOT_BTN.png",                  40, true},
    {"HEXKB_APPLY_BTN.png",                90, true},
    {"HEXKB_BACKSPACE_BTN.png",            40, true},
    {"NUMKB_BUTTON.png",                   80, true},
    {"NUMKB_DEL_BTN.png",                  50, true},
    {"NUMKB_DELALL_BTN.png",               77, true},
    {"NUMKB_DOT_BTN.png",                  50, true},
    {"NUMKB_APPLY_BTN.png",                90, true},
    {"NUMKB_BACKSPACE_BTN.png",            50, true},
    // clang-format on
};

const size_t stripCount = sizeof strips / sizeof strips[0];

// From the left: normal, pressed, selected, disabled. The mark of the current entry is at the left.
const Strip menu[] = {{"menuentry_top-140x50.png", 140, false}, {"menuentry_top.png", 120, false}};
const int menuMark = 6;

int rimOf(const Strip& strip)
{
    return strip.blackOnSelected ? keyRim : ring;
}

/// Picture number \a index of a strip on the background that a button paints under it.
QImage picture(const Strip& strip, int index)
{
    const QImage image(QLatin1String(":/images/") + QLatin1String(strip.image));
    if (image.isNull())
        qFatal("there is no picture %s", strip.image);
    QImage onBackground =
        testing::canvas(QSize(strip.width, image.height()), QColor(0x63, 0x5E, 0x80));
    QPainter(&onBackground).drawImage(-index * strip.width, 0, image);
    return onBackground;
}

/// The lowest contrast of \a text against any pixel where a text may stand.
double lowestContrast(const QImage& image, QRgb text, int rim)
{
    const QRect inside = image.rect().adjusted(rim, rim, -rim, -rim);
    double lowest = 21.0;
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        const int nearEdge = qMin(y - inside.top(), inside.bottom() - y);
        const int cut = qMax(0, roundCorner - nearEdge);
        for (int x = inside.left() + cut; x <= inside.right() - cut; ++x)
            lowest = qMin(lowest, colors::contrast(image.pixel(x, y), text));
    }
    return lowest;
}

/// The mean difference of a channel, from 0 to 255.
double meanDifference(const QImage& a, const QImage& b)
{
    double sum = 0.0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            sum +=
                qAbs(qRed(p) - qRed(q)) + qAbs(qGreen(p) - qGreen(q)) + qAbs(qBlue(p) - qBlue(q));
        }
    }
    return sum / (3.0 * a.width() * a.height());
}

/// The largest difference of a channel, from 0 to 255.
int largestDifference(const QImage& a, const QImage& b)
{
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            largest = qMax(largest, qAbs(qRed(p) - qRed(q)));
            largest = qMax(largest, qAbs(qGreen(p) - qGreen(q)));
            largest = qMax(largest, qAbs(qBlue(p) - qBlue(q)));
        }
    }
    return largest;
}

/// Why two looks can be taken for each other; empty when they cannot.
QString tooAlike(const QImage& a, const QImage& b)
{
    if (meanDifference(a, b) < visibleChange)
        return QString::fromLatin1("all channels: %1").arg(meanDifference(a, b));
    for (int vision = 0; vision < colors::VisionCount; ++vision) {
        const double difference =
            colors::lightnessDifference(a, b, static_cast<colors::Vision>(vision));
        if (difference < visibleWithoutColor)
            return QString::fromLatin1("lightness, vision %1: %2").arg(vision).arg(difference);
    }
    return QString();
}

/// The part of a cell that one of two pictures covers and the other does not.
double shapeDifference(const Strip& strip, int first, int second)
{
    const QImage image(QLatin1String(":/images/") + QLatin1String(strip.image));
    int different = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < strip.width; ++x) {
            const int a = qAlpha(image.pixel(first * strip.width + x, y));
            const int b = qAlpha(image.pixel(second * strip.width + x, y));
            different += qAbs(a - b) > 128 ? 1 : 0;
        }
    }
    return double(different) / (strip.width * image.height());
}

double meanLuminance(const QImage& image)
{
    double sum = 0.0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            sum += colors::luminance(image.pixel(x, y));
    }
    return sum / (image.width() * image.height());
}

} // namespace

class tst_looks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsAreLegible_data();
    void textsAreLegible();
    void releasedButtonsAndApplyStandOut();
    void menuEntriesAreLegible();
    void statesDiffer_data();
    void statesDiffer();
    void menuEntriesDiffer();
    void pressedIsDarker();
    void selectedIsOneLookInEveryColor();
    void numericKeysAreEvenWhereTheyAreShown();
    void lampsDifferInShape();
    void wirelessFillsUp();
    void clockTurnsEvenly();
    void clockIsQuietAndDarkInTheMiddle();
    void styleFileAgreesWithThePictures();

private:
    void addStrips();
};

void tst_looks::addStrips()
{
    QTest::addColumn<int>("index");
    for (size_t i = 0; i < stripCount; ++i)
        QTest::newRow(strips[i].image) << static_cast<int>(i);
}

void tst_looks::textsAreLegible_data()
{
    addStrips();
}

void tst_looks::textsAreLegible()
{
    QFETCH(int, index);
    const Strip& strip = strips[index];
    for (int look = 0; look < 3; ++look) {
        const bool black = look == 2 && strip.blackOnSelected;
        const double lowest =
            lowestContrast(picture(strip, look), black ? 0xFF000000 : 0xFFFFFFFF, rimOf(strip));
        QVERIFY2(lowest >= minimumContrast,
                 qPrintable(QString::fromLatin1("look %1: %2").arg(look).arg(lowest)));
    }
}

void tst_looks::releasedButtonsAndApplyStandOut()
{
    for (size_t i = 0; i < stripCount; ++i) {
        const Strip& strip = strips[i];
        if (!strip.blackOnSelected)
            QVERIFY2(lowestContrast(picture(strip, 0), 0xFFFFFFFF, ring) >= buttonContrast,
                     strip.image);
        if (QByteArray(strip.image).contains("APPLY"))
            QVERIFY2(lowestContrast(picture(strip, 2), 0xFF000000, keyRim) >= applyContrast,
                     strip.image);
    }
}

void tst_looks::menuEntriesAreLegible()
{
    for (int look = 0; look < 4; ++look) {
        QVERIFY(lowestContrast(picture(menu[0], look), 0xFFFFFFFF, menuMark) >= minimumContrast);
        QVERIFY(lowestContrast(picture(menu[1], look), 0xFFFFFFFF, menuMark) >= minimumContrast);
    }
}

void tst_looks::statesDiffer_data()
{
    addStrips();
}

/// Also to colour-blind users, and on a display without colours.
void tst_looks::statesDiffer()
{
    QFETCH(int, index);
    for (int a = 0; a < 3; ++a) {
        for (int b = a + 1; b < 3; ++b) {
            const QString difference =
                tooAlike(picture(strips[index], a), picture(strips[index], b));
            QVERIFY2(difference.isEmpty(), qPrintable(difference));
        }
    }
}

void tst_looks::menuEntriesDiffer()
{
    for (int strip = 0; strip < 2; ++strip) {
        const QImage normal = picture(menu[strip], 0);
        for (int look = 1; look < 4; ++look)
            QVERIFY(meanDifference(normal, picture(menu[strip], look)) >= 8.0);
        QCOMPARE(tooAlike(normal, picture(menu[strip], 2)), QString());
        QCOMPARE(tooAlike(picture(menu[strip], 1), picture(menu[strip], 2)), QString());
    }
}

/// Where the text stands; the outline around the fingertip is bright.
void tst_looks::pressedIsDarker()
{
    for (size_t i = 0; i < stripCount; ++i) {
        const QRect inside =
            picture(strips[i], 0).rect().adjusted(keyRim, keyRim, -keyRim, -keyRim);
        QVERIFY2(meanLuminance(picture(strips[i], 1).copy(inside)) <
                     meanLuminance(picture(strips[i], 0).copy(inside)),
                 strips[i].image);
    }
}

/// So a selected button is never taken for one of another colour. The grey strip has the fixed look
/// in that place.
void tst_looks::selectedIsOneLookInEveryColor()
{
    QCOMPARE(picture(strips[2], 2), picture(strips[1], 2));
    QCOMPARE(picture(strips[3], 2), picture(strips[1], 2));
    QCOMPARE(tooAlike(picture(strips[0], 2), picture(strips[1], 2)), QString());
    for (int color = 1; color < 4; ++color)
        QVERIFY(picture(strips[0], 1) == picture(strips[color], 1)); // pressed
}

/// The numeric keypad's keys are smaller than their pictures: nothing of corners and outlines may
/// fall between the pixels that are left.
void tst_looks::numericKeysAreEvenWhereTheyAreShown()
{
    const struct {
        CWidgetStyle::KeyStatus first; // pressed; released and selected follow
        QSize size;
    } keys[] = {
        {CWidgetStyle::NumKeyPressed, QSize(75, 40)},
        {CWidgetStyle::NumDelPressed, QSize(40, 30)},
        {CWidgetStyle::NumDelAllPressed, QSize(77, 30)},
        {CWidgetStyle::NumApplyPressed, QSize(90, 30)},
        {CWidgetStyle::NumBackspacePressed, QSize(40, 30)},
    };
    for (size_t i = 0; i < sizeof keys / sizeof keys[0]; ++i) {
        for (int look = 0; look < 2; ++look) {
            CPushButton key;
            key.setBackground(CWidgetStyle::getKeyStatus(
                static_cast<CWidgetStyle::KeyStatus>(keys[i].first + look)));
            key.setFixedSize(keys[i].size);
            const QImage shown = testing::render(&key);
            QVERIFY2(largestDifference(shown, shown.mirrored(true, false)) <= rounding,
                     qPrintable(QString::number(i)));
            QVERIFY2(largestDifference(shown, shown.mirrored(false, true)) <= rounding,
                     qPrintable(QString::number(i)));
        }
    }
}

void tst_looks::lampsDifferInShape()
{
    const Strip lamps[] = {{"BB_LIGHT_4states.png", 20, false},
                           {"led_16X16 pixels.png", 16, false}};
    for (int strip = 0; strip < 2; ++strip) {
        for (int a = 0; a < 6; ++a) {
            for (int b = a + 1; b < 6; ++b) {
                QVERIFY(meanDifference(picture(lamps[strip], a), picture(lamps[strip], b)) > 5.0);
                const double share = shapeDifference(lamps[strip], a, b);
                QVERIFY2(share > 0.05,
                         qPrintable(QString::fromLatin1("%1 and %2: %3").arg(a).arg(b).arg(share)));
            }
        }
    }
}

void tst_looks::wirelessFillsUp()
{
    const char* const signs[] = {"wireless-0.png", "wireless-25.png", "wireless-50.png",
                                 "wireless-75.png", "wireless-100.png"};
    for (int i = 1; i < 5; ++i) {
        const Strip less = {signs[i - 1], 24, false};
        const Strip more = {signs[i], 24, false};
        QVERIFY2(meanLuminance(picture(less, 0)) < meanLuminance(picture(more, 0)), signs[i]);
    }
}

void tst_looks::clockTurnsEvenly()
{
    const Strip clock = {"MISC_PROGCLK_11states.png", 30, false};
    double smallest = 255.0;
    double largest = 0.0;
    for (int frame = 0; frame < 11; ++frame) {
        const double step = meanDifference(picture(clock, frame), picture(clock, (frame + 1) % 11));
        smallest = qMin(smallest, step);
        largest = qMax(largest, step);
    }
    QVERIFY2(smallest > 2.0, qPrintable(QString::number(smallest)));
    QVERIFY2(largest < 2.0 * smallest, qPrintable(QString::number(largest)));
}

void tst_looks::clockIsQuietAndDarkInTheMiddle()
{
    const Strip clock = {"MISC_PROGCLK_11states.png", 30, false};
    const QImage first = picture(clock, 0);
    const QRect middle(6, 8, 18, 14); // holds "3/8" and "1 %" in the clock's font
    QVERIFY(lowestContrast(first.copy(middle), 0xFFFFFFFF, 0) >= minimumContrast);
    for (int frame = 0; frame < 11; ++frame) {
        const QImage image = picture(clock, frame);
        QVERIFY(image.copy(middle) == first.copy(middle));
        QCOMPARE(image.pixel(15, 15), QColor(0x2B, 0x2E, 0x3B).rgb());
    }
}

/// The name of a parameter is not touched: it looks like a fixed button.
void tst_looks::styleFileAgreesWithThePictures()
{
    QVERIFY(CWidgetStyle::initialize(QLatin1String(CWIDGET_SOURCE_DIR "/style/widget-style.xml")));
    const QColor fixed(picture(strips[0], 2).pixel(60, 20));
    const char* const fields[] = {"CParmLabel", "CParmLineEdit", "CParmComboBox", "CParmCheckBox"};
    const QFont button =
        CWidgetStyle::getWidgetStyle(QLatin1String("CPushButton")).styles.first().font;
    for (size_t i = 0; i < sizeof fields / sizeof fields[0]; ++i) {
        const testing::InRow inRow(i);
        const Style name = CWidgetStyle::getWidgetStyle(QLatin1String(fields[i])).styles.first();
        QCOMPARE(static_cast<int>(name.field), static_cast<int>(Style::FieldName));
        QCOMPARE(name.background, fixed);
        QVERIFY(colors::contrast(name.foreground.rgb(), fixed.rgb()) >= minimumContrast);
        QCOMPARE(name.font, button);
    }
}

QTEST_MAIN(tst_looks)
#include "tst_looks.moc"
