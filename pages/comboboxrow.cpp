#include "pages/comboboxrow_p.h"

#include "pages/combobox.h"
#include "style/qtcompat.h"

/// Follows \a box, which must outlive it.
ComboBoxRow::ComboBoxRow(CComboBox* box) : m_box(box), m_pendingTexts(0), m_hold(nullptr)
{
    connect(box, SIGNAL(currentIndexChanged(int)), this, SLOT(takeNumber(int)));
    connect(box, qtcompat::comboRowTextSignal(), this, SLOT(takeText(QString)));
}

/// Has the texts to come appended to \a texts.
ComboBoxRow::Hold::Hold(ComboBoxRow* row, QStringList* texts)
    : m_row(row), m_texts(texts), m_outer(row->m_hold), m_pendingTexts(row->m_pendingTexts)
{
    row->m_hold = this;
}

ComboBoxRow::Hold::~Hold()
{
    m_row->m_hold = m_outer;
    m_row->m_pendingTexts = m_pendingTexts; // one may be missing where signals were blocked
}

/// The text of the row with this number is to come, after those of changes made meanwhile.
void ComboBoxRow::takeNumber(int number)
{
    ++m_pendingTexts;
    if (!qtcompat::comboTellsRowText(m_box))
        takeText(m_box->itemText(number));
}

/// The text belongs to the innermost change whose text is still to come. Without one, the row was
/// only renamed.
void ComboBoxRow::takeText(const QString& text)
{
    if (m_pendingTexts == 0)
        return;
    --m_pendingTexts;
    const bool waits = m_hold && m_hold->m_pendingTexts == m_pendingTexts;
    m_box->followRow(text, waits ? m_hold->m_texts : nullptr);
}
