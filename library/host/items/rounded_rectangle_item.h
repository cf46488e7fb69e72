#pragma once

#include "host/facets/i_round_rect_item.h"
#include "host/items/rectangle_item.h"

/// A rectangle with round corners.
///
/// Its size is accessible through Item and through IRoundRectItem; the declarations here override
/// both.
class RoundedRectangleItem : public RectangleItem, public IRoundRectItem
{
public:
    void setItemSize(const QSizeF& size) override = 0;
    [[nodiscard]] QSizeF getItemSize() const override = 0;
};
