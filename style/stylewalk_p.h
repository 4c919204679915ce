#ifndef CWIDGET_STYLE_STYLEWALK_P_H
#define CWIDGET_STYLE_STYLEWALK_P_H

#include "style/style.h"

namespace stylewalk
{

/// Hands every entry of \a style to \a visit, in order, unless automatic styling is off.
template <typename Visitor>
void walk(bool autoStyle, const WidgetStyle& style, Visitor visit)
{
    if (!autoStyle)
        return;
    for (int i = 0; i < style.styles.size(); ++i)
        visit(style.styles.at(i));
}

/// Styles a control of a single part: the font of the last FieldAll entry, and nothing else.
/// Calls the setFont() of the static type of \a widget, which may hide QWidget's.
template <typename Widget>
void setFont(Widget* widget, bool autoStyle, const WidgetStyle& style)
{
    walk(autoStyle, style, [widget](const Style& entry) {
        if (entry.field == Style::FieldAll)
            widget->setFont(entry.font);
    });
}

} // namespace stylewalk

#endif
