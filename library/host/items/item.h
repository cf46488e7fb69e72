#pragma once

#include "host/facets/i_basic_item.h"
#include "host/facets/i_template_lock_item.h"

/// An object of a label: the common base of all items that ClassFactory creates.
///
/// Every concrete item is also a QGraphicsItem: importers cast an Item to QGraphicsItem for
/// position, z value and flags, and to the facets for all other properties. Implement the facets
/// in the class that you derive, so that dynamic_cast finds them from Item.
class Item : public IBasicItem, public ITemplateLockItem
{
public:
    /// Width of the item's box in points, as getItemSize() gives it.
    [[nodiscard]] virtual double getItemWidth() const = 0;
    /// Height of the item's box in points, as getItemSize() gives it.
    [[nodiscard]] virtual double getItemHeight() const = 0;
    /// Rotates the item to this angle, in degrees, clockwise, about the center of its box. The
    /// angle is absolute and may be outside 0 to 360.
    virtual void setItemRotation(double degrees) = 0;
    /// Mirrors the content left to right within the box.
    virtual void setFlipHorizontal(bool flip) = 0;
    /// Mirrors the content top to bottom within the box.
    virtual void setFlipVertical(bool flip) = 0;
};
