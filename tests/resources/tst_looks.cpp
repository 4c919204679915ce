#include "support/testing.h"

#include <QPainter>

#include <qmath.h>

namespace
{

const double minimumContrast = 4.5;
const int rim = 3; // pixels of edge and light around the ground that carries a text

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

/// Picture number \a index of a strip on the ground that a button paints under it.
QImage picture(const Strip& strip, int index)
{
    const QImage image(QLatin1String(":/images/") + QLatin1String(strip.image));
    if (image.isNull())
        qFatal("there is no picture %s", strip.image);
    QImage onGround = testing::canvas(QSize(strip.width, image.height()), QColor(0x63, 0x5E, 0x80));
    QPainter(&onGround).drawImage(-index * strip.width, 0, image);
    return onGround;
}

double linear(int channel)
{
    const double value = channel / 255.0;
    return value <= 0.03928 ? value / 12.92 : qPow((value + 0.055) / 1.055, 2.4);
}

double luminance(QRgb color)
{
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) +
           0.0722 * linear(qBlue(color));
}

double contrast(QRgb a, QRgb b)
{
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return first > second ? first / second : second / first;
}

/// The lowest contrast of \a text against any pixel inside the rim.
double lowestContrast(const QImage& image, QRgb text)
{
    double lowest = 21.0;
    for (int y = rim; y < image.height() - rim; ++y) {
        for (int x = rim; x < image.width() - rim; ++x)
            lowest = qMin(lowest, contrast(image.pixel(x, y), text));
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

double meanLuminance(const QImage& image)
{
    double sum = 0.0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            sum += luminance(image.pixel(x, y));
    }
    return sum / (image.width() * image.height());
}

} // namespace

class tst_looks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsAreLegible();
    void statesDiffer();
    void pressedIsDarker();
    void lampsDiffer();
    void wirelessFillsUp();
    void clockTurnsEvenly();
};

void tst_looks::textsAreLegible()
{
    for (size_t i = 0; i < stripCount; ++i) {
        for (int look = 0; look < 3; ++look) {
            const bool black = look == 2 && strips[i].blackOnSelected;
            const double lowest =
                lowestContrast(picture(strips[i], look), black ? 0xFF000000 : 0xFFFFFFFF);
            const QString text = QString::fromLatin1("%1, look %2: %3")
                                     .arg(QLatin1String(strips[i].image))
                                     .arg(look)
                                     .arg(lowest);
            QVERIFY2(lowest >= minimumContrast, qPrintable(text));
        }
    }
}

void tst_looks::statesDiffer()
{
    const double visible = 10.0;
    for (size_t i = 0; i < stripCount; ++i) {
        const QImage released = picture(strips[i], 0);
        const QImage pressed = picture(strips[i], 1);
        const QImage selected = picture(strips[i], 2);
        QVERIFY2(meanDifference(released, pressed) >= visible, strips[i].image);
        QVERIFY2(meanDifference(released, selected) >= visible, strips[i].image);
        QVERIFY2(meanDifference(pressed, selected) >= visible, strips[i].image);
    }
}

void tst_looks::pressedIsDarker()
{
    for (size_t i = 0; i < stripCount; ++i)
        QVERIFY2(meanLuminance(picture(strips[i], 1)) < meanLuminance(picture(strips[i], 0)),
                 strips[i].image);
}

void tst_looks::lampsDiffer()
{
    const Strip lamps[] = {{"BB_LIGHT_4states.png", 20, false},
                           {"led_16X16 pixels.png", 16, false}};
    for (int strip = 0; strip < 2; ++strip) {
        for (int a = 0; a < 6; ++a) {
            for (int b = a + 1; b < 6; ++b)
                QVERIFY(meanDifference(picture(lamps[strip], a), picture(lamps[strip], b)) > 5.0);
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

QTEST_MAIN(tst_looks)
#include "tst_looks.moc"
