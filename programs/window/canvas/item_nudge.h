#pragma once

#include "window/label/move_items.h"

#include <Qt>

namespace window {

/// How an arrow key moves these items: half a millimeter, five with Shift, a tenth with Ctrl.
/// Locked items, read-only ones and those of the background stay where they are. Empty for
/// any other key, and when there is nothing to move.
[[nodiscard]] QList<ItemMove> nudgedItems(const QList<QGraphicsItem*>& items, int key,
                                          Qt::KeyboardModifiers modifiers);

} // namespace window
