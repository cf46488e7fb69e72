#pragma once

#include "workbench/items/item_values.h"

#include <QPen>
#include <QRectF>

#include <optional>

class QPainter;
class QPainterPath;

namespace workbench {

/// The pen of the values. An unknown style number gives a solid line, an unknown cap
/// a flat one, an unknown join a beveled one; width 0 gives the output's thinnest line.
[[nodiscard]] QPen toPen(const PenValues& values);

/// The one color of a fill, transparent for no fill; nothing for a gradient or a hatch.
[[nodiscard]] std::optional<QColor> plainColor(const FillValues& values);

/// Fills the path. The box is the extent of gradients and hatches.
///
/// Tones (Qt's dense patterns) are painted as a lighter tint and hatches as lines with
/// sizes in points, so that they look the same at every resolution and in print. A
/// gradient runs from the fill color at the top to white at the bottom.
void paintFill(QPainter& painter, const QPainterPath& path, const QRectF& box,
               const FillValues& values);

/// Fills the path and draws its outline.
void paintShape(QPainter& painter, const QPainterPath& path, const QRectF& box,
                const FillValues& fill, const PenValues& pen);

/// The area that paintShape() covers. Empty without a visible fill and a visible pen.
[[nodiscard]] QPainterPath paintedShape(const QPainterPath& path, const FillValues& fill,
                                        const PenValues& pen);

/// The area of a stroke along the path, without the gaps of dashes; empty for an invisible pen.
[[nodiscard]] QPainterPath strokedArea(const QPainterPath& path, const PenValues& pen);

} // namespace workbench
