#pragma once

#include "workbench/canvas/canvas.h"
#include "workbench/datasources/datasource_controller.h"
#include "workbench/items/item_values.h"

#include <QList>

#include <functional>

/// The saved format of labels, as docs/label-format.md describes it.
namespace workbench::document {

/// Called after each step of a task that may take long, a picture for example.
using Heartbeat = std::function<void()>;

/// A complete label as plain values, as in a saved file.
struct SavedLabel
{
    PageValues page;
    QList<datasources::SourceValues> datasources;
    /// In the order in which they came onto the canvas.
    QList<ItemValues> items;

    bool operator==(const SavedLabel&) const = default;
};

} // namespace workbench::document
