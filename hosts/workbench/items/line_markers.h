#pragma once

#include <QPainterPath>
#include <QPointF>

namespace workbench {

/// The markers of a line's end.
enum class Marker {
    None,
    Arrow,
    SmallArrow,
    DoubleArrow,
    Dimension,
};

/// The marker of a line's start or end from its code: 1 arrow, 3 small arrow, 5 double
/// arrow, 8 dimension stroke; a start's code is shifted left by four bits. Any other code
/// above 0 is an arrow, 0 and below is none.
[[nodiscard]] Marker startMarker(int code);
[[nodiscard]] Marker endMarker(int code);

/// A marker's outline, to be filled with the line's color.
///
/// @param tip      the end of the line with the marker
/// @param outward  unit vector along the line, pointing out of that end
/// @param penWidth the line's width in points
[[nodiscard]] QPainterPath markerPath(Marker marker, const QPointF& tip, const QPointF& outward,
                                      double penWidth);

/// How much to shorten the line so that it does not protrude from the marker.
[[nodiscard]] double markerInset(Marker marker, double penWidth);

/// How far a marker extends from a line of this width.
[[nodiscard]] double markerReach(double penWidth);

} // namespace workbench
