#pragma once

#include <QColor>
#include <QLineF>
#include <QList>
#include <QRectF>

class QPainter;
class QPainterPath;

namespace workbench {

/// Whether the Qt::BrushStyle number is one of the six hatches.
[[nodiscard]] bool isHatch(int style);

/// The lines of a hatch that cover the area, on a grid that does not depend on the
/// area. At most a few thousand: over a very large area the distance is larger.
[[nodiscard]] QList<QLineF> hatchLines(const QRectF& area, int style);

/// Paints a hatch within the path.
void paintHatch(QPainter& painter, const QPainterPath& path, const QRectF& box, int style,
                const QColor& color);

} // namespace workbench
