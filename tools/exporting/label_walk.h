#pragma once

#include "workbench/items/item_values.h"

#include <QList>
#include <QTransform>

namespace workbench {
class Canvas;
class CanvasItem;
namespace datasources {
class DatasourceController;
}
} // namespace workbench

/// Labels in the formats of other programs: functions from item values to bytes.
namespace exporting {

/// One item of a label, as exporters see it.
struct WalkedItem
{
    /// In the stack, counted from 1.
    int position = 0;
    /// The item's values with the content of the record that the label shows: a bound text or
    /// barcode has the record's text in place of its own.
    workbench::ItemValues values;
    /// Whether a data source supplies the content.
    bool isBound = false;
    /// From the item's box to the page: its place, its rotation and its flips. Points.
    QTransform toPage;
    /// The item itself, to paint it; see workbench/rendering/page_painter.h.
    const workbench::CanvasItem* item = nullptr;
};

/// The items that are painted, from bottom to top. All exporters use this walk, so that they agree
/// on the order, the geometry and the content of items.
///
/// @param canvas must show the record, and outlive the result
/// @param record counted from 0
[[nodiscard]] QList<WalkedItem>
walkLabel(const workbench::Canvas& canvas,
          const workbench::datasources::DatasourceController& sources, qint64 record);

} // namespace exporting
