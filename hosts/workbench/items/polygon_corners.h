#pragma once

#include "host/kest_types.h"

#include <QPolygonF>
#include <QRectF>

namespace workbench {

/// The corners of a polygon type, stretched to fill the box; empty for a type that
/// is not a polygon.
[[nodiscard]] QPolygonF polygonCorners(KestTypes::ShapeType type, const QRectF& box);

} // namespace workbench
