#pragma once

#include "repair/styles.h"
#include "repair/xml_tree.h"

#include <QRectF>

namespace repair {

class Document;

/// A text box without padding at a place of the page.
///
/// @param graphic further properties of its style
[[nodiscard]] std::unique_ptr<Node> textFrame(Document& document, const QRectF& box,
                                              const Properties& graphic);

/// States the border of a frame or cell as a pen. Items have one for all sides.
void addBorder(const Properties& source, Properties& target);

/// The cells of a table as text boxes, row by row; nested tables become text.
///
/// @param area of the page's text
/// @param row  counted on for each row of the table
[[nodiscard]] Node::Children tableCells(Document& document, Node& table, const QRectF& area,
                                        int& row);

} // namespace repair
