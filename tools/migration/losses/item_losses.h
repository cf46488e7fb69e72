#pragma once

#include "migration/model/census.h"
#include "workbench/items/item_values.h"

#include <QList>
#include <QStringList>

#include <map>

namespace workbench {
class Canvas;
class CanvasItem;
} // namespace workbench

namespace migration {

/// The properties of an item that matter for losses.
struct ItemFacts
{
    QString kind; ///< a code of workbench/items/shape_kinds.h
    ObjectClass objectClass = ObjectClass::Shape;
    /// False for an item that shows nothing, such as one whose picture is unreadable.
    bool hasContent = true;
    bool isBound = false; ///< to a data source
    int symbology = 0;    ///< of a barcode
    LossSet changes = {}; ///< visible on the item itself
};

/// All items of a label.
struct LabelFacts
{
    QList<ItemFacts> items;
    std::map<LossKind, Tally> tallies; ///< names only; the numbers are those of the items
    LossSet pageChanges;
};

/// Finds changes on the items: outside the page, in another font, reduced in size, a barcode that
/// cannot be encoded.
///
/// @param blankTextsCount whether a text without a letter counts as an object
[[nodiscard]] LabelFacts lookAtItems(const workbench::Canvas& canvas, bool blankTextsCount);

} // namespace migration
