#pragma once

#include "orvanta/control_properties.h"

namespace orvanta {

/// A counter: `numeric_up_down`.
struct NumericControl
{
    ControlProperties properties;
    bool readOnly = false;
    int minimum = 0;
    int maximum = 0;
    int increment = 1;
};

[[nodiscard]] NumericControl readNumericControl(const QDomElement& element,
                                                FamilyCheck isKnownFamily);

} // namespace orvanta
