#pragma once

#include "window/edit/commands.h"

#include <QPointF>
#include <QRectF>
#include <QTransform>

#include <optional>

class QGraphicsView;
class QPainter;

namespace window {

/// The handles around the selected items: eight to resize, one to rotate; a single line has its
/// two ends.
enum class Handle : quint8 {
    None,
    TopLeft,
    Top,
    TopRight,
    Right,
    BottomRight,
    Bottom,
    BottomLeft,
    Left,
    Rotate,
    LineStart,
    LineEnd,
};

/// More items are moved, but not resized together: reading all of them for each repaint is slow.
inline constexpr qsizetype MaximumHandledItems = 500;

/// The frame that the handles belong to: the box of a single item, the bounds of several.
struct HandleFrame
{
    QRectF box;
    QTransform toCanvas; ///< from the box's coordinates
    bool isLine = false;
    QPointF start; ///< ends of a line, on the canvas
    QPointF end;
};

/// Nothing if no item can be changed.
[[nodiscard]] std::optional<HandleFrame> frameOf(const QList<ItemChange>& items);

/// The position of a handle on the canvas. The handle to rotate is a fixed distance above the box
/// on the screen.
[[nodiscard]] QPointF handlePosition(const HandleFrame& frame, Handle handle,
                                     double pixelsPerPoint);

[[nodiscard]] QList<Handle> handlesOf(const HandleFrame& frame);

[[nodiscard]] Qt::CursorShape cursorOf(const HandleFrame& frame, Handle handle);

/// A drag of a handle between two points of the canvas. While resizing, Ctrl keeps the proportions
/// and Shift the center; while rotating, Ctrl steps by 15 degrees and Shift rotates about the
/// opposite edge; the end of a line moves in steps of 15 degrees with Ctrl.
struct HandleDrag
{
    Handle handle = Handle::None;
    QPointF from;
    QPointF to;
    Qt::KeyboardModifiers modifiers;
};

/// Sets the values after the drag.
void applyDrag(QList<ItemChange>& items, const HandleFrame& frame, const HandleDrag& drag);

/// Paints the handles in pixels of the view.
void paintHandles(QPainter& painter, const QGraphicsView& view, const HandleFrame& frame);

} // namespace window
