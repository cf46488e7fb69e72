#include "workbench/items/item_limits.h"

#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

double boundedCoordinate(double value)
{
    if (!std::isfinite(value) || value <= CoordinateNotGiven) {
        return 0.0;
    }
    return std::clamp(value, -MaximumCoordinate, MaximumCoordinate);
}

} // namespace

double boundedLength(double length)
{
    return std::isnan(length) ? 0.0 : std::clamp(length, -MaximumLength, MaximumLength);
}

QSizeF boundedSize(const QSizeF& size)
{
    return {boundedLength(size.width()), boundedLength(size.height())};
}

QPointF boundedPosition(const QPointF& position)
{
    return {boundedCoordinate(position.x()), boundedCoordinate(position.y())};
}

double boundedZ(double z)
{
    return std::isfinite(z) ? z : 0.0;
}

double boundedAngle(double degrees)
{
    return std::isfinite(degrees) ? degrees : 0.0;
}

} // namespace workbench
