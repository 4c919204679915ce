// The paged list and the combo box beside Qt's own, doing the same jobs with the same entries.
//
// Every time covers what a user waits for: the job itself and the events that come of it, layout
// and painting included.

#include "jobs.h"

#include "pages/combobox.h"
#include "pages/pagebar.h"
#include "pages/pagelistwidget.h"
#include "pages/pagelistwidgetitem.h"
#include "style/widgetstyle.h"
#include "widgets/pushbutton.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QListWidget>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSet>
#include <benchmark/benchmark.h>

namespace
{

QStringList numberedTexts(int count)
{
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts.append(QString::fromLatin1("item %1").arg(i));
    return texts;
}

QList<int> everyThird(int count)
{
    QList<int> indexes;
    for (int i = 0; i < count; i += 3)
        indexes.append(i);
    return indexes;
}

void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

void send(QWidget* widget, QEvent::Type type, const QPoint& point, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, point, widget->mapToGlobal(point), Qt::LeftButton, buttons,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

void click(QWidget* widget, const QPoint& point)
{
    send(widget, QEvent::MouseButtonPress, point, Qt::LeftButton);
    send(widget, QEvent::MouseButtonRelease, point, Qt::NoButton);
}

QWidget* firstVisibleRow(QWidget* list)
{
    const QList<CPageListWidgetItem*> rows = list->findChildren<CPageListWidgetItem*>();
    for (int i = 0; i < rows.size(); ++i) {
        if (rows.at(i)->isVisible())
            return rows.at(i);
    }
    return nullptr;
}

// ---- the candidates, all with the same operations

class PagedList
{
public:
    void fill(const QStringList& texts)
    {
        m_list.addItems(texts);
    }

    void open(int index)
    {
        m_list.show(index);
    }

    void close()
    {
        m_list.hide();
    }

    void turnPage()
    {
        click(m_list.findChild<CPageBar*>()->findChildren<CPushButton*>().at(1), QPoint(5, 5));
    }

    void restrict(int count)
    {
        m_list.setVisibleItems(everyThird(count));
    }

    void unrestrict(int count)
    {
        QList<int> all;
        for (int i = 0; i < count; ++i)
            all.append(i);
        m_list.setVisibleItems(all);
    }

    void prepareChoice()
    {
        m_row = firstVisibleRow(&m_list);
    }

    void choose()
    {
        click(m_row, QPoint(5, 5));
    }

    QWidget* ground()
    {
        return &m_list;
    }

private:
    CPageListWidget m_list;
    QWidget* m_row;
};

class StockList
{
public:
    StockList()
    {
        m_list.setWindowFlags(Qt::Popup);
        m_list.setFixedSize(220, 238);
    }

    void fill(const QStringList& texts)
    {
        m_list.addItems(texts);
    }

    void open(int index)
    {
        m_list.show();
        m_list.setCurrentRow(index);
        m_list.scrollToItem(m_list.currentItem());
    }

    void close()
    {
        m_list.hide();
    }

    void turnPage()
    {
        QScrollBar* bar = m_list.verticalScrollBar();
        bar->setValue(bar->value() == bar->maximum() ? 0 : bar->value() + bar->pageStep());
    }

    void restrict(int count)
    {
        for (int i = 0; i < count; ++i)
            m_list.setRowHidden(i, i % 3 != 0);
    }

    void unrestrict(int count)
    {
        for (int i = 0; i < count; ++i)
            m_list.setRowHidden(i, false);
    }

    void prepareChoice()
    {
    }

    void choose()
    {
        click(m_list.viewport(), QPoint(5, 5));
    }

    QWidget* ground()
    {
        return m_list.viewport();
    }

private:
    QListWidget m_list;
};

class PagedCombo
{
public:
    PagedCombo()
    {
        m_box.show();
    }

    void fill(const QStringList& texts)
    {
        m_texts = texts;
        m_box.addItems(texts);
    }

    void open(int index)
    {
        m_box.setCurrentIndex(index);
        m_box.showPopup();
    }

    void close()
    {
        m_box.hidePopup();
    }

    void turnPage()
    {
        click(m_box.findChild<CPageBar*>()->findChildren<CPushButton*>().at(1), QPoint(5, 5));
    }

    void restrict(int count)
    {
        QStringList texts;
        for (int i = 0; i < count; i += 3)
            texts.append(m_texts.at(i));
        m_box.setVisibleItems(texts, 0);
    }

    void unrestrict(int)
    {
        m_box.setVisibleItems(m_texts, 0);
    }

    void prepareChoice()
    {
        m_row = firstVisibleRow(m_box.findChild<CPageListWidget*>());
    }

    void choose()
    {
        click(m_row, QPoint(5, 5));
        m_box.findChild<CPageListWidget*>()->show(); // the touch has closed it
    }

    QWidget* ground()
    {
        return m_box.findChild<CPageListWidget*>();
    }

private:
    CComboBox m_box;
    QStringList m_texts;
    QWidget* m_row;
};

class StockCombo
{
public:
    StockCombo()
    {
        m_box.show();
    }

    void fill(const QStringList& texts)
    {
        m_texts = texts;
        m_box.addItems(texts);
    }

    void open(int index)
    {
        m_box.setCurrentIndex(index);
        m_box.showPopup();
    }

    void close()
    {
        m_box.hidePopup();
    }

    void turnPage()
    {
        QScrollBar* bar = m_box.view()->verticalScrollBar();
        bar->setValue(bar->value() == bar->maximum() ? 0 : bar->value() + bar->pageStep());
    }

    void restrict(int count)
    {
        QStringList texts;
        for (int i = 0; i < count; i += 3)
            texts.append(m_texts.at(i));
        refill(texts);
    }

    void unrestrict(int)
    {
        refill(m_texts);
    }

    void prepareChoice()
    {
    }

    void choose()
    {
        QWidget* viewport = m_box.view()->viewport();
        send(viewport, QEvent::MouseMove, QPoint(5, 5), Qt::NoButton);
        click(viewport, QPoint(5, 5));
        m_box.showPopup();
    }

    QWidget* ground()
    {
        return m_box.view()->viewport();
    }

private:
    void refill(const QStringList& texts)
    {
        m_box.clear();
        m_box.addItems(texts);
    }

    QComboBox m_box;
    QStringList m_texts;
};

// ---- the jobs

template <typename Candidate>
void build(benchmark::State& state)
{
    const QStringList texts = numberedTexts(static_cast<int>(state.range(0)));
    while (state.KeepRunning()) {
        Candidate* candidate = new Candidate;
        candidate->fill(texts);
        settle();
        state.PauseTiming();
        delete candidate;
        settle();
        state.ResumeTiming();
    }
}

template <typename Candidate>
void open(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    Candidate candidate;
    candidate.fill(numberedTexts(count));
    settle();
    while (state.KeepRunning()) {
        candidate.open(count / 2);
        settle();
        state.PauseTiming();
        candidate.close();
        settle();
        state.ResumeTiming();
    }
}

template <typename Candidate>
void turnPage(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    Candidate candidate;
    candidate.fill(numberedTexts(count));
    candidate.open(count / 2);
    settle();
    while (state.KeepRunning()) {
        candidate.turnPage();
        settle();
    }
}

template <typename Candidate>
void paint(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    Candidate candidate;
    candidate.fill(numberedTexts(count));
    candidate.open(count / 2);
    settle();
    while (state.KeepRunning())
        candidate.ground()->repaint();
}

template <typename Candidate>
void restrict(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    Candidate candidate;
    candidate.fill(numberedTexts(count));
    settle();
    while (state.KeepRunning()) {
        candidate.restrict(count);
        settle();
        state.PauseTiming();
        candidate.unrestrict(count);
        settle();
        state.ResumeTiming();
    }
}

template <typename Candidate>
void choose(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    Candidate candidate;
    candidate.fill(numberedTexts(count));
    candidate.open(count / 2);
    settle();
    candidate.prepareChoice();
    while (state.KeepRunning()) {
        candidate.choose();
        settle();
    }
}

void addAll()
{
    bench::addGrowing("build/CPageListWidget", build<PagedList>);
    bench::addGrowing("build/QListWidget", build<StockList>);
    bench::addGrowing("build/CComboBox", build<PagedCombo>);
    bench::addGrowing("build/QComboBox", build<StockCombo>);
    bench::addGrowing("open/CPageListWidget", open<PagedList>);
    bench::addGrowing("open/QListWidget", open<StockList>);
    bench::addGrowing("open/CComboBox", open<PagedCombo>);
    bench::addGrowing("open/QComboBox", open<StockCombo>);
    bench::addGrowing("turnPage/CPageListWidget", turnPage<PagedList>);
    bench::addGrowing("turnPage/QListWidget", turnPage<StockList>);
    bench::addGrowing("paint/CPageListWidget", paint<PagedList>);
    bench::addGrowing("paint/QListWidget", paint<StockList>);
    bench::addGrowing("restrict/CPageListWidget", restrict<PagedList>);
    bench::addGrowing("restrict/QListWidget", restrict<StockList>);
    bench::addGrowing("restrict/CComboBox", restrict<PagedCombo>);
    bench::addGrowing("restrict/QComboBox", restrict<StockCombo>);
    bench::addGrowing("choose/CPageListWidget", choose<PagedList>);
    bench::addGrowing("choose/QListWidget", choose<StockList>);
    bench::addGrowing("choose/CComboBox", choose<PagedCombo>);
    bench::addGrowing("choose/QComboBox", choose<StockCombo>);
}

} // namespace

int main(int argc, char** argv)
{
    if (qgetenv("QT_QPA_PLATFORM").isEmpty())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    addAll();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
