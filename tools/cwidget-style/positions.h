#ifndef CWIDGET_STYLE_TOOL_POSITIONS_H
#define CWIDGET_STYLE_TOOL_POSITIONS_H

#include <QString>
#include <QVector>

/// Finds lines, columns, tags and attributes in the text of an XML file.
class Positions
{
public:
    explicit Positions(const QString& text);

    int lineOf(int offset) const;
    int columnOf(int offset) const;

    int tagBefore(int end) const;
    int attributeIn(int tag, const QString& name) const;
    int firstCharacter(int begin) const;

private:
    QString m_text;
    QVector<int> m_lineStarts;
};

#endif
