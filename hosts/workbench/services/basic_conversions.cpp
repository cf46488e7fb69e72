#include "host/services/basic_conversions.h"

#include <cmath>

bool BasicConversions::almostEqual(double a, double b, double tolerance)
{
    return std::abs(a - b) <= tolerance;
}

double BasicConversions::normalizeAngle(double degrees)
{
    if (!std::isfinite(degrees)) {
        return 0.0;
    }
    const double turned = std::fmod(degrees, 360.0);
    const double positive = turned < 0.0 ? turned + 360.0 : turned;
    // A tiny negative angle rounds up to a full turn; -0.0 becomes 0.0.
    return positive >= 360.0 ? 0.0 : positive + 0.0;
}
