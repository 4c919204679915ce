#ifndef CWIDGET_STYLE_TOOL_FINDING_H
#define CWIDGET_STYLE_TOOL_FINDING_H

#include <QList>
#include <QString>

/// Something in a style file that does not reach the widgets as it is written.
struct Finding {
    enum Severity {
        Warning, ///< a default stands in for what is left out, or nothing uses what is written
        Error    ///< what is written is refused, skipped or replaced by a default
    };

    Finding(int foundLine, int foundColumn, Severity foundSeverity, const char* foundId,
            const QString& foundText)
        : line(foundLine),
          column(foundColumn),
          severity(foundSeverity),
          id(foundId),
          text(foundText)
    {
    }

    int line;   ///< from 1; 0 when the finding is about the file as a whole
    int column; ///< from 1, in characters
    Severity severity;
    const char* id; ///< the kind of finding, for programs: never translated or reworded
    QString text;
};

typedef QList<Finding> Findings;

#endif
