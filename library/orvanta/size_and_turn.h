#pragma once

#include "host/items/item.h"
#include "orvanta/control_properties.h"

namespace orvanta {

/// Sets the size, flips and rotation of an item, in the order that is the same for all kinds.
inline void applySizeAndTurn(Item& item, const ControlProperties& properties)
{
    item.setItemSize(properties.bounds.size());
    item.setFlipHorizontal(properties.flipHorizontal);
    item.setFlipVertical(properties.flipVertical);
    item.setItemRotation(properties.rotation);
}

} // namespace orvanta
