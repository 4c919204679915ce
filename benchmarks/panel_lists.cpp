// A list of 10,000 entries that is on screen.

#include "bench.h"

#include "pages/pagebar.h"
#include "pages/pagelistwidget.h"
#include "pages/pagelistwidgetitem.h"
#include "widgets/pushbutton.h"

#include <QListWidget>
#include <QScrollBar>
#include <QStringList>

namespace
{

const int entryCount = 10000;
const QPoint inRow(5, 5);

QStringList entries()
{
    QStringList texts;
    for (int i = 0; i < entryCount; ++i)
        texts.append(QString::fromLatin1("item %1").arg(i));
    return texts;
}

class OurList
{
public:
    OurList()
    {
        m_list.addItems(entries());
        open();
        m_arrow = m_list.findChild<CPageBar*>()->findChildren<CPushButton*>().at(1);
        const QList<CPageListWidgetItem*> rows = m_list.findChildren<CPageListWidgetItem*>();
        for (int i = 0; i < rows.size(); ++i) {
            if (rows.at(i)->isVisible())
                m_rows.append(rows.at(i));
        }
    }

    void open()
    {
        m_list.show(entryCount / 2);
    }

    void close()
    {
        m_list.hide();
    }

    void turnPage()
    {
        bench::press(m_arrow, inRow);
        bench::release(m_arrow, inRow);
    }

    void choose(int number)
    {
        CPageListWidgetItem* row = m_rows.at(number % m_rows.size());
        bench::press(row, inRow);
        bench::release(row, inRow);
    }

private:
    CPageListWidget m_list;
    CPushButton* m_arrow;
    QList<CPageListWidgetItem*> m_rows;
};

class StockList
{
public:
    StockList()
    {
        m_list.setWindowFlags(Qt::Popup);
        m_list.setFixedSize(220, 238);
        m_list.addItems(entries());
        open();
    }

    void open()
    {
        m_list.show();
        m_list.setCurrentRow(entryCount / 2);
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

    void choose(int number)
    {
        const QPoint point(5, 10 + 28 * (number % 5));
        bench::press(m_list.viewport(), point);
        bench::release(m_list.viewport(), point);
    }

private:
    QListWidget m_list;
};

template <typename List>
void turnPage(benchmark::State& state)
{
    List list;
    bench::settle();
    while (state.KeepRunning()) {
        list.turnPage();
        bench::settle();
    }
}

template <typename List>
void choose(benchmark::State& state)
{
    List list;
    bench::settle();
    int number = 0;
    while (state.KeepRunning()) {
        list.choose(++number);
        bench::settle();
    }
}

template <typename List>
void openAgain(benchmark::State& state)
{
    List list;
    bench::settle();
    while (state.KeepRunning()) {
        state.PauseTiming();
        list.close();
        bench::settle();
        state.ResumeTiming();
        list.open();
        bench::settle();
    }
}

} // namespace

void bench::addLists()
{
    add("list of 10,000, page turn", "stock", turnPage<StockList>);
    add("list of 10,000, page turn", "ours", turnPage<OurList>);
    add("list of 10,000, select", "stock", choose<StockList>);
    add("list of 10,000, select", "ours", choose<OurList>);
    add("list of 10,000, open again", "stock", openAgain<StockList>);
    add("list of 10,000, open again", "ours", openAgain<OurList>);
}
