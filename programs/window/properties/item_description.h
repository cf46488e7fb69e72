#pragma once

#include "window/properties/length_unit.h"
#include "window/properties/property.h"
#include "workbench/items/item_values.h"

#include <QList>
#include <QString>

namespace window {

/// One property of the selected items or of the page, as a row of a table.
struct PropertyRow
{
    QString group;
    QString name;
    QString value;     ///< as text
    int property = -1; ///< index in itemProperties() or pageProperties()
    PropertyKind kind = PropertyKind::Note;
    QVariant current = {}; ///< invalid if the items have different values
    QList<NamedCode> choices = {};
    double minimum = 0.0;
    double maximum = 0.0;
    QString minimumName = {};
    bool isEditable = false;
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

/// The properties that all of these items have.
[[nodiscard]] QList<PropertyRow> describeItems(const QList<workbench::ItemValues>& items,
                                               LengthUnit unit);

[[nodiscard]] QList<PropertyRow> describePage(const workbench::PageValues& page, LengthUnit unit);

} // namespace window
