#pragma once

#include "repair/xml_tree.h"

namespace repair {

class Document;

/// Draws a chart again from its values: bars or lines with their axes, titles and legend.
///
/// @param chart the element of the embedded document, whose styles the document has already
/// @return objects in the chart's own area, the texts last; none for a chart that cannot be drawn
[[nodiscard]] Node::Children drawChart(Document& document, const Node& chart);

} // namespace repair
