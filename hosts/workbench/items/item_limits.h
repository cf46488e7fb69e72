#pragma once

#include <QPointF>
#include <QSizeF>

namespace workbench {

// Files may contain any number. These limits are far beyond every real label and bound
// the time and memory of painting.

/// Longest side of a page or an item, in points.
inline constexpr double MaximumLength = 10'000'000.0;
/// Largest distance of an item from the page's origin, in points.
inline constexpr double MaximumCoordinate = 10'000'000.0;
/// Smaller coordinates mean that the file specified none.
inline constexpr double CoordinateNotGiven = -1'000'000'000.0;
/// Widest pen, in points: what the contract can set.
inline constexpr double MaximumPenWidth = 65'535.0;
/// Maximum and default font size, in points.
inline constexpr int MaximumFontSize = 2'000;
inline constexpr int DefaultFontSize = 12;

/// The length, 0 if it is not a number, limited to ±MaximumLength.
[[nodiscard]] double boundedLength(double length);
[[nodiscard]] QSizeF boundedSize(const QSizeF& size);
/// The position, 0 for a coordinate that is not a number or was not specified.
[[nodiscard]] QPointF boundedPosition(const QPointF& position);
/// The z value, 0 if it is not finite.
[[nodiscard]] double boundedZ(double z);
/// The angle, 0 if it is not finite.
[[nodiscard]] double boundedAngle(double degrees);

} // namespace workbench
