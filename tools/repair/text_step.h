#pragma once

#include "repair/text_runs.h"

namespace repair {

/// Rewrites the text of every shape on the page: paragraphs with runs of one format each, and
/// nothing else. Styles are complete, fonts of graphic styles included.
[[nodiscard]] TextCounts simplifyTexts(Document& document);

/// The graphic style of a shape, and the paragraph style that the shape names for paragraphs
/// without one. Like the office suite, it ignores the latter for text boxes.
[[nodiscard]] StyleProperties shapeStyle(const StyleTable& table, const Node& shape);

/// The default of drawings and the style of a shape.
[[nodiscard]] StyleProperties drawingBase(const StyleTable& table, const Node& shape);

/// The default and graphic style that the paragraphs of a shape begin with.
[[nodiscard]] StyleProperties textBase(Document& document, const Node& shape);

} // namespace repair
