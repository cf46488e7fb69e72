#pragma once

#include <QPainterPath>
#include <QPointF>

namespace workbench {

/// What the end of a line can show.
enum class Marker {
    None,
    Arrow,
    SmallArrow,
    DoubleArrow,
    Dimension,
};

/// The marker of a line's start or end from its code: 1 arrow, 3 small arrow, 5 double
/// arrow, 8 dimension stroke; a start's code is the same four bits higher. Any other code
/// above 0 is an arrow, 0 and less is none.
[[nodiscard]] Marker startMarker(int code);
[[nodiscard]] Marker endMarker(int code);

/// A marker's outline, to be filled with the line's colour.
///
/// @param tip      the end of the line that carries the marker
/// @param outward  a unit vector along the line, out of that end
/// @param penWidth the line's width in points
[[nodiscard]] QPainterPath markerPath(Marker marker, const QPointF& tip, const QPointF& outward,
                                      double penWidth);

/// How far the line must end before its tip so that it does not stick out of the marker.
[[nodiscard]] double markerInset(Marker marker, double penWidth);

/// How far a marker of a line this wide reaches from the line.
[[nodiscard]] double markerReach(double penWidth);

} // namespace workbench
