#include "workbench/items/shape_items.h"

#include "workbench/items/polygon_corners.h"

#include <algorithm>

namespace workbench {

namespace {

// Default radius of a rounded rectangle, as a fraction of its shorter side.
constexpr double DefaultCorner = 1.0 / 6.0;

double shorterSide(const QRectF& box)
{
    return std::min(box.width(), box.height());
}

} // namespace

QPainterPath RectangleItem::outline(const QRectF& box) const
{
    QPainterPath path;
    path.addRect(box);
    return path;
}

void RoundedRectangleItem::setCornerRadius(double radius)
{
    m_corner.radius = std::max(0.0, boundedLength(radius));
    appearanceChanged();
}

QPainterPath RoundedRectangleItem::outline(const QRectF& box) const
{
    const double shorter = shorterSide(box);
    const double radius =
        std::min(m_corner.radius.value_or(shorter * DefaultCorner), shorter / 2.0);
    QPainterPath path;
    path.addRoundedRect(box, radius, radius);
    return path;
}

void RoundedRectangleItem::collect(ItemValues& values) const
{
    ShapeLayer::collect(values);
    values.corner = m_corner;
}

void RoundedRectangleItem::restore(const ItemValues& values)
{
    ShapeLayer::restore(values);
    m_corner = values.corner.value_or(CornerValues());
    if (m_corner.radius) {
        setCornerRadius(*m_corner.radius);
    }
}

QPainterPath EllipseItem::outline(const QRectF& box) const
{
    QPainterPath path;
    path.addEllipse(box);
    return path;
}

QPainterPath PieItem::outline(const QRectF& box) const
{
    QPainterPath path(box.center());
    path.arcTo(box, 90.0, 270.0);
    path.closeSubpath();
    return path;
}

QPainterPath PolygonItem::outline(const QRectF& box) const
{
    QPainterPath path;
    path.addPolygon(polygonCorners(shapeType(), box));
    path.closeSubpath();
    return path;
}

} // namespace workbench
