#pragma once

#include "workbench/items/item_values.h"

#include <QString>

#include <optional>

class Item;
class QGraphicsItem;

namespace workbench {

/// What the workbench knows of every item, whatever its class: its values, its states,
/// its two other faces. Reach it from an Item or QGraphicsItem by dynamic_cast.
class CanvasItem
{
public:
    virtual ~CanvasItem() = default;

    [[nodiscard]] virtual KestTypes::ShapeType shapeType() const = 0;
    /// The same object as the scene and as the contract see it.
    [[nodiscard]] virtual QGraphicsItem* graphicsItem() = 0;
    [[nodiscard]] virtual const QGraphicsItem* graphicsItem() const = 0;
    [[nodiscard]] virtual Item* contractItem() = 0;

    /// All that the item remembers.
    [[nodiscard]] virtual ItemValues values() const = 0;
    /// Takes everything over that the class has; the type stays what it is.
    virtual void setValues(const ItemValues& values) = 0;

    /// An item that is read-only or belongs to the background takes no mouse.
    virtual void setReadOnly(bool readOnly) = 0;
    virtual void setUserBackground(bool background) = 0;

    /// The binding to a data source.
    [[nodiscard]] virtual DatasourceValues datasource() const { return {}; }
    /// Shows this text in place of the item's own content, or the own content again. The
    /// text comes from a data source and is no part of the item's values.
    virtual void showContent(const std::optional<QString>& text) { Q_UNUSED(text) }
    /// Why the item cannot show its content, in words for a person; empty when it can.
    [[nodiscard]] virtual QString issue() const { return {}; }
};

} // namespace workbench
