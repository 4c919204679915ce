// How the cost of a panel grows: with its widgets, with the length of its texts, with its style
// file. Each beside what stock widgets and Qt's own parser take. The run prints the growth that
// fits the sizes best.

#include "stylefile.h"

#include "style/widgetstyle.h"
#include "widgets/label.h"
#include "widgets/pushbutton.h"

#include <QApplication>
#include <QDomDocument>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <benchmark/benchmark.h>

namespace
{

const char ownStyleFile[] = CWIDGET_SOURCE_DIR "/style/widget-style.xml";
const int columnsOfButtons = 6;
const int smallSize = 12; // of letters, in pixels

void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

int sizeOf(const benchmark::State& state)
{
    return static_cast<int>(state.range(0));
}

// ---- buttons

QWidget* newButton(CPushButton* button, const QString& text)
{
    button->setStyle(CPushButton::GreenStyle, true);
    button->setText(text);
    return button;
}

QWidget* newButton(QPushButton* button, const QString& text)
{
    button->setText(text);
    button->setFixedSize(120, 40);
    return button;
}

template <typename Button>
void buildButtons(benchmark::State& state)
{
    while (state.KeepRunning()) {
        QWidget* panel = new QWidget;
        for (int i = 0; i < sizeOf(state); ++i) {
            const QString text = QString::fromLatin1("Button %1").arg(i);
            newButton(new Button(panel), text)
                ->move(i % columnsOfButtons * 130, i / columnsOfButtons * 50);
        }
        state.PauseTiming();
        delete panel;
        settle();
        state.ResumeTiming();
    }
}

// ---- restyling

void restyleOurs(benchmark::State& state)
{
    const bench::StyleFile small(0, smallSize);
    const bench::StyleFile large(0, smallSize + 1);
    CWidget panel;
    for (int i = 0; i < sizeOf(state); ++i)
        new CLabel(&panel);
    int number = 0;
    while (state.KeepRunning()) {
        state.PauseTiming();
        CWidgetStyle::initialize((++number % 2 ? large : small).path());
        state.ResumeTiming();
        panel.updateWidgetStyle();
    }
    CWidgetStyle::initialize(QLatin1String(ownStyleFile));
}

void restyleStock(benchmark::State& state)
{
    QWidget panel;
    for (int i = 0; i < sizeOf(state); ++i)
        new QLabel(&panel);
    QFont font(QLatin1String("Arial"));
    int number = 0;
    while (state.KeepRunning()) {
        font.setPixelSize(smallSize + ++number % 2);
        panel.setFont(font);
    }
}

// ---- texts

QString prose(int length)
{
    static const char* const words[] = {"pressure", "of",    "the", "second", "pump",
                                        "is",       "above", "its", "limit;", "close",
                                        "valve",    "7",     "and", "wait"};
    const int count = sizeof words / sizeof words[0];
    QString text;
    for (int i = 0; text.size() < length; ++i)
        text += QLatin1String(words[i * 5 % count]) + QLatin1String(" ");
    return text.left(length);
}

/// Large enough for the whole text.
QSize sizeFor(int length)
{
    return QSize(600, 60 + length / 50 * 20);
}

template <typename Label>
void paint(benchmark::State& state, Label* label)
{
    label->setFixedSize(sizeFor(sizeOf(state)));
    label->setText(prose(sizeOf(state)));
    label->show();
    settle();
    while (state.KeepRunning())
        label->repaint();
}

template <CLabel::WrapMode mode>
void paintOurs(benchmark::State& state)
{
    CLabel label;
    label.setWrapMode(mode);
    paint(state, &label);
}

template <bool wrap>
void paintStock(benchmark::State& state)
{
    QLabel label;
    label.setAutoFillBackground(true);
    label.setWordWrap(wrap);
    paint(state, &label);
}

// ---- the style file

void readStyle(benchmark::State& state)
{
    const bench::StyleFile file(sizeOf(state), smallSize);
    while (state.KeepRunning()) {
        if (!CWidgetStyle::initialize(file.path()))
            state.SkipWithError("the style file is not read");
    }
}

/// The tree alone, without fonts and colours.
void readTree(benchmark::State& state)
{
    const bench::StyleFile style(sizeOf(state), smallSize);
    while (state.KeepRunning()) {
        QFile file(style.path());
        QDomDocument document;
        if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
            state.SkipWithError("the style file is not read");
    }
}

void findEntry(benchmark::State& state)
{
    const bench::StyleFile file(sizeOf(state), smallSize);
    CWidgetStyle::initialize(file.path());
    const QString name = QString::fromLatin1("Class%1").arg(sizeOf(state) / 2);
    while (state.KeepRunning()) {
        if (CWidgetStyle::getWidgetStyle(name, nullptr).styles.isEmpty())
            state.SkipWithError("the entry is not found");
    }
}

typedef void (*Job)(benchmark::State& state);

void add(const char* name, Job job)
{
    benchmark::RegisterBenchmark(name,
                                 [job](benchmark::State& state) {
                                     job(state);
                                     state.SetComplexityN(state.range(0));
                                 })
        ->RangeMultiplier(10)
        ->Range(10, 10000)
        ->Complexity()
        ->MinTime(0.1)
        ->Unit(benchmark::kMicrosecond);
}

void addAll()
{
    add("buttons/CPushButton", buildButtons<CPushButton>);
    add("buttons/QPushButton", buildButtons<QPushButton>);
    add("restyle/CLabel", restyleOurs);
    add("restyle/QLabel", restyleStock);
    add("line/CLabel", paintOurs<CLabel::NoWrap>);
    add("line/QLabel", paintStock<false>);
    add("words/CLabel", paintOurs<CLabel::WordWrap>);
    add("words/QLabel", paintStock<true>);
    add("characters/CLabel", paintOurs<CLabel::CharWrap>);
    add("styleFile/initialize", readStyle);
    add("styleFile/QDomDocument", readTree);
    add("styleFile/getWidgetStyle", findEntry);
}

} // namespace

int main(int argc, char** argv)
{
    if (qgetenv("QT_QPA_PLATFORM").isEmpty())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    CWidgetStyle::initialize(QLatin1String(ownStyleFile));
    addAll();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
