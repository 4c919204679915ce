#include "support/colors.h"

#include <qmath.h>

namespace
{

// Linear red, green and blue of dichromats, one row per result; full loss of one receptor.
const double dichromats[colors::VisionCount][3][3] = {
    {{1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}},
    {{0.152286, 1.052583, -0.204868},
     {0.114503, 0.786281, 0.099216},
     {-0.003882, -0.048116, 1.051998}},
    {{0.367322, 0.860646, -0.227968},
     {0.280085, 0.672501, 0.047413},
     {-0.011820, 0.042940, 0.968881}},
    {{1.255528, -0.076749, -0.178779},
     {-0.078411, 0.930809, 0.147602},
     {0.004733, 0.691367, 0.303900}},
};

double linear(int channel)
{
    const double value = channel / 255.0;
    return value <= 0.03928 ? value / 12.92 : qPow((value + 0.055) / 1.055, 2.4);
}

int channel(double linear)
{
    const double value = qBound(0.0, linear, 1.0);
    const double encoded =
        value <= 0.0031308 ? value * 12.92 : 1.055 * qPow(value, 1 / 2.4) - 0.055;
    return qRound(encoded * 255.0);
}

} // namespace

double colors::luminance(QRgb color)
{
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) +
           0.0722 * linear(qBlue(color));
}

double colors::contrast(QRgb a, QRgb b)
{
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return first > second ? first / second : second / first;
}

double colors::lightness(QRgb color)
{
    const double y = luminance(color);
    return y <= 216.0 / 24389.0 ? y * 24389.0 / 27.0 : 116.0 * qPow(y, 1 / 3.0) - 16.0;
}

QRgb colors::seen(QRgb color, Vision vision)
{
    const double from[] = {linear(qRed(color)), linear(qGreen(color)), linear(qBlue(color))};
    int to[3];
    for (int row = 0; row < 3; ++row) {
        const double* factors = dichromats[vision][row];
        to[row] = channel(factors[0] * from[0] + factors[1] * from[1] + factors[2] * from[2]);
    }
    return qRgb(to[0], to[1], to[2]);
}

double colors::lightnessDifference(const QImage& a, const QImage& b, Vision vision)
{
    double sum = 0.0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            sum += qAbs(lightness(seen(a.pixel(x, y), vision)) -
                        lightness(seen(b.pixel(x, y), vision)));
    }
    return sum / (a.width() * a.height());
}
