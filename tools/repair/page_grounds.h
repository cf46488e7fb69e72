#pragma once

#include "repair/xml_tree.h"

namespace repair {

class Document;
struct PageArea;

/// What is below the texts and objects of a page of text: the fills, pictures and borders that its
/// page layout gives to the page within its margins, to its header and to its footer.
[[nodiscard]] Node::Children pageGrounds(Document& document, const Node* master,
                                         const PageArea& area);

} // namespace repair
