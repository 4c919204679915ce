#ifndef CWIDGET_PARM_PARMPATTERN_P_H
#define CWIDGET_PARM_PARMPATTERN_P_H

#include "parm/parmfield.h"
#include "style/stylewalk_p.h"
#include "widgets/label.h"

class QHBoxLayout;

// What all parameter fields have in common: a name label at the left, a value control at the right.
namespace parmpattern
{

QHBoxLayout* createLayout(QWidget* field, int rightMargin = 0);
CLabel* addNameLabel(QHBoxLayout* layout, const QString& name, int borderWidth);
void setWidths(int width, Proportion proportion, QWidget* name, QWidget* value, int nameExtra = 0);
Proportion proportionOf(int width, const QWidget* name, const QWidget* value);
void styleLabel(CLabel* label, const Style& entry);

/// Styles one part: the name label by a FieldName entry, the font of \a value by a FieldValue one.
/// Calls the setFont() of the static type of \a value, which may hide QWidget's.
template <typename Control>
void stylePart(CLabel* name, Control* value, const Style& entry)
{
    if (entry.field == Style::FieldName)
        styleLabel(name, entry);
    else if (entry.field == Style::FieldValue)
        value->setFont(entry.font);
}

/// Hands every entry of \a style to \a visit and keeps a copy of it in \a kept, unless automatic
/// styling of \a field is off.
template <typename Visitor>
void applyStyle(const CWidget* field, const WidgetStyle& style, WidgetStyle* kept, Visitor visit)
{
    const bool autoStyle = field->isAutoStyleEnabled();
    if (autoStyle)
        *kept = style;
    stylewalk::walk(autoStyle, style, visit);
}

} // namespace parmpattern

#endif
