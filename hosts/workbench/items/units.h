#pragma once

namespace workbench {

/// The canvas's unit is the point, 1/72 inch.
inline constexpr double PointsPerInch = 72.0;
inline constexpr double PointsPerMillimeter = PointsPerInch / 25.4;

} // namespace workbench
