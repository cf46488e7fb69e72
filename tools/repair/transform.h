#pragma once

#include <QString>
#include <QTransform>

namespace repair {

class Node;

/// The box of a shape and how it is placed on the page.
struct Placement
{
    QSizeF size;
    /// From the box, whose upper left corner is (0, 0), to the page; in points.
    QTransform toPage;
};

/// The transformation of a draw:transform attribute: its parts are applied from left to
/// right, and angles are in radians against the clock.
[[nodiscard]] QTransform parseTransform(const QString& text);

/// Size, position and transformation of a shape, in points.
[[nodiscard]] Placement placementOf(const Node& shape);

/// A placement in the form that the reader supports: a box that is rotated about its center.
struct RotatedBox
{
    QRectF box;
    /// Degrees, clockwise.
    double rotation = 0.0;
};

/// Nothing if the placement is skewed or mirrored.
[[nodiscard]] std::optional<RotatedBox> toRotatedBox(const Placement& placement);

/// Writes a placement into a shape as the format has it.
void writePlacement(Node& shape, const Placement& placement);

/// Writes the box into a shape. The reader takes the translation for the position before the
/// rotation.
void writeBox(Node& shape, const RotatedBox& placed);

} // namespace repair
