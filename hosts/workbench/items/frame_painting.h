#pragma once

#include "workbench/items/item_values.h"

#include <QRectF>

#include <QTransform>

class QPainter;

namespace workbench {

/// Mirrors within the box if the item is flipped.
[[nodiscard]] QTransform flipTransform(const QRectF& box, const BoxValues& values);

/// Prepares a painter for an item's content: antialiased, and mirrored within the box
/// if the item is flipped.
void prepareContentPainter(QPainter& painter, const QRectF& box, const BoxValues& values);

/// Paints the selection frame of an item.
void paintSelectionFrame(QPainter& painter, const QRectF& frame);

} // namespace workbench
