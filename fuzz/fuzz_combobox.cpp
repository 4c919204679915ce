// A combo box in the hands of an application and a user that do anything in any order: entries
// replaced, restricted by masks, indexes and texts, the list opened, paged and touched, keys and
// wheel on the closed box.

#include "fuzzing.h"

#include "pages/combobox.h"
#include "pages/pagebar.h"
#include "pages/pagelistwidget.h"
#include "pages/pagelistwidgetitem.h"
#include "widgets/pushbutton.h"

#include <QApplication>
#include <QKeyEvent>

namespace
{

const int mostEntries = 40;
const int mostSteps = 40;
const int rowsOfAPage = 5;

class Session
{
public:
    explicit Session(FuzzedDataProvider* data)
        : m_data(data), m_list(m_box.findChild<CPageListWidget*>())
    {
        m_box.show();
    }

    void run()
    {
        fill();
        for (int i = 0; i < mostSteps && m_data->remaining_bytes() > 0; ++i) {
            step();
            check();
        }
        fuzzing::render(&m_box);
        fuzzing::render(m_list);
    }

private:
    void step()
    {
        static void (Session::*const steps[])() = {
            &Session::fill,
            &Session::restrictByMask,
            &Session::restrictByIndexes,
            &Session::restrictByTexts,
            &Session::choose,
            &Session::open,
            &Session::page,
            &Session::touchRow,
            &Session::useClosedBox,
        };
        const size_t last = sizeof steps / sizeof steps[0] - 1;
        (this->*steps[m_data->ConsumeIntegralInRange<size_t>(0, last)])();
    }

    /// In range mostly, else anywhere.
    int index()
    {
        return m_data->ConsumeBool() ? m_data->ConsumeIntegralInRange<int>(-2, mostEntries + 2)
                                     : m_data->ConsumeIntegral<int>();
    }

    QList<int> indexes()
    {
        QList<int> result;
        for (int i = m_data->ConsumeIntegralInRange<int>(0, 12); i > 0; --i)
            result.append(index());
        return result;
    }

    QString entry()
    {
        if (m_texts.isEmpty() || m_data->ConsumeBool())
            return fuzzing::text(m_data, 8);
        return m_texts.at(m_data->ConsumeIntegralInRange<int>(0, m_texts.size() - 1));
    }

    QStringList entries(int most)
    {
        QStringList result;
        for (int i = m_data->ConsumeIntegralInRange<int>(0, most); i > 0; --i)
            result.append(entry());
        return result;
    }

    void fill()
    {
        const QStringList texts = entries(mostEntries);
        m_box.addItems(texts);
        m_texts = texts;
    }

    void restrictByMask()
    {
        if (m_data->ConsumeBool())
            m_box.setVisibleItems(m_data->ConsumeIntegral<unsigned int>(),
                                  m_data->ConsumeIntegral<unsigned int>());
        else
            m_box.setVisibleItems(m_data->ConsumeIntegral<unsigned long long>(),
                                  static_cast<unsigned int>(index()));
    }

    void restrictByIndexes()
    {
        const QList<int> some = indexes();
        const int current = index();
        if (m_data->ConsumeBool()) {
            m_box.setInvisibleItems(some, current);
            return;
        }
        m_box.setVisibleItems(some, current);
        fuzzing::require(!m_box.isChanged(some, current), "what was set is set");
        fuzzing::require(m_list->visibleItemsIndex() == some, "the list offers what it was told");
    }

    void restrictByTexts()
    {
        const QStringList texts = entries(8);
        if (m_data->ConsumeBool())
            m_box.setVisibleItems(texts, index());
        else if (m_data->ConsumeBool())
            m_box.setVisibleItems(texts, entry());
        else
            m_box.setVisibleItem(entry());
    }

    void choose()
    {
        if (m_data->ConsumeBool())
            m_box.setCurrentIndex(index());
        else if (m_data->ConsumeBool())
            m_box.changeCurrentText(entry());
        else if (m_data->ConsumeBool())
            m_box.changeCurrentItem(entry());
        else
            m_box.changeCurrentItem(index());
    }

    void open()
    {
        if (m_data->ConsumeBool())
            m_box.showPopup();
        else
            m_box.hidePopup();
    }

    void page()
    {
        const QList<CPushButton*> arrows = m_list->findChildren<CPushButton*>();
        fuzzing::touch(arrows.at(m_data->ConsumeBool() ? 0 : 1));
    }

    void touchRow()
    {
        const QList<CPageListWidgetItem*> rows = m_list->findChildren<CPageListWidgetItem*>();
        for (int i = 0; i < rows.size(); ++i) {
            if (rows.at(i)->isVisible() && m_data->ConsumeBool()) {
                fuzzing::touch(rows.at(i));
                return;
            }
        }
    }

    void useClosedBox()
    {
        static const int keys[] = {Qt::Key_Up,     Qt::Key_Down, Qt::Key_Home, Qt::Key_End,
                                   Qt::Key_PageUp, Qt::Key_F4,   Qt::Key_A,    Qt::Key_Escape};
        QKeyEvent press(QEvent::KeyPress, m_data->PickValueInArray(keys), Qt::NoModifier);
        QApplication::sendEvent(&m_box, &press);
    }

    void check()
    {
        QCoreApplication::sendPostedEvents();
        const QList<CPageListWidgetItem*> rows = m_list->findChildren<CPageListWidgetItem*>();
        fuzzing::require(rows.size() == m_texts.size(), "a row for each entry");
        const int offered = m_list->visibleItemsIndex().size();
        fuzzing::require(m_list->visibleItems().size() == offered, "a text for each index");
        fuzzing::require(m_list->findChild<CPageBar*>()->count() ==
                             (offered + rowsOfAPage - 1) / rowsOfAPage,
                         "the bar counts the pages");
    }

    FuzzedDataProvider* m_data;
    CComboBox m_box;
    CPageListWidget* m_list;
    QStringList m_texts;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    FuzzedDataProvider data(bytes, size);
    Session(&data).run();
    return 0;
}
