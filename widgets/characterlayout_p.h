#ifndef CWIDGET_WIDGETS_CHARACTERLAYOUT_P_H
#define CWIDGET_WIDGETS_CHARACTERLAYOUT_P_H

#include "widgets/celltext_p.h"

#include <QFontMetrics>
#include <QHash>
#include <QRect>
#include <QString>

class QPainter;

/// Draws a text character by character in lines of equal height, from the top of an area downwards.
/// A layout ends with the text, or when its next line would start below the area.
class CharacterLayout
{
public:
    CharacterLayout(QPainter* painter, const QRect& area, int lineHeight);

    void drawCharWrapped(const QString& text);
    void drawWordWrapped(const QString& text);

private:
    bool fits(int width) const;
    bool startLine();
    int widthOf(QChar ch);
    void draw(QChar ch);
    int widthOfWordAfter(const QString& text, int separator);
    int lookBack(const QString& text, int from);

    CellText m_text;
    QFontMetrics m_metrics;
    QRect m_area;
    int m_lineHeight;
    int m_x;
    int m_y;
    int m_lineWidth;
    QHash<QString, int> m_wordWidths;
};

#endif
