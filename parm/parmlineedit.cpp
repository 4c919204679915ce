#include "parm/parmlineedit.h"

#include "parm/parmpattern_p.h"
#include "style/widgetstyle.h"
#include "widgets/lineedit.h"

#include <QHBoxLayout>
#include <QResizeEvent>

/// The name on grey and a line edit with the text \a value, styled by the style file's entry
/// "CParmLineEdit".
CParmLineEdit::CParmLineEdit(const QString& name, const QString& value, QWidget* parent)
    : CWidget(parent), m_nameLabel(nullptr), m_lineEdit(nullptr), m_proportion(Proportion1To1)
{
    QHBoxLayout* const layout = parmpattern::createLayout(this);
    m_nameLabel = parmpattern::addNameLabel(layout, name, 0);
    m_lineEdit = new CLineEdit(this);
    m_lineEdit->setTitle(name);
    m_lineEdit->setText(value);
    layout->addWidget(m_lineEdit);
    setWidgetStyle(CWidgetStyle::getWidgetStyle(QLatin1String("CParmLineEdit"), nullptr));
    connect(m_lineEdit, SIGNAL(textChanged(QString)), this, SIGNAL(textChanged(QString)));
    connect(m_lineEdit, SIGNAL(textEdited(QString)), this, SIGNAL(textEdited(QString)));
    connect(m_lineEdit, SIGNAL(editingFinished()), this, SIGNAL(editingFinished()));
}

/// The same without a name and a text.
CParmLineEdit::CParmLineEdit(QWidget* parent) : CParmLineEdit(QString(), QString(), parent)
{
}

CParmLineEdit::~CParmLineEdit()
{
}

/// The text of the name.
QString CParmLineEdit::name() const
{
    return m_nameLabel->text();
}

/// Sets the text of the name and the title of the keypad.
void CParmLineEdit::setName(const QString& name)
{
    m_nameLabel->setText(name);
    m_lineEdit->setTitle(name);
}

/// The text of the line edit.
QString CParmLineEdit::text() const
{
    return m_lineEdit->text();
}

/// Sets the text of the line edit; emits textChanged() when it was another one.
void CParmLineEdit::setText(const QString& value)
{
    m_lineEdit->setText(value);
}

/// Fixes the width, in pixels, and splits it, from now on whenever the width changes. Deliberate:
/// of two halves the name's is a pixel wider. An unknown proportion leaves the parts as they are.
void CParmLineEdit::setWidth(int width, Proportion proportion)
{
    m_proportion = proportion;
    CWidget::setWidth(width);
    parmpattern::setWidths(width, proportion, m_nameLabel, m_lineEdit,
                           proportion == Proportion1To1 ? 1 : 0);
}

/// Sets the colour of the name's background. Deliberate: FieldValue does nothing, as the line
/// edit's colours are its own.
void CParmLineEdit::setBackgroundColor(const QColor& color, FieldFlag flag)
{
    if (flag != FieldValue)
        m_nameLabel->setBackgroundColor(color);
}

/// Sets the colour of the name's text. Deliberate: FieldValue does nothing, as the line edit's
/// colours are its own.
void CParmLineEdit::setTextColor(const QColor& color, FieldFlag flag)
{
    if (flag != FieldValue)
        m_nameLabel->setTextColor(color);
}

/// Styles the name by the FieldName entry of \a style, with font and colours; the FieldValue entry
/// gives the line edit its font. Deliberate: the FieldAll entry is ignored.
void CParmLineEdit::setWidgetStyle(WidgetStyle style)
{
    parmpattern::applyStyle(this, style, &m_style, [this](const Style& entry) {
        parmpattern::stylePart(m_nameLabel, m_lineEdit, entry);
    });
}

/// Sets the bounds of what the keypad accepts; there are none by default.
void CParmLineEdit::setRange(int min, int max)
{
    m_lineEdit->setRange(min, max);
}

/// Whether the keypad has a range, as it has from the first setRange() on.
bool CParmLineEdit::isRangeEnabled() const
{
    return m_lineEdit->isRangeEnabled();
}

/// Sets whether the keypad has a range. The bounds stay as they are.
void CParmLineEdit::setRangeEnabled(bool enabled)
{
    m_lineEdit->setRangeEnabled(enabled);
}

/// The lowest number of the range, 0 by default.
int CParmLineEdit::minimum() const
{
    return m_lineEdit->minimum();
}

/// Gives the keypad a range from \a min to the highest number that it has.
void CParmLineEdit::setMinimum(int min)
{
    m_lineEdit->setMinimum(min);
}

/// The highest number of the range, 0 by default.
int CParmLineEdit::maximum() const
{
    return m_lineEdit->maximum();
}

/// Gives the keypad a range from the lowest number that it has to \a max.
void CParmLineEdit::setMaximum(int max)
{
    m_lineEdit->setMaximum(max);
}

/// The kind of keypad, by default the general one.
CKeyPadFactory::KeyPadType CParmLineEdit::skpType() const
{
    return m_lineEdit->skpType();
}

/// Sets the kind of keypad. An unknown one becomes the general keypad.
void CParmLineEdit::setSKPType(CKeyPadFactory::KeyPadType type)
{
    m_lineEdit->setSKPType(type);
}

/// Whether a touch opens the keypad; true by default.
bool CParmLineEdit::isSKPActive() const
{
    return m_lineEdit->isSKPActive();
}

/// Sets whether a touch opens the keypad.
void CParmLineEdit::setSKPActive(bool active)
{
    m_lineEdit->setSKPActive(active);
}

/// Whether a keyboard cannot change the text; false by default.
bool CParmLineEdit::isReadOnly() const
{
    return m_lineEdit->isReadOnly();
}

/// Sets whether a keyboard cannot change the text; a keypad can in any case.
void CParmLineEdit::setReadOnly(bool readOnly)
{
    m_lineEdit->setReadOnly(readOnly);
}

/// Whether the line edit is enabled, as it is by default.
bool CParmLineEdit::isValueEnabled() const
{
    return m_lineEdit->isEnabledTo(this);
}

/// Enables or disables the line edit; the name stays enabled.
void CParmLineEdit::setEnable(bool enabled)
{
    m_lineEdit->setEnabled(enabled);
}

/// Splits the new width in the proportion of the last setWidth().
void CParmLineEdit::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    setWidth(event->size().width(), m_proportion);
}

CParmField::Proportion CParmLineEdit::proportion() const
{
    return static_cast<CParmField::Proportion>(m_proportion);
}

void CParmLineEdit::applyProportion(CParmField::Proportion proportion)
{
    setWidth(width(), static_cast<Proportion>(proportion));
}

void CParmLineEdit::applyWidth(int width)
{
    setWidth(width, m_proportion);
}

QColor CParmLineEdit::nameTextColor() const
{
    return m_nameLabel->textColor();
}

void CParmLineEdit::applyNameTextColor(const QColor& color)
{
    setTextColor(color, FieldName);
}

QColor CParmLineEdit::nameBackgroundColor() const
{
    return m_nameLabel->getBackgroundColor();
}

void CParmLineEdit::applyNameBackgroundColor(const QColor& color)
{
    setBackgroundColor(color, FieldName);
}
