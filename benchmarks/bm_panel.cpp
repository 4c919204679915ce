// A front panel of this library beside one of stock widgets that does the same, and beside the same
// painted by hand. Every time covers the job and the events that come of it. The runs of all
// columns are mixed, so that a busy machine slows all of them down alike; the ratio is what counts.

#include "bench.h"
#include "style/widgetstyle.h"

#include <QApplication>
#include <QDir>
#include <QMouseEvent>
#include <map>
#include <vector>

#include <cstdio>
#include <malloc.h>
#include <unistd.h>

namespace
{

const char* const columns[] = {"hand", "stock", "sheet", "ours"};
const int columnCount = sizeof columns / sizeof columns[0];

/// Prints the medians as one table: a row for each job, a column for each implementation.
class TableReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context&) override
    {
        return true;
    }

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (size_t i = 0; i < runs.size(); ++i) {
            if (runs[i].aggregate_name == "median")
                note(runs[i]);
        }
    }

    void Finalize() override
    {
        printf("%-44s %9s %9s %9s %9s  %s\n", "CPU time in microseconds, median", "by hand",
               "stock", "sheet", "ours", "ours to each of them");
        for (size_t i = 0; i < m_order.size(); ++i)
            print(m_order[i]);
    }

private:
    void note(const Run& run)
    {
        const std::string& name = run.run_name.function_name;
        const size_t slash = name.rfind('/');
        const std::string row = name.substr(0, slash);
        const std::map<std::string, benchmark::Counter>::const_iterator time =
            run.counters.find(bench::timeCounter);
        set(row, name.substr(slash + 1),
            time == run.counters.end() ? run.GetAdjustedCPUTime() : time->second.value);
        std::map<std::string, benchmark::Counter>::const_iterator heap = run.counters.find("heap");
        if (heap != run.counters.end())
            set(row + ": bytes of heap each", name.substr(slash + 1), heap->second.value);
    }

    void set(const std::string& row, const std::string& column, double value)
    {
        if (m_cells.find(row) == m_cells.end())
            m_order.push_back(row);
        m_cells[row][column] = value;
    }

    void print(const std::string& row)
    {
        std::map<std::string, double>& cells = m_cells[row];
        printf("%-44s", row.c_str());
        for (int i = 0; i < columnCount; ++i) {
            if (cells.count(columns[i]))
                printf(" %9.1f", cells[columns[i]]);
            else
                printf(" %9s", "-");
        }
        for (int i = 0; i < columnCount - 1; ++i) {
            if (cells.count(columns[i]))
                printf(" %6.2f", cells["ours"] / cells[columns[i]]);
            else
                printf(" %6s", "-");
        }
        printf("\n");
    }

    std::vector<std::string> m_order;
    std::map<std::string, std::map<std::string, double>> m_cells;
};

void send(QWidget* widget, QEvent::Type type, const QPoint& point, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, point, widget->mapToGlobal(point), Qt::LeftButton, buttons,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

} // namespace

namespace bench
{

const char timeCounter[] = "time";

void add(const char* row, const char* column, Job job)
{
    const std::string name = std::string(row) + '/' + column;
    benchmark::RegisterBenchmark(name.c_str(), job)
        ->MinTime(0.05)
        ->Repetitions(5)
        ->Unit(benchmark::kMicrosecond);
}

void repaintAll(QWidget* window)
{
    const QList<QWidget*> children = window->findChildren<QWidget*>();
    for (int i = 0; i < children.size(); ++i)
        children.at(i)->update();
    window->update();
    settle();
}

void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

void press(QWidget* widget, const QPoint& point)
{
    send(widget, QEvent::MouseButtonPress, point, Qt::LeftButton);
}

void release(QWidget* widget, const QPoint& point)
{
    send(widget, QEvent::MouseButtonRelease, point, Qt::NoButton);
}

size_t heap()
{
    return mallinfo2().uordblks;
}

PictureFiles::PictureFiles()
    : m_folder(QDir::tempPath() + QString::fromLatin1("/cwidget-bench-%1").arg(getpid()))
{
    QDir().mkpath(m_folder);
}

PictureFiles::~PictureFiles()
{
    QDir folder(m_folder);
    const QStringList names = folder.entryList(QDir::Files);
    for (int i = 0; i < names.size(); ++i)
        folder.remove(names.at(i));
    QDir().rmdir(m_folder);
}

QString PictureFiles::path(const QPixmap& pixmap, const QString& name)
{
    const QString file = m_folder + QLatin1Char('/') + name + QLatin1String(".png");
    pixmap.save(file);
    return file;
}

} // namespace bench

int main(int argc, char** argv)
{
    if (qgetenv("QT_QPA_PLATFORM").isEmpty())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "*.warning=false"); // the platform's would break up the table
    QApplication application(argc, argv);
    if (bench::showsFirstFrame(argc, argv)) {
        fflush(stdout);
        _exit(0); // the time to take it all down is not asked for
    }
    CWidgetStyle::initialize(QLatin1String(CWIDGET_SOURCE_DIR "/style/widget-style.xml"));
    bench::addKeys();
    bench::addButtons();
    bench::addTexts();
    bench::addFields();
    bench::addLists();
    bench::addStart();
    benchmark::Initialize(&argc, argv);
    TableReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
