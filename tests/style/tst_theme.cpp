#include "support/rows.h"
#include "support/testing.h"

#include <QApplication>

namespace
{

struct ColorRow {
    int code;
    QRgb rgb;
};

const ColorRow colors[] = {
    {0, 0x635E80},  {1, 0xE0E0FF},  {2, 0xE0E0FF},  {3, 0x777777},  {4, 0x777777},  {5, 0xB5C7E8},
    {6, 0xB0B0B0},  {7, 0xD4D4D4},  {8, 0x4040A0},  {9, 0x000000},  {10, 0xFFFFFF}, {11, 0xA0A0A4},
    {12, 0xFFFFFF}, {13, 0x848284}, {14, 0x000000}, {15, 0xFFFFFF}, {16, 0xFF5050}, {17, 0xFF7C80},
    {18, 0x66FF33}, {19, 0xCCFFCC}, {20, 0xFFFF99}, {21, 0xFFFFCC}, {22, 0x0000CC}, {23, 0x0000FF},
    {24, 0x66FFFF}, {25, 0xCCFFFF}, {26, 0xCCCFD4}, {27, 0xE7E9EB}, {28, 0xFF9999},
};

struct SizeRow {
    int code;
    int width;
    int height;
};

const SizeRow sizes[] = {
    {0, 800, 600}, {1, 800, 44},  {2, 800, 44},  {3, 120, 512}, {4, 120, 512}, {5, 800, 512},
    {6, 680, 512}, {7, 800, 556}, {8, 560, 512}, {9, 560, 440}, {10, 0, 0},    {-1, 0, 0},
};

struct FontRow {
    int code;
    const char* family; // null: that of the application
    int pixelSize;      // 0: not set
};

const FontRow fonts[] = {
    {0, "Arial", 0},  {1, "Helvetica", 12}, {2, nullptr, 13}, {3, nullptr, 13},
    {4, nullptr, 16}, {5, nullptr, 10},     {6, nullptr, 13},
};

QColor color(int code)
{
    return CWidgetStyle::getColor(static_cast<CWidgetStyle::ColorCode>(code));
}

QFont font(int code)
{
    return CWidgetStyle::getFont(static_cast<CWidgetStyle::FontType>(code));
}

} // namespace

class tst_theme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyColorOfThePalette_data();
    void everyColorOfThePalette();
    void unknownColorsAreInvalid();
    void color11IsQtsGray();
    void globalColorsAreQts();
    void everySize_data();
    void everySize();
    void unknownSizesAreZeroNotInvalid();
    void everyFont_data();
    void everyFont();
    void fontsFollowTheApplicationsFont();
    void unknownFontsAreDefault();
    void pluginWindowRect();
};

void tst_theme::everyColorOfThePalette_data()
{
    testing::addRows(colors);
}

void tst_theme::everyColorOfThePalette()
{
    QFETCH(int, row);
    QCOMPARE(row, colors[row].code);
    QVERIFY(color(colors[row].code).isValid());
    QCOMPARE(color(colors[row].code).rgba(), 0xFF000000 | colors[row].rgb);
}

void tst_theme::unknownColorsAreInvalid()
{
    QVERIFY(!color(29).isValid());
    QVERIFY(!color(-1).isValid());
    QVERIFY(!color(1000000).isValid());
}

void tst_theme::color11IsQtsGray()
{
    QCOMPARE(color(11), QColor(Qt::gray));
    QVERIFY(color(11) != color(13));
    QCOMPARE(color(13), QColor(0x84, 0x82, 0x84));
}

void tst_theme::globalColorsAreQts()
{
    QCOMPARE(color(9), QColor(Qt::black));
    QCOMPARE(color(10), QColor(Qt::white));
    QCOMPARE(color(12), QColor(Qt::white));
    QCOMPARE(color(14), QColor(Qt::black));
    QCOMPARE(color(15), QColor(Qt::white));
}

void tst_theme::everySize_data()
{
    testing::addRows(sizes);
}

void tst_theme::everySize()
{
    QFETCH(int, row);
    QCOMPARE(CWidgetStyle::getSize(static_cast<CWidgetStyle::SizeCode>(sizes[row].code)),
             QSize(sizes[row].width, sizes[row].height));
}

void tst_theme::unknownSizesAreZeroNotInvalid()
{
    QVERIFY(CWidgetStyle::getSize(static_cast<CWidgetStyle::SizeCode>(10)).isNull());
    QVERIFY(CWidgetStyle::getSize(static_cast<CWidgetStyle::SizeCode>(10)).isValid());
}

void tst_theme::everyFont_data()
{
    testing::addRows(fonts);
}

void tst_theme::everyFont()
{
    QFETCH(int, row);
    const QFont actual = font(fonts[row].code);
    QFont expected = fonts[row].family ? QFont() : QApplication::font();
    if (fonts[row].family)
        expected.setFamily(QLatin1String(fonts[row].family));
    if (fonts[row].pixelSize > 0) {
        expected.setWeight(QFont::Bold);
        expected.setPixelSize(fonts[row].pixelSize);
        QCOMPARE(actual.pixelSize(), fonts[row].pixelSize);
    }
    QCOMPARE(actual.toString(), expected.toString());
    QCOMPARE(actual.bold(), fonts[row].pixelSize > 0);
}

void tst_theme::fontsFollowTheApplicationsFont()
{
    const QFont before = QApplication::font();
    QFont other(before);
    other.setFamily(QLatin1String("Liberation Mono"));
    other.setItalic(true);
    QApplication::setFont(other);
    const int followers[] = {2, 3, 4, 5, 6};
    for (size_t i = 0; i < sizeof followers / sizeof followers[0]; ++i) {
        const testing::InRow inRow(i);
        QCOMPARE(font(followers[i]).family(), other.family());
        QVERIFY(font(followers[i]).italic());
    }
    QCOMPARE(font(1).family(), QString::fromLatin1("Helvetica"));
    QApplication::setFont(before);
}

void tst_theme::unknownFontsAreDefault()
{
    QCOMPARE(font(7).toString(), QFont().toString());
    QCOMPARE(font(-1).toString(), QFont().toString());
}

void tst_theme::pluginWindowRect()
{
    const QRect rect = CWidgetStyle::getPluginWindowRect();
    QCOMPARE(rect, QRect(142, 63, 655, 394));
    QCOMPARE(rect.right(), 796);
    QCOMPARE(rect.bottom(), 456);
}

QTEST_MAIN(tst_theme)
#include "tst_theme.moc"
