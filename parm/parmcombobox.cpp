#include "parm/parmcombobox.h"

#include "pages/combobox.h"
#include "parm/parmpattern_p.h"
#include "style/widgetstyle.h"

#include <QHBoxLayout>
#include <QVariant>

namespace
{

// What a form chose before it had the entries.
const char wishedIndexProperty[] = "wishedIndex";

} // namespace

/// The name on grey and a combo box with the entries \a items, styled by the style file's entry
/// "CParmComboBox". Chooses the entry \a current, whatever its case; if there is none with that
/// text, the first one.
CParmComboBox::CParmComboBox(const QString& name, const QStringList& items, const QString& current,
                             QWidget* parent)
    : CWidget(parent), m_initialText(current), m_nameLabel(nullptr), m_comboBox(nullptr)
{
    QHBoxLayout* const layout = parmpattern::createLayout(this);
    m_nameLabel = parmpattern::addNameLabel(layout, name, 1);
    m_comboBox = new CComboBox(this);
    m_comboBox->setTitle(name);
    m_comboBox->addItems(items);
    if (!m_initialText.isEmpty())
        m_comboBox->setCurrentIndex(
            m_comboBox->findData(m_initialText, Qt::DisplayRole, Qt::MatchFixedString));
    layout->addWidget(m_comboBox);
    setWidgetStyle(CWidgetStyle::getWidgetStyle(QLatin1String("CParmComboBox"), nullptr));
    setBorderVisible(false, FieldName);
    connect(m_comboBox, SIGNAL(currentValueChanged(int)), this, SIGNAL(currentIndexChanged(int)));
    connect(m_comboBox, SIGNAL(currentItemActivated(int)), this, SIGNAL(activated(int)));
}

/// The same without a name and entries.
CParmComboBox::CParmComboBox(QWidget* parent)
    : CParmComboBox(QString(), QStringList(), QString(), parent)
{
}

CParmComboBox::~CParmComboBox()
{
}

/// The text of the name.
QString CParmComboBox::name() const
{
    return m_nameLabel->text();
}

/// Sets the text of the name; the list keeps its title.
void CParmComboBox::setName(const QString& name)
{
    m_nameLabel->setText(name);
}

/// All entries, offered or not.
QStringList CParmComboBox::items() const
{
    return m_comboBox->items();
}

/// Replaces the entries, as addItems(), but the chosen index stays as far as there is one: for the
/// same entries in another language.
void CParmComboBox::setItems(const QStringList& items)
{
    const QVariant wished = property(wishedIndexProperty);
    setProperty(wishedIndexProperty, QVariant());
    if (wished.isValid()) {
        m_comboBox->addItems(items);
        setCurrentIndex(wished.toInt());
    } else {
        m_comboBox->setItems(items);
    }
}

/// Replaces the entries and chooses the first one.
void CParmComboBox::addItems(const QStringList& items)
{
    m_comboBox->addItems(items);
}

/// The index of the chosen entry among all entries, offered or not.
int CParmComboBox::currentIndex() const
{
    return m_comboBox->currentIndex();
}

/// Chooses an entry; an index outside of the entries chooses the first one.
void CParmComboBox::setCurrentIndex(int index)
{
    m_comboBox->setCurrentIndex(index);
}

/// The property: forms may set it before the entries.
void CParmComboBox::applyCurrentIndex(int index)
{
    if (items().isEmpty())
        setProperty(wishedIndexProperty, index);
    else
        setCurrentIndex(index);
}

/// The text that the closed combo box shows.
QString CParmComboBox::currentText() const
{
    return m_comboBox->currentText();
}

/// Chooses an entry and offers those whose bit is set in \a mask, bit 0 for the first one. Without
/// any bit the whole field hides, name included.
void CParmComboBox::setVisibleItems(unsigned long long mask, unsigned int current)
{
    offerMasked(mask, current);
}

/// The same for the first 32 entries.
void CParmComboBox::setVisibleItems(unsigned int mask, unsigned int current)
{
    offerMasked(mask, current);
}

template <typename Mask>
void CParmComboBox::offerMasked(Mask mask, unsigned int current)
{
    setCurrentIndex(static_cast<int>(current));
    setVisible(mask != 0);
    if (mask != 0)
        m_comboBox->setVisibleItems(mask, current);
}

/// Offers the entries of the given indexes, and chooses one.
void CParmComboBox::setVisibleItems(const QList<int>& indexes, int current)
{
    m_comboBox->setVisibleItems(indexes, current);
}

/// Offers the entries of the given texts, and chooses one by its index.
void CParmComboBox::setVisibleItems(const QStringList& texts, int current)
{
    m_comboBox->setVisibleItems(texts, current);
}

/// Offers the entries of the given texts, and chooses one by its text.
void CParmComboBox::setVisibleItems(const QStringList& texts, const QString& current)
{
    m_comboBox->setVisibleItems(texts, current);
}

/// Offers a single entry, and chooses it.
void CParmComboBox::setVisibleItem(const QString& text)
{
    m_comboBox->setVisibleItem(text);
}

/// Offers all entries but those of the given indexes, and chooses one.
void CParmComboBox::setInvisibleItems(const QList<int>& indexes, int current)
{
    m_comboBox->setInvisibleItems(indexes, current);
}

/// Fixes the width, in pixels, and gives half of it to each part.
void CParmComboBox::setWidth(int width)
{
    CWidget::setWidth(width);
    parmpattern::setWidths(width, Proportion1To1, m_nameLabel, m_comboBox);
}

/// Sets the colour of the name's background. Deliberate: FieldValue does nothing, as the combo box
/// keeps its own look.
void CParmComboBox::setBackgroundColor(const QColor& color, FieldFlag flag)
{
    if (flag != FieldValue)
        m_nameLabel->setBackgroundColor(color);
}

/// Sets the colour of the name's text. Deliberate: FieldValue does nothing, as the combo box keeps
/// its own look.
void CParmComboBox::setTextColor(const QColor& color, FieldFlag flag)
{
    if (flag != FieldValue)
        m_nameLabel->setTextColor(color);
}

/// Sets whether the name has a border of one pixel. Deliberate: FieldValue does nothing, as the
/// combo box keeps its own look.
void CParmComboBox::setBorderVisible(bool visible, FieldFlag flag)
{
    if (flag != FieldValue)
        m_nameLabel->setBorderWidth(visible ? 1 : 0);
}

/// Styles the name by the FieldName entry of \a style, with font and colours; the FieldValue entry
/// gives the combo box its font. Deliberate: the FieldAll entry is ignored.
void CParmComboBox::setWidgetStyle(WidgetStyle style)
{
    parmpattern::applyStyle(this, style, &m_style, [this](const Style& entry) {
        parmpattern::stylePart(m_nameLabel, m_comboBox, entry);
    });
}

QColor CParmComboBox::nameTextColor() const
{
    return m_nameLabel->textColor();
}

void CParmComboBox::applyNameTextColor(const QColor& color)
{
    setTextColor(color, FieldName);
}

QColor CParmComboBox::nameBackgroundColor() const
{
    return m_nameLabel->getBackgroundColor();
}

void CParmComboBox::applyNameBackgroundColor(const QColor& color)
{
    setBackgroundColor(color, FieldName);
}

bool CParmComboBox::nameBorderVisible() const
{
    return m_nameLabel->getBorderWidth() > 0;
}

void CParmComboBox::applyNameBorderVisible(bool visible)
{
    setBorderVisible(visible, FieldName);
}
