#include "window/edit/geometry.h"

#include <QtMath>

#include <cmath>

namespace window {

namespace {

using workbench::ItemValues;

constexpr signed char FixesWidth = 1;
constexpr signed char FixesHeight = 2;

QPointF rotated(const QPointF& vector, double degrees)
{
    return QTransform().rotate(degrees).map(vector);
}

// Moves the center of the box to a point of the canvas.
void centerAt(ItemValues& values, const QPointF& center)
{
    values.placement.position += center - toCanvas(values).map(localBox(values).center());
}

void fixChangedSides(ItemValues& values, const QSizeF& before, const QSizeF& after)
{
    if (before.width() != after.width()) {
        values.textLabel->limiting |= FixesWidth;
    }
    if (before.height() != after.height()) {
        values.textLabel->limiting |= FixesHeight;
    }
    values.textLabel->textBox = after;
}

} // namespace

QRectF localBox(const ItemValues& values)
{
    return values.line ? QRectF({}, values.line->end).normalized()
                       : QRectF({}, values.box.size).normalized();
}

QTransform toCanvas(const ItemValues& values)
{
    const QPointF center = localBox(values).center();
    const QPointF position = values.placement.position;
    QTransform transform = QTransform::fromTranslate(position.x(), position.y());
    transform.translate(center.x(), center.y());
    transform.rotate(std::fmod(values.box.rotation, 360.0));
    return transform.translate(-center.x(), -center.y());
}

QRectF boundsOf(const ItemValues& values)
{
    return toCanvas(values).mapRect(localBox(values));
}

void moveBy(ItemValues& values, const QPointF& way)
{
    values.placement.position += way;
}

void setSize(ItemValues& values, const QSizeF& size)
{
    if (values.line) {
        const QPointF end = values.line->end;
        values.line->end = {std::copysign(size.width(), end.x()),
                            std::copysign(size.height(), end.y())};
    }
    if (values.textLabel) {
        fixChangedSides(values, values.box.size, size);
    }
    values.box.size = size;
}

void setLocalBox(ItemValues& values, const QRectF& box)
{
    const QPointF center = toCanvas(values).map(box.center());
    setSize(values, box.size());
    centerAt(values, center);
}

void scale(ItemValues& values, const QRectF& from, const QRectF& to)
{
    const double across = from.width() > 0.0 ? to.width() / from.width() : 1.0;
    const double down = from.height() > 0.0 ? to.height() / from.height() : 1.0;
    const auto mapped = [&](const QPointF& point) {
        return to.topLeft() +
               QPointF((point.x() - from.left()) * across, (point.y() - from.top()) * down);
    };
    if (values.line) {
        const LineEnds ends = endsOf(values);
        setEnds(values, {mapped(ends.start), mapped(ends.end)});
        return;
    }
    const QPointF center = mapped(boundsOf(values).center());
    // The scale along the sides of a rotated box; exact for multiples of 90 degrees.
    const double angle = qDegreesToRadians(values.box.rotation);
    const double wide = std::hypot(across * std::cos(angle), down * std::sin(angle));
    const double high = std::hypot(across * std::sin(angle), down * std::cos(angle));
    setSize(values, {values.box.size.width() * wide, values.box.size.height() * high});
    centerAt(values, center);
}

void rotateAbout(ItemValues& values, const QPointF& center, double degrees)
{
    const QPointF own = toCanvas(values).map(localBox(values).center());
    values.box.rotation = std::fmod(values.box.rotation + degrees, 360.0);
    centerAt(values, center + rotated(own - center, degrees));
}

LineEnds endsOf(const ItemValues& values)
{
    const QTransform transform = toCanvas(values);
    return {transform.map(QPointF()), transform.map(values.line ? values.line->end : QPointF())};
}

void setEnds(ItemValues& values, const LineEnds& ends)
{
    if (!values.line) {
        return;
    }
    const QPointF along = rotated(ends.end - ends.start, -values.box.rotation);
    values.line->end = along;
    values.box.size = localBox(values).size();
    values.placement.position = (ends.start + ends.end) / 2.0 - along / 2.0;
}

} // namespace window
