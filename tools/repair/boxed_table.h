#pragma once

#include "repair/xml_tree.h"

namespace repair {

class Document;

/// The ground of a text box, and its paragraphs and the cells of its tables as text boxes above,
/// one below the other. Their heights are estimates: the text is not laid out yet.
///
/// @return nothing if the frame has no text box, or if its text box has no table
[[nodiscard]] Node::Children boxedTableParts(Document& document, Node& frame);

} // namespace repair
