#pragma once

#include <QPointF>
#include <QSizeF>

namespace workbench {

// Labels come from files that may hold any number. These bounds are far beyond every real
// label and keep painting from running away.

/// Longest side of a page or an item, in points.
inline constexpr double kMaximumLength = 10'000'000.0;
/// Largest distance of an item from the corner of its page, in points.
inline constexpr double kMaximumCoordinate = 10'000'000.0;
/// Coordinates below this stand for one that a file did not give.
inline constexpr double kCoordinateNotGiven = -1'000'000'000.0;
/// Largest and default font size, in points.
inline constexpr int kMaximumFontSize = 2'000;
inline constexpr int kDefaultFontSize = 12;

/// The length, 0 for one that is not a number, at most kMaximumLength either way.
[[nodiscard]] double boundedLength(double length);
[[nodiscard]] QSizeF boundedSize(const QSizeF& size);
/// The position, 0 for a coordinate that is not a number or was not given.
[[nodiscard]] QPointF boundedPosition(const QPointF& position);
/// The z value, 0 for one that is not a finite number.
[[nodiscard]] double boundedZ(double z);
/// The angle, 0 for one that is not a finite number.
[[nodiscard]] double boundedAngle(double degrees);

} // namespace workbench
