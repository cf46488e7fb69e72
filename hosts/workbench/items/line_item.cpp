#include "workbench/items/line_item.h"

#include "workbench/items/line_markers.h"
#include "workbench/items/pen_and_fill.h"

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

QPointF unitVector(const QPointF& vector, double length)
{
    return vector / length;
}

QPointF boundedEnd(const QPointF& end)
{
    return {boundedLength(end.x()), boundedLength(end.y())};
}

} // namespace

void LineItem::setItemSize(const QSizeF& size)
{
    const QSizeF bounded = boundedSize(size).expandedTo({0.0, 0.0});
    setEnd({std::copysign(bounded.width(), m_line.end.x()),
            std::copysign(bounded.height(), m_line.end.y())});
}

void LineItem::setLineLength(double length)
{
    setEnd({std::max(0.0, boundedLength(length)), 0.0});
}

void LineItem::setLineStartPoint(const QPointF& point)
{
    const QPointF end = pos() + m_line.end;
    setPos(point);
    setEnd(end - pos());
}

void LineItem::setLineEndPoint(const QPointF& point)
{
    setEnd(boundedPosition(point) - pos());
}

void LineItem::setLineStartMarker(int marker)
{
    m_line.startMarker = marker;
    appearanceChanged();
}

void LineItem::setLineEndMarker(int marker)
{
    m_line.endMarker = marker;
    appearanceChanged();
}

void LineItem::setEnd(const QPointF& end)
{
    prepareGeometryChange();
    m_line.end = boundedEnd(end);
    setBoxSize(contentRect().size());
}

QRectF LineItem::contentRect() const
{
    return QRectF(QPointF(0.0, 0.0), m_line.end).normalized();
}

double LineItem::overhang() const
{
    return PenLayer::overhang() + markerReach(penValues().width);
}

bool LineItem::isDrawable() const
{
    return !m_line.end.isNull() && penValues().style != Qt::NoPen;
}

void LineItem::paintContent(QPainter& painter)
{
    const QLineF line(QPointF(0.0, 0.0), m_line.end);
    const double width = penValues().width;
    const QPointF direction = unitVector(m_line.end, line.length());
    const Marker atStart = startMarker(m_line.startMarker);
    const Marker atEnd = endMarker(m_line.endMarker);

    // A line shorter than its arrows shows only the arrows.
    const QPointF from = line.p1() + direction * markerInset(atStart, width);
    const QPointF to = line.p2() - direction * markerInset(atEnd, width);
    if (QPointF::dotProduct(to - from, direction) > 0.0) {
        painter.setPen(toPen(penValues()));
        painter.drawLine(from, to);
    }
    painter.fillPath(markerPath(atStart, line.p1(), -direction, width), penValues().color);
    painter.fillPath(markerPath(atEnd, line.p2(), direction, width), penValues().color);
}

QPainterPath LineItem::paintedArea() const
{
    const double width = penValues().width;
    const QPointF direction = unitVector(m_line.end, QLineF({}, m_line.end).length());
    QPainterPath line;
    line.lineTo(m_line.end);
    QPainterPath area = strokedArea(line, penValues());
    area.setFillRule(Qt::WindingFill);
    area.addPath(markerPath(startMarker(m_line.startMarker), {}, -direction, width));
    area.addPath(markerPath(endMarker(m_line.endMarker), m_line.end, direction, width));
    return area;
}

void LineItem::collect(ItemValues& values) const
{
    PenLayer::collect(values);
    values.line = m_line;
}

void LineItem::restore(const ItemValues& values)
{
    PenLayer::restore(values);
    m_line = values.line.value_or(LineValues());
    setEnd(m_line.end);
}

} // namespace workbench
