#pragma once

#include "building/item_creation.h"
#include "host/kest_types.h"
#include "tavrel/item_header.h"

#include <QGraphicsItem>

/// Common parts of the functions that build items.
///
/// Such a function takes decoded values and the host, creates an item, sets it up in the order
/// that hosts expect, and gives it to the canvas. Until then it owns the item.
namespace tavrel {

/// The host's canvas and its factory, not owned.
struct HostCanvas
{
    TalCanvasModel* model = nullptr;
    ClassFactory* factory = nullptr;
};

/// What became of an item that a record describes.
enum class BuildResult {
    Built,
    NoItem, ///< the host created no item, or one of another class than the contract requires
    NoSize, ///< the item draws nothing
    Lost,   ///< the canvas deleted the item at once
};

/// Sets z value and lock. Most kinds get their position directly after it, lines and barcodes last.
inline void setLayerAndLock(QGraphicsItem& item, const ItemHeader& header)
{
    item.setZValue(header.zValue);
    item.setFlag(QGraphicsItem::ItemIsMovable, header.movable);
}

/// Sets z value, lock and position.
inline void placeItem(QGraphicsItem& item, const ItemHeader& header)
{
    setLayerAndLock(item, header);
    item.setPos(header.position());
}

} // namespace tavrel
