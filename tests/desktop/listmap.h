#ifndef CWIDGET_TESTS_DESKTOP_LISTMAP_H
#define CWIDGET_TESTS_DESKTOP_LISTMAP_H

#include <QPoint>

/// Where the parts of an open list are in the panel, which it stands in the middle of.
namespace listmap
{

const QPoint panelCenter(399, 299);
const QPoint origin = panelCenter - QPoint(220 / 2, 238 / 2);

/// The middle of a row of the page, from 0, of a list with a page bar.
inline QPoint row(int number)
{
    return origin + QPoint(60, 60 + 2 + number * 29 + 14);
}

/// The same for a list of one page, which has no page bar and is lower.
inline QPoint rowOfShortList(int number)
{
    return row(number) + QPoint(0, 15);
}

/// The arrow that turns to the next page. The bar is 150 pixels of content in the middle of 220.
const QPoint nextPage = origin + QPoint(220 / 2 + 50 + 13, 208 + 15);

} // namespace listmap

#endif
