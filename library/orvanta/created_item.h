#pragma once

#include "host/class_factory.h"
#include "host/items/item.h"
#include "host/tal_canvas_model.h"

#include <QObject>
#include <QPointer>

#include <memory>

namespace orvanta {

/// Asks the factory for an item and for one of its classes or facets.
/// @return null when there is no factory, or it gave nothing, or something else, which is
///         deleted
template <typename Kind>
[[nodiscard]] std::unique_ptr<Kind> createdItem(ClassFactory* factory, KestTypes::ShapeType type)
{
    std::unique_ptr<Item> item(factory != nullptr ? factory->create(type) : nullptr);
    std::unique_ptr<Kind> wanted(dynamic_cast<Kind*>(item.get()));
    if (wanted) {
        static_cast<void>(item.release());
    }
    return wanted;
}

/// Gives an item to the canvas, which owns it from then on.
/// @return the item; null when the canvas did not want it and has deleted it
template <typename Kind>
[[nodiscard]] Kind* importedItem(TalCanvasModel& canvas, std::unique_ptr<Kind> item)
{
    Kind* const imported = item.release();
    // Every item of the contract is a QObject, which tells of its end.
    const QPointer<QObject> alive(dynamic_cast<QObject*>(imported));
    const bool tells = !alive.isNull();
    canvas.importItem(imported);
    return tells && alive.isNull() ? nullptr : imported;
}

} // namespace orvanta
