#pragma once

#include "numeric/saturation.h"

#include <QtGlobal>

#include <cmath>

/// Lengths of a label in points.
namespace tavrel {

inline constexpr double PointsPerInch = 72.0;

/// Rounded, halves away from zero: font sizes and module widths. Saturates as saturatedToInt().
[[nodiscard]] inline qint32 roundedPoints(qint32 dots, double dotsPerInch)
{
    return saturatedToInt(std::round(dots * PointsPerInch / dotsPerInch));
}

/// Truncated, then reduced to the low 16 bits: pen widths. Old labels depend on both.
[[nodiscard]] inline quint16 penWidth(qint32 dots, double dotsPerInch)
{
    return static_cast<quint16>(saturatedToInt(dots * (PointsPerInch / dotsPerInch)));
}

} // namespace tavrel
