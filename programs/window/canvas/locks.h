#pragma once

#include "workbench/items/item_values.h"

#include <QString>

class QGraphicsItem;

namespace window {

/// User-visible reason why an item cannot be moved, and the remedy; empty if it can.
[[nodiscard]] QString immovableReason(const workbench::ItemValues& values);

/// Whether an item of the scene can be moved; faster than immovableReason().
[[nodiscard]] bool isMovable(const QGraphicsItem& item);

} // namespace window
