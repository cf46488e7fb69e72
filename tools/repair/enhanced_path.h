#pragma once

#include <QPainterPath>
#include <QRectF>

#include <optional>
#include <vector>

namespace repair {

class Node;

/// A part of a shape's outline.
struct Outline
{
    QPainterPath path;
    bool isFilled = true;
    bool isStroked = true;
};

/// What a custom shape looks like, in its box, which begins at (0, 0); in points.
struct CustomShape
{
    std::vector<Outline> outlines;
    QRectF textArea;
};

/// Draws a draw:enhanced-geometry into a box. Nothing if it has no path, or one with a
/// command or formula that is not understood.
[[nodiscard]] std::optional<CustomShape> drawCustomShape(const Node& geometry, const QSizeF& size);

} // namespace repair
