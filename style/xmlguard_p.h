#ifndef CWIDGET_STYLE_XMLGUARD_P_H
#define CWIDGET_STYLE_XMLGUARD_P_H

#include <QString>

/// Finds out what a document tree of a text would cost, before one is built.
///
/// Parsers of trees go down level by level on the stack, and put in the entities that a document
/// declares; a small file can exhaust stack and memory that way. Whether a text is XML at all is
/// not asked here: that is for the tree's own parser to say. Where such parsers may read a text in
/// more than one way, the dearest is assumed.
namespace xmlguard
{

/// A style file needs five levels.
const int maximumDepth = 5000;

/// What all uses of entities together may give, and what a single entity may, in characters.
const qint64 maximumExpansion = Q_INT64_C(4) * 1024 * 1024;

struct Cost {
    qint64 depth;     ///< levels of elements, or of parentheses in the document type
    qint64 expansion; ///< characters that come of entities and of attributes left at their default
};

Cost cost(const QString& text);
bool isHarmless(const QString& text);

} // namespace xmlguard

#endif
