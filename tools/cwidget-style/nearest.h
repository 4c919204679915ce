#ifndef CWIDGET_STYLE_TOOL_NEAREST_H
#define CWIDGET_STYLE_TOOL_NEAREST_H

#include <QStringList>

/// The one of \a candidates that takes the fewest edits, letters of the other case being half of
/// one, to be made out of \a word; the first of several.
QString nearest(const QString& word, const QStringList& candidates);

#endif
