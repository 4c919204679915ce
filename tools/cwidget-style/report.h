#ifndef CWIDGET_STYLE_TOOL_REPORT_H
#define CWIDGET_STYLE_TOOL_REPORT_H

#include "finding.h"

#include <QByteArray>

/// Findings as text for people and compilers' output parsers, and as JSON for programs.
namespace report
{

/// One line each: file:line:column: severity: text.
QByteArray asText(const QString& file, const Findings& findings);

/// One object of an array each, with the members file, line, column, severity, id and text.
void addJson(QByteArray* objects, const QString& file, const Findings& findings);

/// \a objects as a whole document.
QByteArray jsonDocument(const QByteArray& objects);

} // namespace report

#endif
