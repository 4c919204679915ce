// How the cost of a panel grows: with its widgets, with the length of its texts, with its style
// file. Each beside what stock widgets and Qt's own parser take. The run prints the growth that
// fits the sizes best.

#include "jobs.h"

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
    bench::restyleLabels(state, sizeOf(state));
}

void restyleStock(benchmark::State& state)
{
    bench::restyleStockLabels(state, sizeOf(state));
}

// ---- texts

/// Large enough for the whole text.
QSize sizeFor(int length)
{
    return QSize(600, 60 + length / 50 * 20);
}

template <typename Label>
void paint(benchmark::State& state, Label* label)
{
    label->setFixedSize(sizeFor(sizeOf(state)));
    label->setText(bench::prose(sizeOf(state)));
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

void addAll()
{
    bench::addGrowing("buttons/CPushButton", buildButtons<CPushButton>);
    bench::addGrowing("buttons/QPushButton", buildButtons<QPushButton>);
    bench::addGrowing("restyle/CLabel", restyleOurs);
    bench::addGrowing("restyle/QLabel", restyleStock);
    bench::addGrowing("line/CLabel", paintOurs<CLabel::NoWrap>);
    bench::addGrowing("line/QLabel", paintStock<false>);
    bench::addGrowing("words/CLabel", paintOurs<CLabel::WordWrap>);
    bench::addGrowing("words/QLabel", paintStock<true>);
    bench::addGrowing("characters/CLabel", paintOurs<CLabel::CharWrap>);
    bench::addGrowing("styleFile/initialize", readStyle);
    bench::addGrowing("styleFile/QDomDocument", readTree);
    bench::addGrowing("styleFile/getWidgetStyle", findEntry);
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
