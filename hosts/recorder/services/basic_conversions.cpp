#include "host/services/basic_conversions.h"

#include <cmath>

bool BasicConversions::almostEqual(double a, double b, double tolerance)
{
    // Equal infinities have no difference that could be measured.
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
    // An angle just below 0 rounds up to the full turn, which is 0 again.
    return angle < fullTurn ? angle + 0.0 : 0;
}
