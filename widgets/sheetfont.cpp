#include "widgets/sheetfont_p.h"

#include "style/qtcompat.h"

#include <QApplication>
#include <QFont>
#include <QWidget>

namespace sheetfont
{

/// Whether \a sheet, and no other one, applies to \a widget, which was not polished yet: to take
/// it off and put it on again then leaves no trace.
bool isStyledBy(const QWidget* widget, const char* sheet)
{
    if (widget->testAttribute(Qt::WA_WState_Polished) ||
        widget->styleSheet() != QLatin1String(sheet))
        return false;
    for (const QWidget* above = widget->parentWidget(); above; above = above->parentWidget()) {
        if (!above->styleSheet().isEmpty())
            return false;
    }
    return qApp->styleSheet().isEmpty();
}

/// Whether \a widget was given \a font already, with the same attributes set in it. Not where it
/// has dynamic properties: Qt keeps there what a font was before a sheet.
bool hasFont(const QWidget* widget, const QFont& font)
{
    const QFont present = widget->font();
    const QFont other; // gives both the attributes that are not set
    return widget->dynamicPropertyNames().isEmpty() &&
           qtcompat::setAttributes(font) == qtcompat::setAttributes(present) &&
           font.resolve(other) == present.resolve(other);
}

} // namespace sheetfont
