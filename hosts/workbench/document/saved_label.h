#pragma once

#include "workbench/canvas/canvas.h"
#include "workbench/datasources/datasource_controller.h"
#include "workbench/items/item_values.h"

#include <QList>

/// The saved format of labels, as docs/label-format.md describes it.
namespace workbench::document {

/// A whole label as plain values: all that a saved file holds.
struct SavedLabel
{
    PageValues page;
    QList<datasources::SourceValues> datasources;
    /// In the order in which they came onto the canvas.
    QList<ItemValues> items;

    bool operator==(const SavedLabel&) const = default;
};

} // namespace workbench::document
