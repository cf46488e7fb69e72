#pragma once

#include "host/class_factory.h"
#include "host/items/item.h"

#include <memory>

namespace orvanta {

/// Asks the factory for an item and for one of its classes or facets.
/// @return null when the factory gave nothing, or something else, which is deleted
template <typename Kind>
[[nodiscard]] std::unique_ptr<Kind> createdItem(ClassFactory& factory, KestTypes::ShapeType type)
{
    std::unique_ptr<Item> item(factory.create(type));
    std::unique_ptr<Kind> wanted(dynamic_cast<Kind*>(item.get()));
    if (wanted) {
        static_cast<void>(item.release());
    }
    return wanted;
}

} // namespace orvanta
