#include "extremes/extremevalues.h"

#include "support/signaltools.h"
#include "support/testing.h"

namespace extremes
{

namespace
{

const int manyTexts = 200;

QString longText()
{
    return QString(10000, QLatin1Char('W'));
}

QPixmap filled(int width, int height)
{
    QPixmap pixmap(width, height);
    pixmap.fill(QColor(0, 0, 255, 128));
    return pixmap;
}

} // namespace

Values<bool> Extremes<bool>::values()
{
    return Values<bool>().addNumbers({false, true});
}

Values<int> Extremes<int>::values()
{
    return Values<int>().addNumbers({INT_MIN, -1, 0, 1, 255, INT_MAX});
}

Values<unsigned int> Extremes<unsigned int>::values()
{
    return Values<unsigned int>().addNumbers({0, 1, INT_MAX, UINT_MAX});
}

Values<unsigned long long> Extremes<unsigned long long>::values()
{
    return Values<unsigned long long>().addNumbers({0, 1, 1ULL << 63, ULLONG_MAX});
}

Values<QString> Extremes<QString>::values()
{
    return Values<QString>()
        .add("null", QString())
        .add("empty", QLatin1String(""))
        .add("a null character", QString(1, QChar(0)))
        .add("half a character", QString(1, QChar(0xD800)))
        .add("line breaks", QLatin1String("a\nb\r\n\tc"))
        .add("percent signs", QLatin1String("%1 %2 %n"))
        .add("number", QLatin1String("-99999999999999999999.5e400"))
        .add("right to left", QString::fromUtf8("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d 12"))
        .add("very long", longText());
}

Values<QStringList> Extremes<QStringList>::values()
{
    return Values<QStringList>()
        .add("none", QStringList())
        .add("a null text", QStringList(QString()))
        .add("the same twice", QStringList() << QLatin1String("a") << QLatin1String("a"))
        .add("very long", QStringList(longText()))
        .add("many", numberedTexts(manyTexts));
}

Values<QList<int>> Extremes<QList<int>>::values()
{
    return Values<QList<int>>()
        .add("none", QList<int>())
        .add("ends", QList<int>() << INT_MIN << -1 << INT_MAX)
        .add("0 twice", QList<int>() << 0 << 0)
        .add("many", numbers(-1, manyTexts + 1));
}

Values<QColor> Extremes<QColor>::values()
{
    return Values<QColor>()
        .add("invalid", QColor())
        .add("transparent", QColor(Qt::transparent))
        .add("half transparent", QColor(255, 0, 0, 128))
        .add("black", QColor(Qt::black));
}

Values<QPixmap> Extremes<QPixmap>::values()
{
    return Values<QPixmap>()
        .add("null", QPixmap())
        .add("a pixel", filled(1, 1))
        .add("a line", filled(4000, 1))
        .add("large", filled(1000, 1000));
}

Values<QFont> Extremes<QFont>::values()
{
    return Values<QFont>()
        .add("default", QFont())
        .add("tiny", testing::testFont(1))
        .add("large", testing::testFont(400))
        .add("unknown", QFont(QLatin1String("no such family")));
}

Values<QSize> Extremes<QSize>::values()
{
    return Values<QSize>()
        .add("invalid", QSize())
        .add("empty", QSize(0, 0))
        .add("least", QSize(INT_MIN, INT_MIN))
        .add("flat", QSize(INT_MAX, 0))
        .add("most", QSize(INT_MAX, INT_MAX));
}

Values<QVariant> Extremes<QVariant>::values()
{
    return Values<QVariant>()
        .add("invalid", QVariant())
        .add("number", INT_MIN)
        .add("text", longText())
        .add("null pixmap", QPixmap())
        .add("pixmap", filled(1, 1))
        .add("invalid color", QColor())
        .add("list", QVariantList() << QVariant());
}

Values<Qt::CheckState> Extremes<Qt::CheckState>::values()
{
    return Values<Qt::CheckState>()
        .add("unchecked", Qt::Unchecked)
        .add("partially", Qt::PartiallyChecked)
        .add("checked", Qt::Checked)
        .add("3", static_cast<Qt::CheckState>(3));
}

Values<Qt::Alignment> Extremes<Qt::Alignment>::values()
{
    return Values<Qt::Alignment>()
        .add("none", Qt::Alignment())
        .add("against each other", Qt::AlignLeft | Qt::AlignRight | Qt::AlignTop | Qt::AlignBottom)
        .add("every", ~Qt::Alignment());
}

Values<WidgetStyle> Extremes<WidgetStyle>::values()
{
    return Values<WidgetStyle>()
        .add("empty", WidgetStyle())
        .add("an entry for all", testing::styleOf(Style::FieldAll, testing::testFont(400)))
        .add("a field below", testing::styleOf(static_cast<Style::Field>(INT_MIN), QFont()))
        .add("a field above", testing::styleOf(static_cast<Style::Field>(INT_MAX), QFont()));
}

} // namespace extremes
