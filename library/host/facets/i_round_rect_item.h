#pragma once

#include "host/facets/i_size_item.h"

/// The corners of a rounded rectangle.
///
/// RoundedRectangleItem has the base ISizeItem twice, so access its size through Item, never by a
/// cast from a graphics item to ISizeItem.
class IRoundRectItem : public ISizeItem
{
public:
    /// Radius of the four corners, in points; negative values count as 0.
    virtual void setCornerRadius(double radius) = 0;
};
