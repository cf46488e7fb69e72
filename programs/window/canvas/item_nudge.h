#pragma once

#include "window/label/move_items.h"

#include <Qt>

namespace window {

[[nodiscard]] bool isArrow(int key);

/// How an arrow key moves these items: half a millimeter, five with Shift, a tenth with Ctrl.
/// Locked items, read-only items and background items are not moved. Empty for
/// any other key, and if there is nothing to move.
[[nodiscard]] QList<ItemMove> nudgedItems(const QList<QGraphicsItem*>& items, int key,
                                          Qt::KeyboardModifiers modifiers);

} // namespace window
