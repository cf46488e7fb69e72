#pragma once

#include "host/class_factory.h"
#include "host/items/item.h"
#include "host/kest_types.h"
#include "host/tal_canvas_model.h"
#include "tavrel/item_header.h"

#include <QGraphicsItem>
#include <QPointer>

#include <memory>

/// What the builders of all item kinds share.
///
/// A builder takes decoded values and the host, makes one item, sets it up in the order
/// that hosts expect, and hands it over. Until then the item is the builder's.
namespace tavrel {

/// The host as the builders see it. Nothing in it is owned.
struct HostCanvas
{
    TalCanvasModel* model = nullptr;
    ClassFactory* factory = nullptr;
};

/// What came of a record that was read.
enum class BuildResult {
    Built,
    NoItem, ///< the host made no item, or one of another class than the contract says
    NoSize, ///< the item draws nothing
    Lost,   ///< the canvas deleted the item as soon as it had it
};

/// The item as the wanted class; null, and the item gone, where it is none.
template <typename ItemClass>
[[nodiscard]] std::unique_ptr<ItemClass> itemAs(std::unique_ptr<Item> item)
{
    auto* const wanted = dynamic_cast<ItemClass*>(item.get());
    if (wanted != nullptr) {
        (void)item.release();
    }
    return std::unique_ptr<ItemClass>(wanted);
}

/// Has the host make an item; null where it makes none of the wanted class, or has no
/// factory to make it.
template <typename ItemClass>
[[nodiscard]] std::unique_ptr<ItemClass> createItem(const HostCanvas& host,
                                                    KestTypes::ShapeType type)
{
    return host.factory != nullptr
               ? itemAs<ItemClass>(std::unique_ptr<Item>(host.factory->create(type)))
               : nullptr;
}

/// Gives an item to the canvas before it is set up.
/// @return the item; null when the canvas did not want it and has deleted it
template <typename ItemClass>
[[nodiscard]] ItemClass* importedEarly(const HostCanvas& host, std::unique_ptr<ItemClass> owned)
{
    const QPointer<ItemClass> item(owned.get());
    host.model->importItem(owned.release());
    return item.data();
}

/// Sets layer and lock. Most kinds get their position at once, lines and barcodes last.
inline void setLayerAndLock(QGraphicsItem& item, const ItemHeader& header)
{
    item.setZValue(header.zValue);
    item.setFlag(QGraphicsItem::ItemIsMovable, header.movable);
}

/// Sets layer, lock and position.
inline void placeItem(QGraphicsItem& item, const ItemHeader& header)
{
    setLayerAndLock(item, header);
    item.setPos(header.position());
}

} // namespace tavrel
