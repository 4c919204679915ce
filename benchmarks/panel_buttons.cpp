// Screens of push buttons with pictures.

#include "bench.h"

#include "style/widgetstyle.h"
#include "widgets/clockprogress.h"
#include "widgets/pushbutton.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>

namespace
{

const int screenCount = 60;
const int manyCount = 1000;
const int columnsOfButtons = 6;

QRect place(int number)
{
    return QRect(number % columnsOfButtons * 130, number / columnsOfButtons * 50, 120, 40);
}

QString caption(int number)
{
    return QString::fromLatin1("Button %1").arg(number % 100);
}

class OurScreen : public QWidget
{
public:
    explicit OurScreen(int count)
    {
        resize(800, 600);
        for (int i = 0; i < count; ++i) {
            CPushButton* button = new CPushButton(this);
            button->setStyle(CPushButton::GreenStyle, true);
            button->setText(caption(i));
            button->move(place(i).topLeft());
        }
    }
};

template <bool hasPictures>
class StockScreen : public QWidget
{
public:
    explicit StockScreen(int count)
    {
        resize(800, 600);
        if (hasPictures)
            setStyleSheet(sheet());
        for (int i = 0; i < count; ++i) {
            QPushButton* button = new QPushButton(caption(i), this);
            button->setFixedSize(place(i).size());
            button->move(place(i).topLeft());
        }
    }

private:
    static QString sheet()
    {
        static bench::PictureFiles files;
        static const QString text =
            QString::fromLatin1("QPushButton{color:white;border-image:url(%1)}"
                                "QPushButton:pressed{border-image:url(%2)}")
                .arg(files.path(CWidgetStyle::getButtonStatus(CWidgetStyle::GreenReleased, true),
                                QLatin1String("green")))
                .arg(files.path(CWidgetStyle::getButtonStatus(CWidgetStyle::GreenPressed, true),
                                QLatin1String("green-pressed")));
        return text;
    }
};

class HandScreen : public QWidget
{
public:
    explicit HandScreen(int count)
        : m_count(count),
          m_picture(CWidgetStyle::getButtonStatus(CWidgetStyle::GreenReleased, true))
    {
        resize(800, 600);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setPen(Qt::white);
        for (int i = 0; i < m_count; ++i) {
            painter.fillRect(place(i), QColor(99, 94, 128));
            painter.drawPixmap(place(i), m_picture);
            painter.drawText(place(i), Qt::AlignCenter, caption(i));
        }
    }

private:
    int m_count;
    QPixmap m_picture;
};

template <typename Screen>
void buildAndShow(benchmark::State& state)
{
    delete new Screen(1);
    while (state.KeepRunning()) {
        Screen* screen = new Screen(screenCount);
        screen->show();
        bench::settle();
        state.PauseTiming();
        delete screen;
        bench::settle();
        state.ResumeTiming();
    }
}

template <typename Screen>
void repaint(benchmark::State& state)
{
    Screen screen(screenCount);
    screen.show();
    bench::settle();
    while (state.KeepRunning())
        bench::repaintAll(&screen);
}

template <typename Screen>
void buildMany(benchmark::State& state)
{
    delete new Screen(1);
    double bytes = 0;
    while (state.KeepRunning()) {
        state.PauseTiming();
        const size_t before = bench::heap();
        state.ResumeTiming();
        Screen* screen = new Screen(manyCount);
        state.PauseTiming();
        bytes = static_cast<double>(bench::heap() - before) / manyCount;
        delete screen;
        bench::settle();
        state.ResumeTiming();
    }
    state.counters["heap"] = bytes;
}

// ---- the clock

void clockOurs(benchmark::State& state)
{
    CClockProgress clock;
    clock.setVisible(true);
    bench::settle();
    while (state.KeepRunning()) {
        clock.roll();
        bench::settle();
    }
}

void clockStock(benchmark::State& state)
{
    const QPixmap strip(QLatin1String(":/images/MISC_PROGCLK_11states.png"));
    QList<QPixmap> frames;
    for (int i = 0; i < 11; ++i)
        frames.append(strip.copy(i * 30, 0, 30, 30));
    QLabel clock;
    clock.setFixedSize(30, 30);
    clock.setPixmap(frames.at(0));
    clock.show();
    bench::settle();
    int frame = 0;
    while (state.KeepRunning()) {
        clock.setPixmap(frames.at(++frame % 11));
        bench::settle();
    }
}

} // namespace

void bench::addButtons()
{
    add("60 picture buttons, build and show", "hand", buildAndShow<HandScreen>);
    add("60 picture buttons, build and show", "stock", buildAndShow<StockScreen<false>>);
    add("60 picture buttons, build and show", "sheet", buildAndShow<StockScreen<true>>);
    add("60 picture buttons, build and show", "ours", buildAndShow<OurScreen>);
    add("60 picture buttons, repaint", "hand", repaint<HandScreen>);
    add("60 picture buttons, repaint", "stock", repaint<StockScreen<false>>);
    add("60 picture buttons, repaint", "sheet", repaint<StockScreen<true>>);
    add("60 picture buttons, repaint", "ours", repaint<OurScreen>);
    add("1,000 picture buttons, build", "stock", buildMany<StockScreen<false>>);
    add("1,000 picture buttons, build", "sheet", buildMany<StockScreen<true>>);
    add("1,000 picture buttons, build", "ours", buildMany<OurScreen>);
    add("clock, a frame", "stock", clockStock);
    add("clock, a frame", "ours", clockOurs);
}
