#pragma once

#include "workbench/items/item_values.h"

#include <QRectF>

class QPainter;

namespace workbench {

/// Readies a painter for an item's content: antialiased, and mirrored within the box
/// where the item is flipped.
void prepareContentPainter(QPainter& painter, const QRectF& box, const BoxValues& values);

/// Paints the frame that shows an item as selected.
void paintSelectionFrame(QPainter& painter, const QRectF& frame);

} // namespace workbench
