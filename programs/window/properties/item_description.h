#pragma once

#include "window/properties/length_unit.h"
#include "workbench/items/item_values.h"

#include <QList>
#include <QString>

namespace window {

/// One property of an item in words.
struct PropertyRow
{
    QString group;
    QString name;
    QString value;
    bool operator==(const PropertyRow&) const = default;
};

/// What an item of this type is called.
[[nodiscard]] QString kindName(KestTypes::ShapeType type);

/// What tells an item from the next one of its kind, on one short line: its text, the
/// content of its barcode, the size of its picture. Empty for a plain shape.
[[nodiscard]] QString contentSummary(const workbench::ItemValues& values);

/// Kind and content together, as a message or a screen reader names the item.
[[nodiscard]] QString itemTitle(const workbench::ItemValues& values);

/// All properties of an item, groups in a fixed order; groups that it does not have are
/// left out.
[[nodiscard]] QList<PropertyRow> describeItem(const workbench::ItemValues& values, LengthUnit unit);

} // namespace window
