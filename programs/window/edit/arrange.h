#pragma once

#include "window/edit/commands.h"

namespace window {

/// Where items are aligned.
enum class Edge : quint8 { Left, HorizontalCenter, Right, Top, VerticalCenter, Bottom };

/// Aligns several items to their common bounds, a single one to the page. Items that cannot be
/// moved stay. Only items that change are returned.
[[nodiscard]] QList<ItemChange> align(const QList<workbench::CanvasItem*>& items, Edge edge,
                                      const QRectF& page);

/// Equal gaps between at least three items; the outer two stay.
[[nodiscard]] QList<ItemChange> distribute(const QList<workbench::CanvasItem*>& items,
                                           Qt::Orientation direction);

/// How the stacking order of the selected items changes.
enum class Order : quint8 { Front, Forward, Backward, Back };

/// Restacks the selected items among all items of the canvas. Layers are numbered from 0 in the new
/// order.
[[nodiscard]] QList<ItemChange> restack(const workbench::Canvas& canvas,
                                        const QList<workbench::CanvasItem*>& items, Order order);

} // namespace window
