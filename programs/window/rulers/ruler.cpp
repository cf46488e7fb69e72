#include "window/rulers/ruler.h"

#include <QPainter>

namespace window {

namespace {

QString nameOf(Qt::Orientation orientation)
{
    return orientation == Qt::Horizontal ? Ruler::tr("Horizontal ruler")
                                         : Ruler::tr("Vertical ruler");
}

double lengthOf(TickRank rank, double thickness)
{
    switch (rank) {
    case TickRank::Labeled:
        return thickness;
    case TickRank::Middle:
        return thickness * 0.45;
    case TickRank::Small:
        break;
    }
    return thickness * 0.25;
}

} // namespace

Ruler::Ruler(Qt::Orientation orientation, QWidget* parent)
    : QWidget(parent)
    , m_orientation(orientation)
{
    const bool horizontal = orientation == Qt::Horizontal;
    setSizePolicy(horizontal ? QSizePolicy::Expanding : QSizePolicy::Fixed,
                  horizontal ? QSizePolicy::Fixed : QSizePolicy::Expanding);
    setAccessibleName(nameOf(orientation));
}

void Ruler::setUnit(LengthUnit unit)
{
    m_unit = unit;
    update();
}

void Ruler::setSpan(double originPixel, double pixelsPerPoint)
{
    m_origin = originPixel;
    m_pixelsPerPoint = pixelsPerPoint;
    update();
}

void Ruler::setPointer(std::optional<double> pixel)
{
    m_pointer = pixel;
    update();
}

QSize Ruler::sizeHint() const
{
    const int side = fontMetrics().height() + 6;
    return {side, side};
}

RulerSpan Ruler::span() const
{
    return {m_origin, m_pixelsPerPoint, m_orientation == Qt::Horizontal ? width() : height()};
}

int Ruler::thickness() const
{
    return m_orientation == Qt::Horizontal ? height() : width();
}

void Ruler::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    painter.setFont(small);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    painter.setPen(palette().color(QPalette::Mid));
    if (m_orientation == Qt::Horizontal) {
        painter.drawLine(0, height() - 1, width(), height() - 1);
    } else {
        // The vertical ruler is painted as a rotated horizontal one.
        painter.drawLine(width() - 1, 0, width() - 1, height());
        painter.translate(width(), 0);
        painter.rotate(90.0);
    }
    painter.setPen(palette().color(QPalette::Text));
    const QList<RulerTick> ticks = rulerTicks(span(), m_unit);
    for (const RulerTick& tick : ticks) {
        paintTick(painter, tick);
    }
    paintPointer(painter);
}

void Ruler::paintTick(QPainter& painter, const RulerTick& tick) const
{
    const double side = thickness();
    const bool horizontal = m_orientation == Qt::Horizontal;
    const double length = lengthOf(tick.rank, side);
    // Ticks are on the side of the canvas: at the bottom or, rotated, at the right.
    const QLineF line = horizontal ? QLineF(tick.pixel, side - length, tick.pixel, side)
                                   : QLineF(tick.pixel, 0.0, tick.pixel, length);
    painter.drawLine(line);
    if (!tick.label.isEmpty()) {
        const double top = horizontal ? 0.0 : side * 0.3;
        painter.drawText(QRectF(tick.pixel + 3.0, top, 80.0, side * 0.7),
                         Qt::AlignLeft | Qt::AlignVCenter, tick.label);
    }
}

void Ruler::paintPointer(QPainter& painter) const
{
    if (!m_pointer) {
        return;
    }
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2.0));
    painter.drawLine(QLineF(*m_pointer, 0.0, *m_pointer, thickness()));
}

} // namespace window
