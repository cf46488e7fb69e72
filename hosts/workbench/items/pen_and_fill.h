#pragma once

#include "workbench/items/item_values.h"

#include <QPen>
#include <QRectF>

class QPainter;
class QPainterPath;

namespace workbench {

/// The pen of the values. A style number that Qt does not know gives a solid line, a cap
/// a flat one, a join a bevelled one; a width of 0 gives the thinnest line of the output.
[[nodiscard]] QPen toPen(const PenValues& values);

/// Fills the path. The box is what gradients run across and hatches are laid over.
///
/// Tones (Qt's dense patterns) are painted as a lighter tint and hatches as lines with
/// sizes in points, so that they look the same at every resolution and in print. A
/// gradient runs from the fill colour at the top to white at the bottom.
void paintFill(QPainter& painter, const QPainterPath& path, const QRectF& box,
               const FillValues& values);

/// Fills the path and draws its outline.
void paintShape(QPainter& painter, const QPainterPath& path, const QRectF& box,
                const FillValues& fill, const PenValues& pen);

} // namespace workbench
