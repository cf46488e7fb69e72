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

/// One item of the label, as far as losses go.
struct ItemFacts
{
    QString kind; ///< as kindName() has it
    ObjectClass objectClass = ObjectClass::Shape;
    /// It shows something: a picture that could not be read leaves an item without one.
    bool hasContent = true;
    bool isBound = false; ///< to a data source
    int symbology = 0;    ///< of a barcode
    LossSet changes = {}; ///< that the item itself tells
};

/// All items of a label.
struct LabelFacts
{
    QList<ItemFacts> items;
    std::map<LossKind, Tally> tallies; ///< names of what changed; counts are those of the items
    LossSet pageChanges;
};

/// What the items themselves tell of how they changed: outside the page, in another font,
/// limited in size, a barcode that cannot be drawn.
///
/// @param blankTextsCount whether a text without a letter is an object of its own
[[nodiscard]] LabelFacts lookAtItems(const workbench::Canvas& canvas, bool blankTextsCount);

} // namespace migration
