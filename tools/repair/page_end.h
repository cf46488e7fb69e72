#pragma once

#include "repair/xml_tree.h"

#include <QList>
#include <QString>

#include <optional>

namespace repair {

class Document;

// A page of a text document shows objects in rows, one below the other. Where its last editor left
// no breaks, the heights of the rows decide what is on the next page; they are known after the
// import.

/// Whether the object is a row of paragraphs, which may continue on the next page.
inline const QString FlowsAttribute = QLatin1String("labelport:flows");
/// Of an object with a place on the page: the row that follows it, or its mark in a text.
inline const QString FromRowAttribute = QLatin1String("labelport:from-row");
inline const QString FromTextAttribute = QLatin1String("labelport:from-text");
/// Of a paragraph: lines that stay together at its start and end, and whether it stays with the
/// next one.
inline const QString OrphansAttribute = QLatin1String("labelport:orphans");
inline const QString WidowsAttribute = QLatin1String("labelport:widows");
inline const QString KeepAttribute = QLatin1String("labelport:keep");

/// Of a cell: the number of its table, and whether its row is repeated on each page of the table.
inline const QString TableAttribute = QLatin1String("labelport:table");
inline const QString HeaderAttribute = QLatin1String("labelport:header");

/// Where a page is full: before a row, or between two lines of one.
struct PageEnd
{
    int order = 0;              ///< draw:z-index of an object in the row
    int paragraph = -1;         ///< of its text; -1 if the whole row is on the next page
    int line = 0;               ///< of the paragraph: the first one on the next page
    QList<int> lineStarts = {}; ///< of the paragraph, in characters
    int paragraphCount = 0;     ///< of the text
};

/// Takes what is behind its end out of a rewritten page. A page keeps at least a line.
///
/// @return rewritten objects; none if they would show nothing
[[nodiscard]] Node::Children takeRest(Document& document, const PageEnd& end);

/// Where a page has more characters than any page has room for.
[[nodiscard]] std::optional<PageEnd> endOfCharacters(const Document& document);

/// Puts the rest of the page before on a rewritten page, before its own text.
void putRest(Document& document, Node::Children rest);

/// Counts the rows of a page on from those of the rest that is put on it.
void countRowsFrom(const Node::Children& rest, Node& page);

} // namespace repair
