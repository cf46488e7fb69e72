#include "host/services/basic_conversions.h"

#include <cmath>

bool BasicConversions::almostEqual(double a, double b, double tolerance)
{
    // The difference of equal infinities is not a number.
    return a == b || std::abs(a - b) <= tolerance;
}

double BasicConversions::normalizeAngle(double degrees)
{
    constexpr double fullTurn = 360;
    if (!std::isfinite(degrees)) {
        return 0;
    }
    double angle = std::fmod(degrees, fullTurn);
    if (angle < 0) {
        angle += fullTurn;
    }
    // An angle just below 0 rounds up to the full turn, which equals 0.
    return angle < fullTurn ? angle + 0.0 : 0;
}
