#pragma once

#include "host/facets/i_round_rect_item.h"
#include "host/items/rectangle_item.h"

/// A rectangle with round corners.
///
/// Its size can be reached in two ways, through Item and through IRoundRectItem;
/// the two declarations here make one operation of them.
class RoundedRectangleItem : public RectangleItem, public IRoundRectItem
{
public:
    void setItemSize(const QSizeF& size) override = 0;
    [[nodiscard]] QSizeF getItemSize() const override = 0;
};
