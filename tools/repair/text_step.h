#pragma once

#include "repair/text_runs.h"

namespace repair {

/// Rewrites the text of every shape on the page: paragraphs with runs of one format each, and
/// nothing else. Styles are complete, fonts of graphic styles included.
[[nodiscard]] TextCounts simplifyTexts(Document& document);

/// The default and graphic style that the paragraphs of a shape begin with.
[[nodiscard]] StyleProperties textBase(Document& document, const Node& shape);

} // namespace repair
