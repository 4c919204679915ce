// From the start of a program to its first frame: the gallery, and a panel of stock widgets. Each
// start is a process of its own, whose processor time counts, loading and linking included.

#include "bench.h"

#include "panel.h"
#include "style/widgetstyle.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <cstdio>
#include <cstring>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

const char startOption[] = "--start";
const char ours[] = "ours";
const char stock[] = "stock";

const int pageCount = 8;
const int rowsPerPage = 10;
const int menuEntries = 8;

QWidget* stockPage()
{
    QWidget* page = new QWidget;
    QVBoxLayout* column = new QVBoxLayout(page);
    for (int i = 0; i < rowsPerPage; ++i) {
        QHBoxLayout* row = new QHBoxLayout;
        column->addLayout(row);
        row->addWidget(new QLabel(QLatin1String("Parameter")));
        row->addWidget(new QPushButton(QLatin1String("Set")));
        row->addWidget(new QLineEdit(QLatin1String("12.5")));
        row->addWidget(new QCheckBox(QLatin1String("on")));
        QComboBox* box = new QComboBox;
        box->addItems(QStringList() << QLatin1String("slow") << QLatin1String("fast"));
        row->addWidget(box);
        QProgressBar* bar = new QProgressBar;
        bar->setValue(i);
        row->addWidget(bar);
    }
    return page;
}

/// A title, a menu and pages of fields, as many widgets as the gallery has.
QWidget* stockPanel()
{
    QWidget* panel = new QWidget;
    panel->setFixedSize(800, 600);
    QVBoxLayout* column = new QVBoxLayout(panel);
    column->addWidget(new QLabel(QLatin1String("Panel")));
    QHBoxLayout* row = new QHBoxLayout;
    column->addLayout(row);
    QVBoxLayout* menu = new QVBoxLayout;
    row->addLayout(menu);
    for (int i = 0; i < menuEntries; ++i)
        menu->addWidget(new QPushButton(QString::fromLatin1("Screen %1").arg(i)));
    QStackedWidget* pages = new QStackedWidget;
    for (int i = 0; i < pageCount; ++i)
        pages->addWidget(stockPage());
    row->addWidget(pages);
    column->addWidget(new QLabel(QLatin1String("Ready")));
    return panel;
}

QWidget* ourPanel()
{
    const QString style = QLatin1String(CWIDGET_SOURCE_DIR "/style/widget-style.xml");
    CWidgetStyle::initialize(style);
    Panel* panel = new Panel(style);
    panel->showScreen(Panel::screenNames().first());
    return panel;
}

/// Starts this program once more, as \a which; returns the microseconds of processor time.
double startOnce(const char* which)
{
    const pid_t child = fork();
    if (child == 0) {
        execl("/proc/self/exe", "bm_panel", startOption, which, static_cast<char*>(nullptr));
        _exit(1);
    }
    int status = 0;
    rusage usage;
    if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0)
        return -1;
    const double million = 1e6;
    return million * static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
           static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec);
}

void start(benchmark::State& state, const char* which)
{
    double sum = 0;
    int count = 0;
    while (state.KeepRunning()) {
        const double time = startOnce(which);
        if (time < 0)
            state.SkipWithError("the started program fails");
        sum += time;
        ++count;
    }
    state.counters[bench::timeCounter] = sum / count;
}

void startOurs(benchmark::State& state)
{
    start(state, ours);
}

void startStock(benchmark::State& state)
{
    start(state, stock);
}

} // namespace

/// With CWIDGET_COUNT set, it also says how many widgets there are.
bool bench::showsFirstFrame(int argc, char** argv)
{
    if (argc != 3 || strcmp(argv[1], startOption) != 0)
        return false;
    QWidget* panel = strcmp(argv[2], ours) == 0 ? ourPanel() : stockPanel();
    panel->show();
    settle();
    if (!qgetenv("CWIDGET_COUNT").isEmpty())
        printf("%d widgets\n", static_cast<int>(panel->findChildren<QWidget*>().size()));
    return true;
}

void bench::addStart()
{
    add("start to the first frame", stock, startStock);
    add("start to the first frame", ours, startOurs);
}
