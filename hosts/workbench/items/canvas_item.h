#pragma once

#include "workbench/items/item_values.h"

#include <QString>

#include <optional>

class Item;
class QGraphicsItem;

namespace workbench {

/// The workbench's interface to every item, whatever its class: its values, its states,
/// its two base classes. Get it from an Item or QGraphicsItem by dynamic_cast.
class CanvasItem
{
public:
    virtual ~CanvasItem() = default;

    [[nodiscard]] virtual KestTypes::ShapeType shapeType() const = 0;
    /// This object as a scene item and as an item of the contract.
    [[nodiscard]] virtual QGraphicsItem* graphicsItem() = 0;
    [[nodiscard]] virtual const QGraphicsItem* graphicsItem() const = 0;
    [[nodiscard]] virtual Item* contractItem() = 0;

    /// All values of the item.
    [[nodiscard]] virtual ItemValues values() const = 0;
    /// Restores the values that the class has; the type does not change.
    virtual void setValues(const ItemValues& values) = 0;

    /// Read-only items and background items ignore the mouse.
    virtual void setReadOnly(bool readOnly) = 0;
    virtual void setUserBackground(bool background) = 0;

    /// The binding to a data source.
    [[nodiscard]] virtual DatasourceValues datasource() const { return {}; }
    /// Shows this text instead of the item's own content; nullopt shows the own content. The
    /// text is from a data source and is not stored in the item's values.
    virtual void showContent(const std::optional<QString>& text) { Q_UNUSED(text) }
    /// User-visible reason why the item cannot show its content; empty if it can.
    [[nodiscard]] virtual QString issue() const { return {}; }
};

} // namespace workbench
