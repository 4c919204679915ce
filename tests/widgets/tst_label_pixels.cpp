#include "support/random.h"
#include "support/testing.h"

#include "widgets/label.h"

#include <QPainter>

// Wrapped labels compared with their definition: one drawText() for each character in its cell.

using testing::Random;

namespace
{

const int textCount = 3000;
const int fontCount = 30;
const int lineHeight = 20;
const int top = 5;
const int leftMargin = 2;
const int rightMargin = 2;

// ---- the definition

bool isSeparator(QChar ch)
{
    return !ch.isLetterOrNumber();
}

/// Draws a wrapped text as it is defined.
class Definition
{
public:
    Definition(QPainter* painter, const QRect& area)
        : m_painter(painter),
          m_metrics(painter->font()),
          m_area(area),
          m_x(area.left()),
          m_y(area.top() + top),
          m_lineWidth(0)
    {
    }

    void drawCharWrapped(const QString& text)
    {
        for (int i = 0; i < text.size(); ++i) {
            while (!fits(width(text.at(i)))) {
                if (!startLine())
                    return;
            }
            draw(text.at(i));
        }
    }

    void drawWordWrapped(const QString& text)
    {
        int i = 0;
        while (i < text.size()) {
            const QChar ch = text.at(i);
            if (isSeparator(ch) && !fits(width(wordAfter(text, i))) && !startLine())
                return;
            if (fits(width(ch))) {
                draw(ch);
                ++i;
                continue;
            }
            const int separator = lookBack(text, i);
            if (!startLine())
                return;
            i = separator >= 0 ? separator : i + 1;
        }
    }

private:
    int width(const QString& text) const
    {
        return testcompat::textWidth(m_metrics, text);
    }

    int width(QChar ch) const
    {
        return testcompat::charWidth(m_metrics, ch);
    }

    bool fits(int width) const
    {
        return m_lineWidth + width <= m_area.right() - m_area.left();
    }

    bool startLine()
    {
        m_x = m_area.left();
        m_y += lineHeight;
        m_lineWidth = 0;
        return m_y <= m_area.bottom();
    }

    void draw(QChar ch)
    {
        const QRect cell(m_x, m_y, width(ch), lineHeight);
        m_painter->drawText(cell, Qt::AlignCenter, QString(ch));
        m_x += cell.width();
        m_lineWidth += cell.width();
    }

    static QString wordAfter(const QString& text, int separator)
    {
        int end = separator + 1;
        while (end < text.size() && !isSeparator(text.at(end)))
            ++end;
        return text.mid(separator + 1, end - separator - 1);
    }

    int lookBack(const QString& text, int from) const
    {
        int lineWidth = m_lineWidth;
        for (int i = from; i >= 0; --i) {
            if (isSeparator(text.at(i)))
                return i;
            lineWidth -= width(text.at(from));
            if (lineWidth < 1)
                return -1;
        }
        return -1;
    }

    QPainter* m_painter;
    QFontMetrics m_metrics;
    QRect m_area;
    int m_x;
    int m_y;
    int m_lineWidth;
};

// ---- what is drawn

struct Case {
    QString text;
    QFont font;
    QColor color;
    QSize size;
    CLabel::WrapMode mode;
    int ratio;
    QPointF offset;
    QImage::Format format;
};

// Where characters come from, and how often.
const struct Script {
    ushort first;
    ushort last;
    int share;
} scripts[] = {
    // clang-format off
    {0x0020, 0x007E, 60}, // Basic Latin
    {0x0020, 0x0020, 15}, // blanks
    {0x00A0, 0x024F, 20}, // accents
    {0x0300, 0x036F,  5}, // marks that combine with the letter before
    {0x0370, 0x052F, 10}, // Greek and Cyrillic
    {0x0590, 0x06FF,  4}, // Hebrew and Arabic
    {0x2000, 0x206F,  4}, // spaces, dashes and marks of direction
    {0x20A0, 0x27BF,  5}, // signs and arrows
    {0x3000, 0x9FFF,  5}, // Chinese and Japanese
    {0xD800, 0xDFFF,  3}, // halves of characters
    {0xE000, 0xFFFF,  2}, // private ones and specials
    {0x0000, 0x001F,  2}, // controls
    {0x007F, 0x009F,  2}, // more of them
    // clang-format on
};

QChar randomChar(Random* random)
{
    int share = 0;
    for (size_t i = 0; i < sizeof scripts / sizeof scripts[0]; ++i)
        share += scripts[i].share;
    int chosen = random->below(share);
    const Script* script = scripts;
    for (; chosen >= script->share; ++script)
        chosen -= script->share;
    return QChar(
        static_cast<ushort>(script->first + random->below(script->last - script->first + 1)));
}

/// Half of the texts are plain prose, so that lines get as long as they do on panels.
QString randomText(Random* random)
{
    const bool isPlain = random->below(2) == 0;
    QString text;
    for (int length = 1 + random->below(120); length > 0; --length) {
        if (isPlain)
            text += random->below(6) == 0
                        ? QLatin1Char(' ')
                        : QChar::fromLatin1(static_cast<char>(33 + random->below(94)));
        else
            text += randomChar(random);
    }
    return text;
}

QFont randomFont(Random* random)
{
    static const char* const families[] = {
        "Arial", "Arial", "Arial", "DejaVu Sans", "Liberation Serif", "DejaVu Sans Mono"};
    QFont font((QLatin1String(families[random->below(6)])));
    font.setPixelSize(6 + random->below(22));
    font.setBold(random->below(3) == 0);
    font.setItalic(random->below(6) == 0);
    font.setUnderline(random->below(20) == 0);
    font.setStrikeOut(random->below(20) == 0);
    font.setKerning(random->below(4) != 0);
    if (random->below(8) == 0)
        font.setLetterSpacing(QFont::AbsoluteSpacing, random->below(70) / 10.0 - 2);
    if (random->below(12) == 0)
        font.setStretch(50 + random->below(100));
    if (random->below(8) == 0)
        font.setCapitalization(static_cast<QFont::Capitalization>(random->below(5)));
    if (random->below(4) == 0) // advances are fractions of pixels then
        font.setHintingPreference(QFont::PreferNoHinting);
    if (random->below(10) == 0)
        font.setStyleStrategy(QFont::NoAntialias);
    return font;
}

Case randomCase(Random* random)
{
    Case made;
    made.text = randomText(random);
    Random fontRandom(static_cast<quint32>(random->below(fontCount))); // Qt takes long for each
    made.font = randomFont(&fontRandom);
    made.color = QColor(random->below(256), random->below(256), random->below(256),
                        random->below(3) == 0 ? random->below(256) : 255);
    made.size = QSize(random->below(260), random->below(130));
    made.mode = random->below(2) == 0 ? CLabel::WordWrap : CLabel::CharWrap;
    made.ratio = random->below(10) == 0 ? 2 : 1;
    made.offset = QPointF(random->below(20), random->below(20));
    if (random->below(10) == 0)
        made.offset /= 7;
    made.format =
        random->below(2) == 0 ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied;
    return made;
}

/// A picture with some room for the offset, and a painter at it.
class Sheet
{
public:
    explicit Sheet(const Case& made)
        : m_image((made.size + QSize(20, 20)) * made.ratio, made.format)
    {
        m_image.fill(0xFFE0E0FF);
        testcompat::setPixelRatio(&m_image, made.ratio);
        m_painter.begin(&m_image);
        m_painter.translate(made.offset);
    }

    QPainter* painter()
    {
        return &m_painter;
    }

    QImage image()
    {
        m_painter.end();
        return m_image;
    }

private:
    QImage m_image;
    QPainter m_painter;
};

QImage painted(const Case& made)
{
    CLabel label;
    label.setBackgroundColor(QColor());
    label.setSize(made.size);
    label.setFont(made.font);
    label.setTextColor(made.color);
    label.setWrapMode(made.mode);
    label.setText(made.text);
    Sheet sheet(made);
    label.render(sheet.painter(), QPoint(), QRegion(), QWidget::DrawChildren);
    return sheet.image();
}

QRect textArea(const Case& made)
{
    return QRect(QPoint(leftMargin, 0),
                 QPoint(made.size.width() - 1 - rightMargin, made.size.height() - 1));
}

/// A label of words wraps only what is too long for a line.
bool isWrapped(const Case& made)
{
    const QRect area = textArea(made);
    return made.mode == CLabel::CharWrap ||
           testcompat::textWidth(QFontMetrics(made.font), made.text) > area.right() - area.left();
}

QImage expected(const Case& made)
{
    Sheet sheet(made);
    QPainter* painter = sheet.painter();
    painter->setClipRect(QRect(QPoint(), made.size));
    painter->setPen(made.color);
    painter->setFont(made.font);
    if (made.mode == CLabel::CharWrap)
        Definition(painter, textArea(made)).drawCharWrapped(made.text);
    else
        Definition(painter, textArea(made)).drawWordWrapped(made.text);
    return sheet.image();
}

} // namespace

class tst_label_pixels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomLabels();
};

/// Qt measures some characters differently once it has drawn them, or has forgotten their font:
/// labels with such characters are painted once more.
void tst_label_pixels::randomLabels()
{
    int shown = 0;
    int wrapped = 0;
    for (int i = 0; wrapped < textCount; ++i) {
        Random random(static_cast<quint32>(i) * 2654435761u);
        const Case made = randomCase(&random);
        if (!isWrapped(made))
            continue;
        ++wrapped;
        QImage image = painted(made);
        QImage wanted = expected(made);
        for (int again = 0; again < 2 && image != wanted; ++again) {
            image = painted(made);
            wanted = expected(made);
        }
        if (image != wanted)
            QFAIL(qPrintable(QString::number(i) + QLatin1String(": ") +
                             testing::difference(image, wanted)));
        shown += image != Sheet(made).image();
    }
    QVERIFY(shown > textCount / 2); // not all of them beside the label
}

QTEST_MAIN(tst_label_pixels)
#include "tst_label_pixels.moc"
