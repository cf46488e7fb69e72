#pragma once

#include "orvanta/elements.h"

#include <QRectF>

/// Positions and sizes on the page.
namespace orvanta {

/// Source pixels (96 per inch) to points (72 per inch).
inline constexpr double PointsPerPixel = 0.75;
/// Width of the strips at the left and at the top of the source's canvas that do not belong to the
/// label, in source pixels.
inline constexpr double CanvasMargin = 200.0;

/// Reads a `bounds` element, in points from the label's top left corner.
///
/// The children change the edges of a rectangle in document order. The rectangle is first empty,
/// at the corner. `x` and `y` move one edge, so they reduce a width or height before them, and a
/// width or height after them moves the other edge.
[[nodiscard]] QRectF readBounds(const Element& bounds);

/// The page of a label, in points. The default is six by four inches.
struct LabelPage
{
    double width = 432.0;
    double height = 288.0;
    bool higherThanWide = false;
};

/// Reads the page from the `printable_control` of the root element.
[[nodiscard]] LabelPage readLabelPage(const Element& root);

} // namespace orvanta
