#pragma once

#include "repair/styles.h"
#include "repair/xml_tree.h"

#include <QRectF>

namespace repair {

class Document;
struct TextPlace;

/// A text box without padding at a place of the page.
///
/// @param graphic further properties of its style
/// @param text    of its style
[[nodiscard]] std::unique_ptr<Node> textFrame(Document& document, const QRectF& box,
                                              const Properties& graphic,
                                              const Properties& text = {});

/// The least height of a row in points, from the properties that its style states.
[[nodiscard]] double leastHeight(const Properties& row);

/// The cells of a table as text boxes, row by row; nested tables become text.
///
/// @param place of the table
/// @param row   counted on for each row of the table
/// @param above points between the first row and what is above it
[[nodiscard]] Node::Children tableCells(Document& document, Node& table, const TextPlace& place,
                                        int& row, double above = 0.0);

/// Columns of one table, and rows of it: what fits on a page and more.
inline constexpr int MaximumColumns = 256;
inline constexpr int MaximumRows = 2000;
/// Groups of rows within one another, of charts and spreadsheets.
inline constexpr int MaximumRowGroupDepth = 20;

/// A number of repetitions, at least 1.
[[nodiscard]] int repeats(const Node& node, QStringView attribute, int most);
/// Moves the paragraphs of a cell, those of a table inside it included.
void takeParagraphs(Node& parent, Node& target, int depth);

} // namespace repair
