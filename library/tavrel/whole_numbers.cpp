#include "tavrel/whole_numbers.h"

#include <cmath>
#include <limits>

namespace tavrel {

qint32 saturatedToInt32(double value)
{
    using Limits = std::numeric_limits<qint32>;
    if (std::isnan(value)) {
        return 0;
    }
    if (value <= double(Limits::min())) {
        return Limits::min();
    }
    if (value >= double(Limits::max())) {
        return Limits::max();
    }
    return static_cast<qint32>(value);
}

qint32 roundedPoints(qint32 dots, double dotsPerInch)
{
    return saturatedToInt32(std::round(dots * 72.0 / dotsPerInch));
}

quint16 penWidth(qint32 dots, double dotsPerInch)
{
    return static_cast<quint16>(saturatedToInt32(dots * (72.0 / dotsPerInch)));
}

} // namespace tavrel
