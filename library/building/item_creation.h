#pragma once

#include "host/class_factory.h"
#include "host/items/item.h"
#include "host/tal_canvas_model.h"

#include <QObject>
#include <QPointer>

#include <memory>

/// How readers create items and give them to the canvas. Not part of the contract: hosts do not
/// need it, so it is not in host/.
namespace building {

/// The item as one of its classes or facets; null, and the item deleted, if it has no such base.
template <typename Target>
[[nodiscard]] std::unique_ptr<Target> itemAs(std::unique_ptr<Item> item)
{
    auto* const target = dynamic_cast<Target*>(item.get());
    if (target != nullptr) {
        static_cast<void>(item.release());
    }
    return std::unique_ptr<Target>(target);
}

/// Creates an item, owned by the caller.
/// @return null without a factory, and if the factory creates nothing or an item of another class
template <typename Target>
[[nodiscard]] std::unique_ptr<Target> createItem(ClassFactory* factory, KestTypes::ShapeType type)
{
    return factory != nullptr ? itemAs<Target>(std::unique_ptr<Item>(factory->create(type)))
                              : nullptr;
}

/// Gives an item to the canvas, which owns it afterwards.
/// @return the item; null if the canvas deleted it at once
template <typename ItemClass>
[[nodiscard]] ItemClass* handOver(TalCanvasModel& canvas, std::unique_ptr<ItemClass> owned)
{
    ItemClass* const item = owned.release();
    // Every item of the contract is a QObject. If a host's item is not, its deletion cannot be
    // noticed.
    const QPointer<QObject> alive(dynamic_cast<QObject*>(item));
    const bool isObject = !alive.isNull();
    canvas.importItem(item);
    return isObject && alive.isNull() ? nullptr : item;
}

} // namespace building
