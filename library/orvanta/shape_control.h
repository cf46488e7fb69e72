#pragma once

#include "orvanta/control_properties.h"

namespace orvanta {

/// A shape: `transparent_shape` or `transparent_polygon`.
struct ShapeControl
{
    ControlProperties properties;
    int shapeIndex = 0;
    int lineWidth = 0; ///< as stored; the host's pen takes the low 16 bits
    int sides = 0;
};

[[nodiscard]] ShapeControl readShapeControl(const QDomElement& element, FamilyCheck isKnownFamily);

} // namespace orvanta
