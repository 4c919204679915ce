#ifndef CWIDGET_STYLE_TOOL_STYLEREADERS_H
#define CWIDGET_STYLE_TOOL_STYLEREADERS_H

#include "style/style.h"

#include <QStringList>

/// What the classes of the library read of the style file. This is the only place that says so.
namespace stylereaders
{

/// Parts of an entry, to be or-ed.
enum Part {
    Nothing = 0,
    Font = 1,
    Foreground = 2,
    Background = 4,
    All = Font | Foreground | Background
};

/// When a class takes the entry of its name.
enum Moment {
    WhenConstructed, ///< in its constructor
    WhenUpdated      ///< with CWidget::updateWidgetStyle() only
};

struct Reader {
    const char* name;
    Moment moment;
    int parts[3]; ///< by Style::Field
};

/// The class called \a name, compared exactly, or null when no class reads that entry.
const Reader* find(const QString& name);

/// The names of all entries that classes read.
QStringList names();

/// What \a reader takes of \a field, as or-ed parts.
int partsOf(const Reader& reader, Style::Field field);

/// The element of \a field in a style file.
QString elementOf(Style::Field field);

/// The elements of the fields of which \a reader takes something.
QStringList fieldsOf(const Reader& reader);

} // namespace stylereaders

#endif
