#include "report.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace
{

const char* nameOf(Finding::Severity severity)
{
    return severity == Finding::Error ? "error" : "warning";
}

QString placeOf(const Finding& finding)
{
    return finding.line > 0 ? QString::fromLatin1(":%1:%2").arg(finding.line).arg(finding.column)
                            : QString();
}

} // namespace

namespace report
{

QByteArray asText(const QString& file, const Findings& findings)
{
    QString lines;
    for (int i = 0; i < findings.size(); ++i) {
        const Finding& finding = findings.at(i);
        lines += file + placeOf(finding) + QLatin1String(": ") +
                 QLatin1String(nameOf(finding.severity)) + QLatin1String(": ") + finding.text +
                 QLatin1Char('\n');
    }
    return lines.toLocal8Bit();
}

void addJson(QByteArray* objects, const QString& file, const Findings& findings)
{
    for (int i = 0; i < findings.size(); ++i) {
        const Finding& finding = findings.at(i);
        QJsonObject object;
        object.insert(QLatin1String("file"), file);
        object.insert(QLatin1String("line"), finding.line);
        object.insert(QLatin1String("column"), finding.column);
        object.insert(QLatin1String("severity"), QLatin1String(nameOf(finding.severity)));
        object.insert(QLatin1String("id"), QLatin1String(finding.id));
        object.insert(QLatin1String("text"), finding.text);
        *objects += objects->isEmpty() ? "\n  " : ",\n  ";
        *objects += QJsonDocument(object).toJson(QJsonDocument::Compact);
    }
}

QByteArray jsonDocument(const QByteArray& objects)
{
    return objects.isEmpty() ? QByteArray("[]\n") : '[' + objects + "\n]\n";
}

} // namespace report
