// Labels of 2,000 characters.

#include "bench.h"
#include "jobs.h"

#include "widgets/label.h"

#include <QLabel>

namespace
{

const int length = 2000;

template <CLabel::WrapMode mode>
void paintOurs(benchmark::State& state)
{
    CLabel label;
    label.setFixedSize(600, 560);
    label.setWrapMode(mode);
    label.setText(bench::prose(length));
    label.show();
    bench::settle();
    while (state.KeepRunning())
        label.repaint();
}

template <bool wrap>
void paintStock(benchmark::State& state)
{
    QLabel label;
    label.setFixedSize(600, 560);
    label.setAutoFillBackground(true);
    label.setWordWrap(wrap);
    label.setText(bench::prose(length));
    label.show();
    bench::settle();
    while (state.KeepRunning())
        label.repaint();
}

} // namespace

void bench::addTexts()
{
    add("label of 2,000 characters", "stock", paintStock<false>);
    add("label of 2,000 characters", "ours", paintOurs<CLabel::NoWrap>);
    add("label of 2,000 characters, words wrapped", "stock", paintStock<true>);
    add("label of 2,000 characters, words wrapped", "ours", paintOurs<CLabel::WordWrap>);
    add("label of 2,000 characters, wrapped anywhere", "stock", paintStock<true>);
    add("label of 2,000 characters, wrapped anywhere", "ours", paintOurs<CLabel::CharWrap>);
}
