#include "parm/parmlabel.h"

#include "parm/parmpattern_p.h"
#include "style/widgetstyle.h"
#include "widgets/metrics_p.h"

#include <QHBoxLayout>

/// The name on grey and the blue value on white in a grey frame, both styled by the style file's
/// entry "CParmLabel".
CParmLabel::CParmLabel(const QString& name, const QString& value, QWidget* parent)
    : CWidget(parent), m_nameLabel(nullptr), m_valueLabel(nullptr)
{
    QHBoxLayout* const layout = parmpattern::createLayout(this);
    m_nameLabel = parmpattern::addNameLabel(layout, name, 1);
    m_valueLabel = new CLabel(this);
    m_valueLabel->setBorderWidth(1);
    m_valueLabel->setBorderColor(QColor(metrics::thinFrameColor));
    m_valueLabel->setText(value);
    m_valueLabel->setBackgroundColor(Qt::white);
    m_valueLabel->setTextColor(Qt::blue);
    layout->addWidget(m_valueLabel);
    setWidgetStyle(CWidgetStyle::getWidgetStyle(QLatin1String("CParmLabel"), nullptr));
    setBorderVisible(false, FieldName);
}

/// The same without a name and a value.
CParmLabel::CParmLabel(QWidget* parent) : CParmLabel(QString(), QString(), parent)
{
}

CParmLabel::~CParmLabel()
{
}

/// The text of the name.
QString CParmLabel::name() const
{
    return m_nameLabel->text();
}

/// Sets the text of the name.
void CParmLabel::setName(const QString& name)
{
    m_nameLabel->setText(name);
}

/// The text of the value.
QString CParmLabel::text() const
{
    return m_valueLabel->text();
}

/// Sets the text of the value.
void CParmLabel::setText(const QString& value)
{
    m_valueLabel->setText(value);
}

/// Fixes the width, in pixels, and splits it. An unknown proportion leaves the parts as they are.
void CParmLabel::setWidth(int width, Proportion proportion)
{
    CWidget::setWidth(width);
    parmpattern::setWidths(width, proportion, m_nameLabel, m_valueLabel);
}

/// Fixes the height of the field and of both parts, in pixels. A negative height is ignored.
void CParmLabel::setHeight(int height)
{
    if (height < 0)
        return;
    CWidget::setHeight(height);
    m_nameLabel->setHeight(height);
    m_valueLabel->setHeight(height);
}

/// Sets the font of the name. Deliberate: the value keeps its own.
void CParmLabel::setFont(const QFont& font)
{
    m_nameLabel->setFont(font);
}

/// How the value is wrapped; by default it is not.
CLabel::WrapMode CParmLabel::wrapMode() const
{
    return m_valueLabel->wrapMode();
}

/// Sets how the value is wrapped; the name is not.
void CParmLabel::setWrapMode(CLabel::WrapMode mode)
{
    m_valueLabel->setWrapMode(mode);
}

/// Calls \a action with the labels that \a flag means: the value's for FieldValue, both for
/// FieldAll, and the name's for FieldName and anything else.
template <typename Action>
void CParmLabel::forLabels(FieldFlag flag, Action action)
{
    if (flag != FieldValue)
        action(m_nameLabel);
    if (flag == FieldValue || flag == FieldAll)
        action(m_valueLabel);
}

/// Sets the background colour of the parts that \a flag means.
void CParmLabel::setBackgroundColor(const QColor& color, FieldFlag flag)
{
    forLabels(flag, [&](CLabel* label) { label->setBackgroundColor(color); });
}

/// Sets the colour of the texts of the parts that \a flag means.
void CParmLabel::setTextColor(const QColor& color, FieldFlag flag)
{
    forLabels(flag, [&](CLabel* label) { label->setTextColor(color); });
}

/// Sets whether the parts that \a flag means have a border of a pixel.
void CParmLabel::setBorderVisible(bool visible, FieldFlag flag)
{
    forLabels(flag, [&](CLabel* label) { label->setBorderWidth(visible ? 1 : 0); });
}

/// Places the texts of the parts that \a flag means.
void CParmLabel::setAlignment(Qt::Alignment alignment, FieldFlag flag)
{
    forLabels(flag, [&](CLabel* label) { label->setAlignment(alignment); });
}

/// Styles the name by the FieldName entry of \a style, and both parts by the FieldAll entry, with
/// font and colours; the FieldValue entry gives the value its font only.
void CParmLabel::setWidgetStyle(WidgetStyle style)
{
    parmpattern::applyStyle(this, style, &m_style, [this](const Style& entry) {
        parmpattern::stylePart(m_nameLabel, m_valueLabel, entry);
        if (entry.field == Style::FieldAll)
            forLabels(FieldAll, [&](CLabel* label) { parmpattern::styleLabel(label, entry); });
    });
}

/// The proportion that the parts have at the present width; Proportion1To1 when they have none.
CParmField::Proportion CParmLabel::proportion() const
{
    return static_cast<CParmField::Proportion>(
        parmpattern::proportionOf(width(), m_nameLabel, m_valueLabel));
}

void CParmLabel::applyProportion(CParmField::Proportion proportion)
{
    setWidth(width(), static_cast<Proportion>(proportion));
}

void CParmLabel::applyWidth(int width)
{
    setWidth(width, static_cast<Proportion>(proportion()));
}

QFont CParmLabel::nameFont() const
{
    return m_nameLabel->font();
}

QColor CParmLabel::nameTextColor() const
{
    return m_nameLabel->textColor();
}

void CParmLabel::applyNameTextColor(const QColor& color)
{
    setTextColor(color, FieldName);
}

QColor CParmLabel::nameBackgroundColor() const
{
    return m_nameLabel->getBackgroundColor();
}

void CParmLabel::applyNameBackgroundColor(const QColor& color)
{
    setBackgroundColor(color, FieldName);
}

Qt::Alignment CParmLabel::nameAlignment() const
{
    return m_nameLabel->alignment();
}

void CParmLabel::applyNameAlignment(Qt::Alignment alignment)
{
    setAlignment(alignment, FieldName);
}

bool CParmLabel::nameBorderVisible() const
{
    return m_nameLabel->getBorderWidth() > 0;
}

void CParmLabel::applyNameBorderVisible(bool visible)
{
    setBorderVisible(visible, FieldName);
}

QColor CParmLabel::valueTextColor() const
{
    return m_valueLabel->textColor();
}

void CParmLabel::applyValueTextColor(const QColor& color)
{
    setTextColor(color, FieldValue);
}

QColor CParmLabel::valueBackgroundColor() const
{
    return m_valueLabel->getBackgroundColor();
}

void CParmLabel::applyValueBackgroundColor(const QColor& color)
{
    setBackgroundColor(color, FieldValue);
}

Qt::Alignment CParmLabel::valueAlignment() const
{
    return m_valueLabel->alignment();
}

void CParmLabel::applyValueAlignment(Qt::Alignment alignment)
{
    setAlignment(alignment, FieldValue);
}

bool CParmLabel::valueBorderVisible() const
{
    return m_valueLabel->getBorderWidth() > 0;
}

void CParmLabel::applyValueBorderVisible(bool visible)
{
    setBorderVisible(visible, FieldValue);
}
