#pragma once

#include "repair/document.h"

namespace repair {

/// Takes the pages of a drawing out of its body, which is then empty. None of other documents.
[[nodiscard]] Node::Children takePages(Document& document);

/// Whether an element of a page is an object.
[[nodiscard]] bool isObject(const Node& node);

// Each step returns how often it changed something.

/// Moves the page layout that the page has to where the reader looks for it.
int usePageLayout(Document& document);
/// Takes objects out of groups and links.
int dissolveGroups(Document& document);
/// Leaves out objects that are not printed: those of hidden layers, and those that say so.
int removeUnprinted(Document& document);
/// Writes the order of the objects into each of them.
int writeOrder(Document& document);

} // namespace repair
