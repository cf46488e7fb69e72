#pragma once

#include "workbench/items/item_values.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QTransform>

namespace window {

// The geometry of items by their values. The canvas's unit is the point.

/// Shortest side that a drag can give to an item, in points.
inline constexpr double SmallestSide = 1.0;

/// The box in item coordinates.
[[nodiscard]] QRectF localBox(const workbench::ItemValues& values);

/// From item coordinates to the canvas.
[[nodiscard]] QTransform toCanvas(const workbench::ItemValues& values);

/// The bounds of the rotated box on the canvas.
[[nodiscard]] QRectF boundsOf(const workbench::ItemValues& values);

void moveBy(workbench::ItemValues& values, const QPointF& way);

/// Gives the box this size; its upper left corner, before rotation, stays. A line keeps its
/// direction. A side of a text that followed its content becomes fixed if its length changes.
void setSize(workbench::ItemValues& values, const QSizeF& size);

/// Gives the item this box, in the coordinates of the item before the change.
void setLocalBox(workbench::ItemValues& values, const QRectF& box);

/// Scales positions and sizes so that one rectangle of the canvas becomes the other. Font sizes and
/// line widths do not change.
void scale(workbench::ItemValues& values, const QRectF& from, const QRectF& to);

/// Rotates clockwise about a point of the canvas.
void rotateAbout(workbench::ItemValues& values, const QPointF& center, double degrees);

/// The ends of a line on the canvas.
struct LineEnds
{
    QPointF start;
    QPointF end;
};
[[nodiscard]] LineEnds endsOf(const workbench::ItemValues& values);
void setEnds(workbench::ItemValues& values, const LineEnds& ends);

} // namespace window
