#ifndef CWIDGET_STYLE_TOOL_SAMPLES_H
#define CWIDGET_STYLE_TOOL_SAMPLES_H

#include <QStringList>
#include <QWidget>

/// One widget of each class of the library, with something to show.
namespace samples
{

/// The names of the classes.
QStringList names();

/// A new widget of the class \a name, or null when that is no class of the library. The caller owns
/// it.
QWidget* create(const QString& name);

} // namespace samples

#endif
