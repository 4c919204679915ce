#include "parm/parmpattern_p.h"

#include "style/table_p.h"
#include "style/widgetstyle.h"

#include <QHBoxLayout>

namespace
{

const int bottomMargin = 2;

// The shares of name and value, by the number of the proportion.
const struct SplitRow {
    int name;
    int value;
} splits[] = {
    // clang-format off
    {1, 1}, // Proportion1To1
    {1, 2}, // Proportion1To2
    {2, 1}, // Proportion2To1
    {1, 3}, // Proportion1To3
    {3, 1}, // Proportion3To1
    {1, 4}, // Proportion1To4
    {4, 1}, // Proportion4To1
    {1, 5}, // Proportion1To5
    {5, 1}, // Proportion5To1
    // clang-format on
};
static_assert(table::count(splits) == Proportion5To1 + 1, "each Proportion has its shares");

int share(int width, int part, const SplitRow& split)
{
    return static_cast<int>(static_cast<qint64>(part) * width / (split.name + split.value));
}

} // namespace

namespace parmpattern
{

/// Gives \a field a layout from left to right without gaps, with 2 pixels below it and
/// \a rightMargin pixels beside it. The field owns it.
QHBoxLayout* createLayout(QWidget* field, int rightMargin)
{
    QHBoxLayout* const layout = new QHBoxLayout(field);
    layout->setContentsMargins(0, 0, rightMargin, bottomMargin);
    layout->setSpacing(0);
    return layout;
}

/// Adds a label with the text \a name to \a layout. The widget of the layout owns it.
CLabel* addNameLabel(QHBoxLayout* layout, const QString& name, int borderWidth)
{
    CLabel* const label = new CLabel(layout->parentWidget());
    label->setBorderWidth(borderWidth);
    label->setBorderColor(Qt::black);
    label->setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::NameBackgroundColor));
    label->setText(name);
    layout->addWidget(label);
    return label;
}

/// Fixes the widths of \a name and \a value, in pixels, as their shares of \a width, \a name
/// getting \a nameExtra more. Shares are cut to whole pixels. An unknown proportion changes
/// nothing.
void setWidths(int width, Proportion proportion, QWidget* name, QWidget* value, int nameExtra)
{
    const SplitRow* const split = table::row(splits, proportion);
    if (!split)
        return;
    name->setFixedWidth(share(width, split->name, *split) + nameExtra);
    value->setFixedWidth(share(width, split->value, *split));
}

/// The proportion by which setWidths() gave \a name and \a value the widths that they have in a
/// field of \a width pixels; Proportion1To1 when none did.
Proportion proportionOf(int width, const QWidget* name, const QWidget* value)
{
    for (int i = 0; i < table::count(splits); ++i) {
        if (name->maximumWidth() == share(width, splits[i].name, splits[i]) &&
            value->maximumWidth() == share(width, splits[i].value, splits[i]))
            return static_cast<Proportion>(i);
    }
    return Proportion1To1;
}

/// Gives \a label the font and both colours of \a entry, invalid colours included.
void styleLabel(CLabel* label, const Style& entry)
{
    label->setFont(entry.font);
    label->setBackgroundColor(entry.background);
    label->setTextColor(entry.foreground);
}

} // namespace parmpattern
