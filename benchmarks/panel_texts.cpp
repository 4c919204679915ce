// Labels of 2,000 characters.

#include "bench.h"

#include "widgets/label.h"

#include <QLabel>

namespace
{

const int length = 2000;

QString prose()
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

template <CLabel::WrapMode mode>
void paintOurs(benchmark::State& state)
{
    CLabel label;
    label.setFixedSize(600, 560);
    label.setWrapMode(mode);
    label.setText(prose());
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
    label.setText(prose());
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
