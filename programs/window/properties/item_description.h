#pragma once

#include "window/properties/length_unit.h"
#include "workbench/items/item_values.h"

#include <QList>
#include <QString>

namespace window {

/// One property of an item as text.
struct PropertyRow
{
    QString group;
    QString name;
    QString value;
    bool operator==(const PropertyRow&) const = default;
};

/// The name of an item type.
[[nodiscard]] QString kindName(KestTypes::ShapeType type);

/// A short line that distinguishes an item from others of its type: its text, the
/// content of its barcode, the size of its picture. Empty for a plain shape.
[[nodiscard]] QString contentSummary(const workbench::ItemValues& values);

/// Type and content together, the item's name in messages and for screen readers.
[[nodiscard]] QString itemTitle(const workbench::ItemValues& values);

/// All properties of an item, groups in a fixed order; groups without values are
/// omitted.
[[nodiscard]] QList<PropertyRow> describeItem(const workbench::ItemValues& values, LengthUnit unit);

} // namespace window
