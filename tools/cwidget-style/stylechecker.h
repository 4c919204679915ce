#ifndef CWIDGET_STYLE_TOOL_STYLECHECKER_H
#define CWIDGET_STYLE_TOOL_STYLECHECKER_H

#include "finding.h"
#include "positions.h"
#include "stylereaders.h"

#include <QHash>
#include <QSet>
#include <QXmlStreamReader>

/// Reads a style file as CWidgetStyle::initialize() does, and notes everything on the way that does
/// not reach the widgets as it is written.
class StyleChecker
{
public:
    enum Fonts {
        CheckFonts,
        IgnoreFonts
    };

    /// Whether font families that this machine lacks are findings.
    explicit StyleChecker(Fonts fonts);

    /// What is to be said about the style file with this \a content, by line and column.
    Findings check(const QByteArray& content);

private:
    /// What the elements of a style file are called, in this order from the root down.
    enum Level {
        Root,
        Widget,
        Field,
        Leaf
    };

    bool isRefused(const QString& text);
    void readDocument(const QString& text);
    void readRoot();
    void readWidget();
    void readField(Style::Field field);
    void readFont(Style::Field field);
    void readColor(Style::Field field);

    bool nextChild(const QString& parent);
    bool isFirst(QSet<QString>* seen, const QString& element);
    void skipUnknown(const QStringList& known);
    void checkAttributes(const QStringList& known);
    void checkType();
    void checkName();
    void checkFamily();
    void checkSize();
    void checkBold();
    void checkColor(Style::Field field, const char* name, stylereaders::Part part);
    void checkFieldIsRead(Style::Field field);
    void checkTree(const QByteArray& content);

    QString element() const;
    bool has(const char* attribute) const;
    QString value(const char* attribute) const;
    bool takes(Style::Field field, int part) const;

    void add(int offset, Finding::Severity severity, const char* id, const QString& text);
    void addToTag(Finding::Severity severity, const char* id, const QString& text);
    void addToAttribute(Finding::Severity severity, const char* id, const char* attribute,
                        const QString& text);

    Fonts m_fonts;
    Findings m_findings;
    Positions m_positions;
    QXmlStreamReader m_reader;
    int m_tag;                     ///< where the tag of the current element begins
    QHash<QString, int> m_widgets; ///< the line of each name that was seen
    QSet<QString> m_families;      ///< missing ones that were named
    QString m_widgetName;
    const stylereaders::Reader* m_widget; ///< null for a name that no class reads
};

#endif
