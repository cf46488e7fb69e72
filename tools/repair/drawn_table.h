#pragma once

#include "repair/xml_tree.h"

namespace repair {

class Document;

/// The cells of a table in the frame of a drawing as text boxes; empty if it has no table.
[[nodiscard]] Node::Children drawnTableCells(Document& document, Node& frame);

} // namespace repair
