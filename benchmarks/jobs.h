#ifndef CWIDGET_BENCHMARKS_JOBS_H
#define CWIDGET_BENCHMARKS_JOBS_H

#include "stylefile.h"

#include "style/widgetstyle.h"
#include "widgets/label.h"

#include <QFont>
#include <QLabel>
#include <benchmark/benchmark.h>

// What more than one program measures.
namespace bench
{

/// Adds \a job at four sizes, with the growth that fits them best.
inline void addGrowing(const char* name, void (*job)(benchmark::State& state))
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

/// \a length characters of words with blanks between them.
inline QString prose(int length)
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

const int restyledSize = 12; // of letters, in pixels; every other time they are larger by one

/// Gives \a count labels of the library another font by the style file.
inline void restyleLabels(benchmark::State& state, int count)
{
    const StyleFile small(0, restyledSize);
    const StyleFile large(0, restyledSize + 1);
    CWidget panel;
    for (int i = 0; i < count; ++i)
        new CLabel(&panel);
    int number = 0;
    while (state.KeepRunning()) {
        state.PauseTiming();
        CWidgetStyle::initialize((++number % 2 ? large : small).path());
        state.ResumeTiming();
        panel.updateWidgetStyle();
    }
    CWidgetStyle::initialize(QLatin1String(CWIDGET_SOURCE_DIR "/style/widget-style.xml"));
}

/// Gives \a count stock labels another font by that of their parent.
inline void restyleStockLabels(benchmark::State& state, int count)
{
    QWidget panel;
    for (int i = 0; i < count; ++i)
        new QLabel(&panel);
    QFont font(QLatin1String("Arial"));
    int number = 0;
    while (state.KeepRunning()) {
        font.setPixelSize(restyledSize + ++number % 2);
        panel.setFont(font);
    }
}

} // namespace bench

#endif
