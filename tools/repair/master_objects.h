#pragma once

#include "repair/xml_tree.h"

#include <memory>

namespace repair {

class Document;

/// A copy of a part of a master page, with styles that the page knows.
[[nodiscard]] std::unique_ptr<Node> copyFromMaster(Document& document, const Node& part);

/// Brings the background and the objects of the master page onto the page.
/// @return how many
int addMasterObjects(Document& document);

} // namespace repair
