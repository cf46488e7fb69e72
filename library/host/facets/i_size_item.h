#pragma once

#include <QSizeF>

/// The size of an item, in points (1/72 inch), before rotation.
class ISizeItem
{
public:
    virtual ~ISizeItem() = default;

    /// Changes the size of the item's box, but not its position. A negative or infinite value, or
    /// one that is not a number, comes from a damaged label: keep the item, and draw nothing or
    /// the smallest box.
    virtual void setItemSize(const QSizeF& size) = 0;
    /// The current size: that of setItemSize(), or the content's own size after a picture or symbol
    /// was loaded.
    [[nodiscard]] virtual QSizeF getItemSize() const = 0;
};
