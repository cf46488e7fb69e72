#pragma once

#include "limits/xml/element_tree.h"

#include <QPointF>
#include <QSizeF>

namespace opendocument {

/// Position, size, order and rotation of one element; the defaults mean: not given.
struct Geometry
{
    QSizeF size{-1, -1};                        ///< points
    QPointF position{-1000000001, -1000000001}; ///< points
    double z = -1000000001;
    double rotation = 500.0; ///< degrees, clockwise

    [[nodiscard]] bool hasX() const { return position.x() > -1000000000; }
    [[nodiscard]] bool hasY() const { return position.y() > -1000000000; }
    [[nodiscard]] bool hasZ() const { return z > -1000000000; }
    [[nodiscard]] bool hasRotation() const { return rotation < 500.0; }
};

/// Reads the geometry attributes of an element. Does not change absent or damaged ones.
/// @param unitFactor points per unit of the document's lengths
void readGeometry(const xmllimits::Element& element, double unitFactor, Geometry& geometry);

/// Reads draw:z-index alone, for elements that share no other geometry attributes.
void readStackingOrder(const xmllimits::Element& element, Geometry& geometry);

/// The position of a text at the top left of a rotated box, so that it keeps its place in the box:
/// hosts rotate the box and the text each about its own center.
/// @param geometry of the box, with its size and rotation
/// @param textSize in points
[[nodiscard]] QPointF positionInRotatedBox(const Geometry& geometry, const QSizeF& textSize);

} // namespace opendocument
