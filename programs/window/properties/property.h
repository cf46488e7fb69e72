#pragma once

#include "window/properties/style_names.h"
#include "workbench/canvas/canvas.h"
#include "workbench/items/item_values.h"

#include <QList>
#include <QString>
#include <QVariant>

#include <functional>

namespace window {

/// What a property holds, and with which editor it is changed.
enum class PropertyKind : quint8 {
    Note,       ///< a text that cannot be edited
    Text,       ///< one format, several lines
    RichText,   ///< HTML; its formats are kept
    Length,     ///< points, shown in the user's unit
    Points,     ///< points, shown as points
    Angle,      ///< degrees
    Number,     ///< a whole number
    Flag,       ///< yes or no
    Color,      ///< with transparency
    Choice,     ///< one of Property::choices
    FontFamily, ///< a family name; empty for the default
    Picture,    ///< QImage, replaced from a file
    Symbol,     ///< symbol data, replaced from a file
};

/// A property of items or of the page, as the table of properties shows and edits it.
template <class Values>
struct Property
{
    QString group;
    QString name;
    PropertyKind kind = PropertyKind::Note;
    /// An invalid variant if these values do not have the property.
    std::function<QVariant(const Values&)> get;
    /// Null if the property cannot be edited.
    std::function<void(Values&, const QVariant&)> set;
    QList<NamedCode> choices;
    /// The range of numbers.
    double minimum = 0.0;
    double maximum = 0.0;
    /// Shown instead of the minimum, if not empty: "automatic".
    QString minimumName;
    /// Can be edited although the item is read-only: its locks.
    bool isLock = false;
};

/// All properties of items, groups in a fixed order, in the present language.
[[nodiscard]] QList<Property<workbench::ItemValues>> itemProperties();

/// Why the content of a barcode cannot be encoded, for the user; empty if it can.
[[nodiscard]] QString barcodeObjection(const workbench::BarcodeValues& barcode);

/// The properties of the page, in the present language.
[[nodiscard]] QList<Property<workbench::PageValues>> pageProperties();

} // namespace window
