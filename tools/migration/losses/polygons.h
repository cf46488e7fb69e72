#pragma once

#include <QPolygonF>

namespace migration {

[[nodiscard]] double areaOf(const QPolygonF& polygon);

/// The part of a polygon inside a convex one.
[[nodiscard]] QPolygonF clipped(QPolygonF polygon, const QPolygonF& window);

/// The corners of a box, the same way round as those of items.
[[nodiscard]] QPolygonF cornersOf(const QRectF& box);

} // namespace migration
