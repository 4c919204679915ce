#ifndef CWIDGET_STYLE_TOOL_XMLTEXT_H
#define CWIDGET_STYLE_TOOL_XMLTEXT_H

#include <QByteArray>
#include <QString>

namespace xmltext
{

/// Why the library refuses to read \a content at all, however well-formed it is; empty when it does
/// not.
QString refusal(const QByteArray& content);

/// \a content as text, in the encoding that it declares or begins with.
QString decoded(const QByteArray& content);

} // namespace xmltext

#endif
