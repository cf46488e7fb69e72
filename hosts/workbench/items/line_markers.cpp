#include "workbench/items/line_markers.h"

#include <QPolygonF>

#include <algorithm>

namespace workbench {

namespace {

// An arrow grows with thick lines. On thin ones it is as large as office suites draw it: 3 mm wide
// and 4.5 mm long; a small one has half of that.
double arrowLength(Marker marker, double penWidth)
{
    const bool small = marker == Marker::SmallArrow;
    return small ? std::max(6.4, 2.5 * penWidth) : std::max(12.75, 4.0 * penWidth);
}

double arrowHalfWidth(Marker marker, double penWidth)
{
    return arrowLength(marker, penWidth) / 3.0;
}

QPointF across(const QPointF& direction)
{
    return {-direction.y(), direction.x()};
}

void addArrow(QPainterPath& path, const QPointF& tip, const QPointF& outward, double length,
              double halfWidth)
{
    const QPointF base = tip - outward * length;
    const QPointF side = across(outward) * halfWidth;
    path.addPolygon(QPolygonF({tip, base + side, base - side}));
    path.closeSubpath();
}

// A stroke across the end, as wide as the line.
void addDimensionStroke(QPainterPath& path, const QPointF& tip, const QPointF& outward,
                        double penWidth)
{
    const QPointF half = across(outward) * (arrowLength(Marker::Arrow, penWidth) * 0.5);
    const QPointF thickness = outward * std::max(0.5, penWidth);
    path.addPolygon(
        QPolygonF({tip + half, tip - half, tip - half - thickness, tip + half - thickness}));
    path.closeSubpath();
}

Marker markerFromCode(int code)
{
    switch (code) {
    case 3:
        return Marker::SmallArrow;
    case 5:
        return Marker::DoubleArrow;
    case 8:
        return Marker::Dimension;
    default:
        return code > 0 ? Marker::Arrow : Marker::None;
    }
}

} // namespace

Marker startMarker(int code)
{
    const bool isShiftedCode = code > 0 && (code & 0x0F) == 0;
    return markerFromCode(isShiftedCode ? code >> 4 : std::min(code, 1));
}

Marker endMarker(int code)
{
    return markerFromCode(code);
}

QPainterPath markerPath(Marker marker, const QPointF& tip, const QPointF& outward, double penWidth)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    if (marker == Marker::None) {
        return path;
    }
    if (marker == Marker::Dimension) {
        addDimensionStroke(path, tip, outward, penWidth);
        return path;
    }
    const double length = arrowLength(marker, penWidth);
    const double halfWidth = arrowHalfWidth(marker, penWidth);
    addArrow(path, tip, outward, length, halfWidth);
    if (marker == Marker::DoubleArrow) {
        addArrow(path, tip - outward * length, outward, length, halfWidth);
    }
    return path;
}

double markerInset(Marker marker, double penWidth)
{
    const bool isArrow = marker != Marker::None && marker != Marker::Dimension;
    return isArrow ? arrowLength(marker, penWidth) * 0.8 : 0.0;
}

double markerReach(double penWidth)
{
    return arrowLength(Marker::Arrow, penWidth);
}

} // namespace workbench
