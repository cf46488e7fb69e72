#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

/// The value as an integer: truncated toward zero. A value outside the range gives the nearest
/// int, "not a number" gives 0.
///
/// Files contain any number, and C++ leaves a conversion that does not fit undefined.
[[nodiscard]] inline int saturatedToInt(double value)
{
    if (std::isnan(value)) {
        return 0;
    }
    constexpr double Lowest = std::numeric_limits<int>::min();
    constexpr double Highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value, Lowest, Highest));
}
