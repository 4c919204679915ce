#ifndef CWIDGET_BENCHMARKS_BENCH_H
#define CWIDGET_BENCHMARKS_BENCH_H

#include <QPixmap>
#include <QPoint>
#include <QString>
#include <QWidget>
#include <benchmark/benchmark.h>

// What the benchmarks of bm_panel have in common. A row of the table is a job; it is done by this
// library, by stock widgets and, where that tells something, by hand with one painter.
namespace bench
{

typedef void (*Job)(benchmark::State& state);

/// Adds the job of one column of a row. The columns are "hand", "stock",
/// "sheet", stock widgets with the same pictures by style sheet, and "ours".
void add(const char* row, const char* column, Job job);

/// Paints \a window anew, with all that is in it.
void repaintAll(QWidget* window);

/// Handles all events that are due, painting included.
void settle();

void press(QWidget* widget, const QPoint& point);
void release(QWidget* widget, const QPoint& point);

/// The name of a job's counter that says what its time is, in microseconds, where that is not the
/// time of this process.
extern const char timeCounter[];

/// Bytes of heap in use.
size_t heap();

/// A folder with pictures of the library as files of their own, as a style sheet needs them.
class PictureFiles
{
public:
    PictureFiles();
    ~PictureFiles();

    /// The path of \a pixmap, written as \a name.
    QString path(const QPixmap& pixmap, const QString& name);

private:
    QString m_folder;
};

void addKeys();
void addButtons();
void addFields();
void addTexts();
void addLists();
void addStart();

/// Whether a benchmark has started this program with \a argv, and for what: a panel is on screen
/// now, and the program may end.
bool showsFirstFrame(int argc, char** argv);

} // namespace bench

#endif
