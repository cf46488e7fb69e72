#pragma once

#include <QRectF>

class QDomElement;

namespace orvanta {

/// Source pixels (96 to the inch) to points (72 to the inch).
inline constexpr double PointsPerPixel = 0.75;
/// Width of the strip on the left and at the top of the source's canvas that is not part
/// of the label, in source pixels.
inline constexpr double CanvasMargin = 200.0;

/// Reads a `bounds` element, in points from the label's top left corner.
///
/// The children act in document order on the edges of a rectangle that starts empty at
/// the corner: `x` and `y` move one edge, so they narrow a width or height that came
/// before them and are overwritten by one that comes after.
[[nodiscard]] QRectF readBounds(const QDomElement& bounds);

} // namespace orvanta
