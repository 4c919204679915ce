#include "progressscreen.h"

#include "panel.h"

#include <CWidgetStyle>
#include <QTimer>

namespace
{

const int left = layout::margin;
const int barPitch = 332;
const int barHeight = 64; // with the gap below it
const int clockPitch = 216;
const QSize clockPlate(200, 64);
const QColor barColor(0x2B, 0x2E, 0x3B);
const int stepInterval = 80; // ms

const int levels[] = {12, 35, 55, 72, 100};

// One row per clock: how it shows its value.
const struct {
    const char* caption;
    int format;
    int value;
    int maximum;
} clocks[] = {
    // clang-format off
    {"Busy",      2,   0,   0},
    {"3 of 8",    1,   3,   8},
    {"Done",      0, 100, 100},
    // clang-format on
};

} // namespace

ProgressScreen::ProgressScreen(Panel* panel)
    : Screen(QLatin1String("Progress"), panel),
      m_run(nullptr),
      m_button(nullptr),
      m_timer(new QTimer(this)),
      m_value(40)
{
    connect(m_timer, SIGNAL(timeout()), this, SLOT(step()));
    addHeading(QLatin1String("Levels"), layout::firstHeading);
    addLevels(52);
    addHeading(QLatin1String("A run"), 252);
    addRun(288);
    addHeading(QLatin1String("Clocks"), 364);
    addClocks(400);
}

void ProgressScreen::addLevels(int y)
{
    for (size_t i = 0; i < sizeof levels / sizeof levels[0]; ++i) {
        CProgressBar* bar = new CProgressBar(this);
        bar->setValue(levels[i]);
        bar->move(left + static_cast<int>(i % 2) * barPitch,
                  y + static_cast<int>(i / 2) * barHeight);
    }
    CProgressBar* plain = new CProgressBar(this);
    plain->setGradientEabled(false);
    plain->setProgressColor(CWidgetStyle::getColor(CWidgetStyle::PanelBackgroundColor));
    plain->setBorderColor(CWidgetStyle::getColor(CWidgetStyle::PanelBackgroundColor));
    plain->setValue(64);
    plain->move(left + barPitch, y + 2 * barHeight);
}

void ProgressScreen::addRun(int y)
{
    m_run = new CProgressBar(this);
    m_run->setValue(m_value);
    m_run->move(left, y);
    m_button =
        addButton(QLatin1String("Start"), CPushButton::GreenStyle, QPoint(left + barPitch, y + 4));
    m_button->setObjectName(QLatin1String("run"));
    connect(m_button, SIGNAL(clicked()), this, SLOT(startOrStop()));
}

void ProgressScreen::addClocks(int y)
{
    for (size_t i = 0; i < sizeof clocks / sizeof clocks[0]; ++i) {
        const int x = left + static_cast<int>(i) * clockPitch;
        CWidget* plate = new CWidget(this);
        plate->setBackgroundColor(barColor);
        plate->setSize(clockPlate.width(), clockPlate.height());
        plate->move(x, y);
        CClockProgress* clock = new CClockProgress(plate);
        clock->setRange(0, clocks[i].maximum);
        clock->setValue(clocks[i].value);
        clock->setFormat(clocks[i].format);
        clock->move(20, 17);
        m_clocks.append(clock);
        CLabel* caption = plainLabel(QLatin1String(clocks[i].caption), plate);
        caption->setTextColor(Qt::white);
        caption->setGeometry(66, 18, 130, 28);
    }
}

/// The clocks turn while they are seen: a clock that was started wakes the processor, hidden or
/// not.
void ProgressScreen::showEvent(QShowEvent* event)
{
    Screen::showEvent(event);
    for (int i = 0; i < m_clocks.size(); ++i)
        m_clocks.at(i)->start();
}

void ProgressScreen::hideEvent(QHideEvent* event)
{
    Screen::hideEvent(event);
    for (int i = 0; i < m_clocks.size(); ++i)
        m_clocks.at(i)->stop();
}

/// The clocks stand still in a picture.
void ProgressScreen::prepareShot()
{
    for (int i = 0; i < m_clocks.size(); ++i) {
        m_clocks.at(i)->stop();
        m_clocks.at(i)->show();
    }
}

void ProgressScreen::step()
{
    m_value = m_value >= 100 ? 0 : m_value + 1;
    m_run->setValue(m_value);
}

void ProgressScreen::startOrStop()
{
    const bool runs = m_timer->isActive();
    if (runs)
        m_timer->stop();
    else
        m_timer->start(stepInterval);
    m_button->setStyle(runs ? CPushButton::GreenStyle : CPushButton::RedStyle, true);
    m_button->setText(QLatin1String(runs ? "Start" : "Stop"));
}
