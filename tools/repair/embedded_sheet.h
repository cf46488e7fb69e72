#pragma once

#include "repair/xml_tree.h"

namespace repair {

class Document;

/// The cells with text of the first sheet that an embedded spreadsheet shows, as text boxes in
/// their places. Its styles are in the document already.
[[nodiscard]] Node::Children sheetCells(Document& document, const Node& spreadsheet);

} // namespace repair
