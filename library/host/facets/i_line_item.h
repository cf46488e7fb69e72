#pragma once

#include <QPointF>

/// The geometry of a straight line, in points.
///
/// A line has either a length (it then runs from the item's position to the right, before
/// rotation) or two ends in page coordinates.
class ILineItem
{
public:
    virtual ~ILineItem() = default;

    virtual void setLineLength(double length) = 0;            ///< In points.
    virtual void setLineStartPoint(const QPointF& point) = 0; ///< On the page, in points.
    virtual void setLineEndPoint(const QPointF& point) = 0;   ///< On the page, in points.
    /// Marker at the start of the line: 0x10 an arrow, 0x30 a small arrow,
    /// 0x50 a double arrow, 0x80 a dimension stroke.
    virtual void setLineStartMarker(int marker) = 0;
    /// Marker at the end of the line: 1 an arrow, 3 a small arrow,
    /// 5 a double arrow, 8 a dimension stroke.
    virtual void setLineEndMarker(int marker) = 0;
};
