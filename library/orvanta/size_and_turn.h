#pragma once

#include "host/items/item.h"
#include "orvanta/control_properties.h"

namespace orvanta {

/// Sets what every item takes from its object in the same order: size, flips, rotation.
inline void applySizeAndTurn(Item& item, const ControlProperties& properties)
{
    item.setItemSize(properties.bounds.size());
    item.setFlipHorizontal(properties.flipHorizontal);
    item.setFlipVertical(properties.flipVertical);
    item.setItemRotation(properties.rotation);
}

} // namespace orvanta
