#pragma once

#include "host/services/visibility.h"

/// Numeric helpers that the host and its importers must agree on.
class LABELPORT_HOST_SERVICE BasicConversions
{
public:
    BasicConversions() = delete;

    /// Whether two values differ by no more than the tolerance. False when either is not
    /// a number.
    [[nodiscard]] static bool almostEqual(double a, double b, double tolerance);
    /// The same angle in degrees, in the range [0, 360). A value that is infinite or not
    /// a number gives 0.
    [[nodiscard]] static double normalizeAngle(double degrees);
};
