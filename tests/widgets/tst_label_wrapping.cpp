#include "support/rows.h"
#include "support/testing.h"

#include "widgets/label.h"

#include <QApplication>
#include <QPainter>

using testing::canvas;
using testing::render;
using testing::testFont;

namespace
{

const QColor background(0xE0, 0xE0, 0xFF);
const int top = 5;
const int lineHeight = 20;
const int leftMargin = 2;

QString latin(const char* text)
{
    return QString::fromLatin1(text);
}

/// The width that a label must have so that \a text just fits on a wrapped line.
int labelFor(const char* text)
{
    int width = 0;
    for (const char* ch = text; *ch; ++ch)
        width += testcompat::textWidth(QFontMetrics(testFont(13)), QString(QLatin1Char(*ch)));
    return leftMargin + width + 1 + 2;
}

/// What a label with these lines shows, one below the other; an empty line is left blank.
QImage lines(const QWidget& label, const QStringList& texts)
{
    QImage image = canvas(&label, background);
    QPainter painter(&image);
    painter.setPen(Qt::black);
    painter.setFont(testFont(13));
    for (int line = 0; line < texts.size(); ++line) {
        int x = leftMargin;
        for (int i = 0; i < texts.at(line).size(); ++i) {
            const QString ch(texts.at(line).at(i));
            const int width = testcompat::textWidth(QFontMetrics(testFont(13)), ch);
            painter.drawText(QRect(x, top + line * lineHeight, width, lineHeight), Qt::AlignCenter,
                             ch);
            x += width;
        }
    }
    return image;
}

struct Row {
    const char* name;
    CLabel::WrapMode mode;
    const char* widthOf; // the label is just wide enough for this text
    const char* text;
    const char* lines; // separated by line feeds
};

const Row rows[] = {
    // clang-format off
    // ---- by characters
    {"fits",                 CLabel::CharWrap, "Measure",  "Measure",        "Measure"},
    {"one too many",         CLabel::CharWrap, "Measur",   "Measure",        "Measur\ne"},
    {"many lines",           CLabel::CharWrap, "aaa",      "aaaaaaaa",       "aaa\naaa\naa"},
    {"separators too",       CLabel::CharWrap, "aaa",      "aaa bbb",        "aaa\n bb\nb"},
    {"keeps blanks",         CLabel::CharWrap, "aaaaaa",   "  a  a",         "  a  a"},
    {"one per line",         CLabel::CharWrap, "W",        "WWW",            "W\nW\nW"},
    // ---- by words
    {"before the blank",     CLabel::WordWrap, "beginning e", "beginning end", "beginning\n end"},
    {"three lines",          CLabel::WordWrap, "three.",   "one two three",  "one\n two\n three"},
    {"two words a line",     CLabel::WordWrap, "one two.", "one two three",  "one two\n three"},
    {"comma and blank",      CLabel::WordWrap, "alpha, ",  "alpha, beta",    "alpha,\n beta"},
    {"hyphen",               CLabel::WordWrap, "beginning-e", "beginning-end", "beginning\n-end"},
    // The word fits, but not with the separator: what was drawn of it stays.
    {"word without its blank", CLabel::WordWrap, "onetwo", "one two",        "one tw\n two"},
    {"digits are letters",   CLabel::WordWrap, "1234 5",   "1234 5678",      "1234\n 5678"},
    {"blanks at the end",    CLabel::WordWrap, "word",     "word  ",         "word\n  "},
    // ---- a word without a separator before it, wider than a line: one character is left out
    {"over-long alone",      CLabel::WordWrap, "iiii",     "iiiiiiiii",      "iiii\niiii"},
    {"over-long, letters",   CLabel::WordWrap, "abcd",     "abcdefgh",       "abcd\nfgh"},
    {"over-long, then more", CLabel::WordWrap, "abcd",     "abcdefgh ijkl",  "abcd\nfgh\n ijkl"},
    {"over-long after one",  CLabel::WordWrap, " abcd",    "xy abcdefgh",    "xy\n abcd\nfgh"},
    // clang-format on
};

} // namespace

class tst_label_wrapping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wrapping_data();
    void wrapping();
    void charWrapStartsAtTheTopWhateverTheAlignment();
    void wordWrapOfAFittingTextUsesTheAlignment();
    void overLongWordIsDrawnAgainFromItsSeparator();
    void lookBackEndsWithTheLine();
    void lookBackEndsWhereNothingOfTheLineIsLeft();
    void layoutEndsBelowTheLabel();
    void labelsNarrowerThanAGlyph();
    void everyTextEnds();
    void cornerTextOverWrappedText();
};

void tst_label_wrapping::wrapping_data()
{
    QTest::addColumn<int>("row");
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i)
        QTest::newRow(rows[i].name) << static_cast<int>(i);
}

void tst_label_wrapping::wrapping()
{
    QFETCH(int, row);
    CLabel label;
    label.setFont(testFont(13));
    label.setSize(labelFor(rows[row].widthOf), 100);
    label.setWrapMode(rows[row].mode);
    label.setText(latin(rows[row].text));
    CWIDGET_COMPARE_IMAGES(render(&label),
                           lines(label, latin(rows[row].lines).split(QLatin1Char('\n'))));
}

void tst_label_wrapping::charWrapStartsAtTheTopWhateverTheAlignment()
{
    CLabel label;
    label.setFont(testFont(13));
    label.setSize(200, 60);
    label.setWrapMode(CLabel::CharWrap);
    label.setAlignment(Qt::AlignRight | Qt::AlignBottom);
    label.setText(latin("fits"));
    CWIDGET_COMPARE_IMAGES(render(&label), lines(label, QStringList(latin("fits"))));
}

void tst_label_wrapping::wordWrapOfAFittingTextUsesTheAlignment()
{
    CLabel label;
    label.setFont(testFont(13));
    label.setText(latin("fits well"));
    label.setWrapMode(CLabel::WordWrap);
    label.setAlignment(Qt::AlignRight | Qt::AlignBottom);
    const int width = testcompat::textWidth(QFontMetrics(testFont(13)), latin("fits well"));
    label.setSize(leftMargin + width + 1 + 2, 60);
    QImage expected = canvas(&label, background);
    QPainter painter(&expected);
    painter.setPen(Qt::black);
    painter.setFont(testFont(13));
    painter.drawText(QRect(QPoint(2, 0), QPoint(label.width() - 3, 59)),
                     Qt::AlignRight | Qt::AlignBottom, latin("fits well"));
    painter.end();
    CWIDGET_COMPARE_IMAGES(render(&label), expected);
    label.setSize(label.width() - 1, 60);
    CWIDGET_COMPARE_IMAGES(render(&label),
                           lines(label, QStringList() << latin("fits wel") << latin(" well")));
}

// Counted by the width of the narrow character that does not fit, the separator is reached: its
// word is drawn again below, and so on. The line in between stays free, because the separator
// starts a line when its word is wider than one.
void tst_label_wrapping::overLongWordIsDrawnAgainFromItsSeparator()
{
    CLabel label;
    label.setFont(testFont(13));
    label.setSize(labelFor(" WW"), 100);
    label.setWrapMode(CLabel::WordWrap);
    label.setText(latin("xy WWiWWW"));
    QStringList expected = QStringList()
                           << latin("xy") << latin(" WW") << QString() << latin(" WW") << QString();
    CWIDGET_COMPARE_IMAGES(render(&label), lines(label, expected));
    label.setText(latin(" WWiWWW"));
    expected[0].clear();
    CWIDGET_COMPARE_IMAGES(render(&label), lines(label, expected));
}

// Counted by the width of the wide character that does not fit, the line ends before the separator
// is reached: the character is left out.
void tst_label_wrapping::lookBackEndsWithTheLine()
{
    CLabel label;
    label.setFont(testFont(13));
    label.setSize(labelFor(" iiiiii"), 100);
    label.setWrapMode(CLabel::WordWrap);
    label.setText(latin(" iiiiiiWii"));
    // The separator starts a line of its own, as its word is wider than one.
    const QStringList expected = QStringList() << QString() << latin(" iiiiii") << latin("ii");
    CWIDGET_COMPARE_IMAGES(render(&label), lines(label, expected));
}

/// All of these are equally wide, so that the line is used up just before its blank.
void tst_label_wrapping::lookBackEndsWhereNothingOfTheLineIsLeft()
{
    const QFontMetrics metrics(testFont(13));
    QCOMPARE(testcompat::textWidth(metrics, latin("t")),
             testcompat::textWidth(metrics, latin(" ")));
    CLabel label;
    label.setFont(testFont(13));
    label.setSize(labelFor(" ttt"), 60);
    label.setWrapMode(CLabel::WordWrap);
    label.setText(latin(" tttttttt"));
    // The blank makes room for its word on the second line; there one letter is left out.
    CWIDGET_COMPARE_IMAGES(
        render(&label), lines(label, QStringList() << latin("") << latin(" ttt") << latin("tttt")));
}

void tst_label_wrapping::layoutEndsBelowTheLabel()
{
    for (int height = 1; height <= 70; ++height) {
        CLabel label;
        label.setFont(testFont(13));
        label.setSize(labelFor("aaa"), height);
        label.setWrapMode(CLabel::CharWrap);
        label.setText(latin("aaabbbcccddd"));
        const QStringList all = QStringList()
                                << latin("aaa") << latin("bbb") << latin("ccc") << latin("ddd");
        CWIDGET_COMPARE_IMAGES(render(&label), lines(label, all));
    }
}

void tst_label_wrapping::labelsNarrowerThanAGlyph()
{
    for (int width = 0; width < labelFor("W"); ++width) {
        for (int mode = 1; mode <= 2; ++mode) {
            CLabel label;
            label.setFont(testFont(13));
            label.setSize(width, 100);
            label.setWrapMode(static_cast<CLabel::WrapMode>(mode));
            label.setText(latin("WWW WW"));
            CWIDGET_COMPARE_IMAGES(render(&label), canvas(&label, background));
        }
    }
}

void tst_label_wrapping::everyTextEnds()
{
    const QString texts[] = {
        QString(20000, QLatin1Char('i')),
        QString(20000, QLatin1Char(' ')),
        QString(20000, QLatin1Char('-')),
        latin("ab ").repeated(5000),
        latin(" abcdefghijklmnopqrstuvwxyz").repeated(500),
        QString(QChar(0x202E)) + QString(2000, QChar(0x05D0)),
        QString(2000, QChar(0xD83D)),
        QString(2000, QChar(0)),
    };
    for (size_t i = 0; i < sizeof texts / sizeof texts[0]; ++i) {
        const testing::InRow inRow(i);
        for (int mode = 0; mode <= 2; ++mode) {
            for (int width = 0; width < 60; width += 7) {
                CLabel label;
                label.setFont(testFont(13));
                label.setSize(width, 60);
                label.setWrapMode(static_cast<CLabel::WrapMode>(mode));
                label.setText(texts[i]);
                QCOMPARE(render(&label).width(), width);
            }
        }
    }
}

void tst_label_wrapping::cornerTextOverWrappedText()
{
    CLabel label;
    label.setFont(testFont(13));
    label.setSize(labelFor("aaa"), 60);
    label.setWrapMode(CLabel::CharWrap);
    label.setText(latin("aaaaaaaaa"));
    label.setCornerText(latin("m"));
    QImage expected = lines(label, QStringList() << latin("aaa") << latin("aaa") << latin("aaa"));
    QPainter painter(&expected);
    painter.setFont(testFont(13));
    painter.drawText(QRect(QPoint(2, 0), QPoint(label.width() - 3, 59)),
                     Qt::AlignRight | Qt::AlignVCenter, latin("m"));
    painter.end();
    CWIDGET_COMPARE_IMAGES(render(&label), expected);
}

QTEST_MAIN(tst_label_wrapping)
#include "tst_label_wrapping.moc"
