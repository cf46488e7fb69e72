#pragma once

#include "repair/xml_tree.h"

namespace repair {

class Document;

/// Where a text ends: before a paragraph or one of its characters.
struct TextEnd
{
    int paragraph = 0;
    int character = 0;
};

/// Takes the paragraphs behind an end out of a rewritten frame, in a frame like it.
[[nodiscard]] std::unique_ptr<Node> splitFrame(Document& document, Node& frame, const TextEnd& end);

} // namespace repair
