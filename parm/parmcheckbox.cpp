#include "parm/parmcheckbox.h"

#include "parm/parmpattern_p.h"
#include "style/widgetstyle.h"
#include "widgets/checkbox.h"

#include <QHBoxLayout>

namespace
{

const int rightMargin = 5;
const int nameSize = 9; // pixels, until a style says otherwise

} // namespace

/// The name on grey and an unchecked box with the caption \a text, styled by the style file's entry
/// "CParmCheckBox".
CParmCheckBox::CParmCheckBox(const QString& name, const QString& text, QWidget* parent)
    : CWidget(parent), m_nameLabel(nullptr), m_checkBox(nullptr)
{
    QHBoxLayout* const layout = parmpattern::createLayout(this, rightMargin);
    m_nameLabel = parmpattern::addNameLabel(layout, name, 0);
    m_nameLabel->setTextSize(nameSize);
    m_checkBox = new CCheckBox(text, this);
    layout->addWidget(m_checkBox);
    setWidgetStyle(CWidgetStyle::getWidgetStyle(QLatin1String("CParmCheckBox"), nullptr));
    connect(m_checkBox, SIGNAL(stateChanged(int)), this, SIGNAL(stateChanged(int)));
}

/// The same without a name and a caption.
CParmCheckBox::CParmCheckBox(QWidget* parent) : CParmCheckBox(QString(), QString(), parent)
{
}

CParmCheckBox::~CParmCheckBox()
{
}

/// The text of the name.
QString CParmCheckBox::name() const
{
    return m_nameLabel->text();
}

/// Sets the text of the name.
void CParmCheckBox::setName(const QString& name)
{
    m_nameLabel->setText(name);
}

/// The caption of the check box.
QString CParmCheckBox::text() const
{
    return m_checkBox->text();
}

/// Sets the caption of the check box.
void CParmCheckBox::setText(const QString& text)
{
    m_checkBox->setText(text);
}

/// Whether the check box is ticked; false by default.
bool CParmCheckBox::isChecked() const
{
    return m_checkBox->isChecked();
}

/// Ticks the check box or not, without a signal, as CCheckBox::setChecked().
void CParmCheckBox::setChecked(bool checked)
{
    m_checkBox->setChecked(checked);
}

/// The state of the check box, Qt::Unchecked by default.
Qt::CheckState CParmCheckBox::checkState() const
{
    return m_checkBox->checkState();
}

/// Sets the state of the check box; emits stateChanged() when it was another one.
void CParmCheckBox::setCheckState(Qt::CheckState state)
{
    m_checkBox->setCheckState(state);
}

/// Whether there is a frame around the check box and its caption; true by default.
bool CParmCheckBox::isBorderVisible() const
{
    return m_checkBox->isBorderVisible();
}

/// Sets whether there is a frame around the check box and its caption.
void CParmCheckBox::setBorderVisible(bool visible)
{
    m_checkBox->setBorderVisible(visible);
}

/// Styles the name by the FieldName entry of \a style, with font and colours; the FieldValue entry
/// gives the check box its font. Deliberate: the FieldAll entry is ignored.
void CParmCheckBox::setWidgetStyle(WidgetStyle style)
{
    parmpattern::applyStyle(this, style, &m_style, [this](const Style& entry) {
        parmpattern::stylePart(m_nameLabel, static_cast<QWidget*>(m_checkBox), entry);
    });
}
