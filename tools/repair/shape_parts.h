#pragma once

#include "repair/enhanced_path.h"
#include "repair/transform.h"
#include "repair/xml_tree.h"

#include <QPainterPath>

#include <functional>
#include <vector>

namespace repair {

class Document;

using Parts = std::vector<std::unique_ptr<Node>>;
/// What a shape becomes; empty if it stays.
using Replacement = std::function<Parts(Node& shape)>;

/// Replaces the shapes of the page, in their place and order.
/// @return how many were replaced
int replaceShapes(Document& document, const Replacement& replacement);

void addIfAny(Parts& parts, std::unique_ptr<Node> node);

/// The ends of a line, dimension line, or connector on the page.
[[nodiscard]] QPointF startOf(const Node& line);
[[nodiscard]] QPointF endOf(const Node& line);

/// A frame with a drawing of the outlines, given on the page, in the style of the shape.
[[nodiscard]] std::unique_ptr<Node> drawnFrame(Document& document, const Node& shape,
                                               const std::vector<Outline>& outlines);

/// A frame without ground that holds a shape's text; null if the shape has none.
/// The text is moved out of the shape.
[[nodiscard]] std::unique_ptr<Node> takeText(Document& document, Node& shape,
                                             const Placement& area);

/// By how many degrees, clockwise, the text of a shape is turned in it.
[[nodiscard]] double textTurn(const Node& shape);

/// The outline of a rectangle, ellipse, polygon, or path in its box; empty for other shapes.
[[nodiscard]] QPainterPath outlineInBox(const Node& shape, const QSizeF& size);

/// A straight line between two points on the page.
[[nodiscard]] std::unique_ptr<Node> lineBetween(const QPointF& from, const QPointF& to,
                                                const QString& styleName);

/// Whether something can be read in the text of a shape.
[[nodiscard]] bool hasVisibleText(const Node& shape);

} // namespace repair
