#pragma once

#include <QSizeF>

/// The size of an item, in points (1/72 inch), before rotation.
class ISizeItem
{
public:
    virtual ~ISizeItem() = default;

    /// Gives the item's box a new size; the position stays. A value that is
    /// negative, infinite or not a number comes from a damaged label: keep the
    /// item, draw nothing or the smallest box.
    virtual void setItemSize(const QSizeF& size) = 0;
    /// The present size; what setItemSize() set, or the content's own size
    /// for a picture or symbol that was just loaded.
    [[nodiscard]] virtual QSizeF getItemSize() const = 0;
};
