#include "migration/losses/polygons.h"

#include <cmath>

namespace migration {

namespace {

double side(const QPointF& from, const QPointF& to, const QPointF& point)
{
    return (to.x() - from.x()) * (point.y() - from.y()) -
           (to.y() - from.y()) * (point.x() - from.x());
}

} // namespace

double areaOf(const QPolygonF& polygon)
{
    double doubled = 0.0;
    for (qsizetype index = 0; index < polygon.size(); ++index) {
        const QPointF& a = polygon.at(index);
        const QPointF& b = polygon.at((index + 1) % polygon.size());
        doubled += a.x() * b.y() - b.x() * a.y();
    }
    return std::abs(doubled) / 2.0;
}

QPolygonF clipped(QPolygonF polygon, const QPolygonF& window)
{
    const QPointF center = window.boundingRect().center();
    for (qsizetype edge = 0; edge < window.size(); ++edge) {
        const QPointF& from = window.at(edge);
        const QPointF& to = window.at((edge + 1) % window.size());
        const double inside = side(from, to, center) < 0.0 ? -1.0 : 1.0;
        QPolygonF rest;
        for (qsizetype index = 0; index < polygon.size(); ++index) {
            const QPointF& a = polygon.at(index);
            const QPointF& b = polygon.at((index + 1) % polygon.size());
            const double sideOfA = inside * side(from, to, a);
            const double sideOfB = inside * side(from, to, b);
            if (sideOfA >= 0.0) {
                rest.append(a);
            }
            if ((sideOfA > 0.0 && sideOfB < 0.0) || (sideOfA < 0.0 && sideOfB > 0.0)) {
                rest.append(a + (b - a) * (sideOfA / (sideOfA - sideOfB)));
            }
        }
        polygon = rest;
    }
    return polygon;
}

QPolygonF cornersOf(const QRectF& box)
{
    return QPolygonF({box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft()});
}

} // namespace migration
