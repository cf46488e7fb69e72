#pragma once

#include "host/kest_types.h"
#include "migration/model/census.h"

namespace migration {

/// What kind of object an item of the label is.
[[nodiscard]] constexpr ObjectClass classOfItem(KestTypes::ShapeType type)
{
    switch (type) {
    case KestTypes::Picture:
        return ObjectClass::Picture;
    case KestTypes::Symbol:
        return ObjectClass::Symbol;
    case KestTypes::SimpleText:
    case KestTypes::RichText:
        return ObjectClass::Text;
    case KestTypes::Barcode:
        return ObjectClass::Barcode;
    case KestTypes::Line:
        return ObjectClass::Line;
    default:
        return ObjectClass::Shape;
    }
}

} // namespace migration
