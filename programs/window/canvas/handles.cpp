#include "window/canvas/handles.h"

#include "window/edit/geometry.h"

#include <QGraphicsView>
#include <QLineF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace window {

namespace {

constexpr double RotateDistance = 24.0; // pixels above the box
constexpr double HandleSide = 8.0;      // pixels
constexpr double AngleStep = 15.0;      // degrees, with Ctrl

struct Side
{
    Handle handle;
    int across; // -1 left, 0 middle, 1 right
    int down;   // -1 top, 0 middle, 1 bottom
};

constexpr Side Sides[] = {
    {Handle::TopLeft, -1, -1},   {Handle::Top, 0, -1},        {Handle::TopRight, 1, -1},
    {Handle::Right, 1, 0},       {Handle::BottomRight, 1, 1}, {Handle::Bottom, 0, 1},
    {Handle::BottomLeft, -1, 1}, {Handle::Left, -1, 0},
};

Side sideOf(Handle handle)
{
    const auto* side = std::find_if(std::begin(Sides), std::end(Sides),
                                    [handle](const Side& each) { return each.handle == handle; });
    return side != std::end(Sides) ? *side : Side{handle, 0, -1};
}

// A point of the box: -1, 0 and 1 are one edge, the middle, the other edge.
QPointF pointOf(const QRectF& box, int across, int down)
{
    const QPointF center = box.center();
    return center + QPointF(across * box.width() / 2.0, down * box.height() / 2.0);
}

double angleOf(const QPointF& vector)
{
    return -QLineF({}, vector).angle(); // clockwise
}

QRectF resized(const QRectF& box, const Side& side, const QPointF& way,
               Qt::KeyboardModifiers modifiers)
{
    const bool keepsCenter = modifiers.testFlag(Qt::ShiftModifier);
    const double factor = keepsCenter ? 2.0 : 1.0;
    double width = std::max(SmallestSide, box.width() + side.across * way.x() * factor);
    double height = std::max(SmallestSide, box.height() + side.down * way.y() * factor);
    if (side.across == 0) {
        width = box.width();
    }
    if (side.down == 0) {
        height = box.height();
    }
    if (modifiers.testFlag(Qt::ControlModifier) && !box.isEmpty()) {
        const double across = width / box.width();
        const double down = height / box.height();
        const double scale = side.across == 0 ? down
                             : side.down == 0 ? across
                                              : std::max(across, down);
        width = box.width() * scale;
        height = box.height() * scale;
    }
    const QPointF anchor = keepsCenter ? box.center() : pointOf(box, -side.across, -side.down);
    const int across = keepsCenter ? 0 : side.across;
    const int down = keepsCenter ? 0 : side.down;
    const QPointF center = anchor + QPointF(across * width / 2.0, down * height / 2.0);
    return {center - QPointF(width / 2.0, height / 2.0), QSizeF(width, height)};
}

void resize(QList<ItemChange>& items, const HandleFrame& frame, const HandleDrag& drag)
{
    const QTransform toFrame = frame.toCanvas.inverted();
    const QPointF way = toFrame.map(drag.to) - toFrame.map(drag.from);
    const QRectF box = resized(frame.box, sideOf(drag.handle), way, drag.modifiers);
    for (ItemChange& item : items) {
        item.after = item.before;
        if (items.size() == 1) {
            setLocalBox(item.after, box);
        } else {
            scale(item.after, frame.box, box);
        }
    }
}

void rotate(QList<ItemChange>& items, const HandleFrame& frame, const HandleDrag& drag)
{
    const bool isAboutEdge = drag.modifiers.testFlag(Qt::ShiftModifier);
    const QPointF pivot = frame.toCanvas.map(pointOf(frame.box, 0, isAboutEdge ? 1 : 0));
    double degrees = angleOf(drag.to - pivot) - angleOf(drag.from - pivot);
    if (drag.modifiers.testFlag(Qt::ControlModifier)) {
        const double start = items.size() == 1 ? items.constFirst().before.box.rotation : 0.0;
        degrees = std::round((start + degrees) / AngleStep) * AngleStep - start;
    }
    for (ItemChange& item : items) {
        item.after = item.before;
        rotateAbout(item.after, pivot, degrees);
    }
}

QPointF inSteps(const QPointF& fixed, const QPointF& moved)
{
    QLineF line(fixed, moved);
    line.setAngle(std::round(line.angle() / AngleStep) * AngleStep);
    return line.p2();
}

void moveLineEnd(ItemChange& item, const HandleFrame& frame, const HandleDrag& drag)
{
    const bool isStart = drag.handle == Handle::LineStart;
    QPointF moved = (isStart ? frame.start : frame.end) + drag.to - drag.from;
    const QPointF fixed = isStart ? frame.end : frame.start;
    if (drag.modifiers.testFlag(Qt::ControlModifier)) {
        moved = inSteps(fixed, moved);
    }
    item.after = item.before;
    setEnds(item.after, isStart ? LineEnds{moved, fixed} : LineEnds{fixed, moved});
}

} // namespace

std::optional<HandleFrame> frameOf(const QList<ItemChange>& items)
{
    if (items.isEmpty()) {
        return std::nullopt;
    }
    HandleFrame frame;
    if (items.size() == 1) {
        const workbench::ItemValues& values = items.constFirst().after;
        const LineEnds ends = endsOf(values);
        frame.box = localBox(values);
        frame.toCanvas = toCanvas(values);
        frame.isLine = values.line.has_value();
        frame.start = ends.start;
        frame.end = ends.end;
        return frame;
    }
    for (const ItemChange& item : items) {
        frame.box |= boundsOf(item.after);
    }
    return frame;
}

QPointF handlePosition(const HandleFrame& frame, Handle handle, double pixelsPerPoint)
{
    if (handle == Handle::LineStart || handle == Handle::LineEnd) {
        return handle == Handle::LineStart ? frame.start : frame.end;
    }
    const Side side = sideOf(handle);
    QPointF point = pointOf(frame.box, side.across, side.down);
    if (handle == Handle::Rotate) {
        point.ry() -= RotateDistance / pixelsPerPoint;
    }
    return frame.toCanvas.map(point);
}

QList<Handle> handlesOf(const HandleFrame& frame)
{
    if (frame.isLine) {
        return {Handle::LineStart, Handle::LineEnd};
    }
    QList<Handle> handles{Handle::Rotate};
    for (const Side& side : Sides) {
        handles.append(side.handle);
    }
    return handles;
}

Qt::CursorShape cursorOf(const HandleFrame& frame, Handle handle)
{
    if (handle == Handle::Rotate) {
        return Qt::CrossCursor;
    }
    if (handle == Handle::LineStart || handle == Handle::LineEnd) {
        return Qt::SizeAllCursor;
    }
    const Side side = sideOf(handle);
    const QPointF direction =
        frame.toCanvas.map(QPointF(side.across, side.down)) - frame.toCanvas.map(QPointF(0.0, 0.0));
    constexpr Qt::CursorShape Shapes[] = {Qt::SizeHorCursor, Qt::SizeFDiagCursor, Qt::SizeVerCursor,
                                          Qt::SizeBDiagCursor};
    const int eighth = qRound(angleOf(direction) / 45.0);
    return Shapes[((eighth % 4) + 4) % 4];
}

void applyDrag(QList<ItemChange>& items, const HandleFrame& frame, const HandleDrag& drag)
{
    if (drag.handle == Handle::Rotate) {
        rotate(items, frame, drag);
    } else if (frame.isLine) {
        moveLineEnd(items.first(), frame, drag);
    } else {
        resize(items, frame, drag);
    }
}

void paintHandles(QPainter& painter, const QGraphicsView& view, const HandleFrame& frame)
{
    const double pixelsPerPoint = view.transform().m11();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(view.palette().color(QPalette::Highlight));
    painter.setBrush(Qt::white);
    const QList<Handle> handles = handlesOf(frame);
    for (const Handle handle : handles) {
        const QPointF at =
            view.viewportTransform().map(handlePosition(frame, handle, pixelsPerPoint));
        const QRectF square(at - QPointF(HandleSide / 2.0, HandleSide / 2.0),
                            QSizeF(HandleSide, HandleSide));
        if (handle == Handle::Rotate) {
            painter.drawLine(at, view.viewportTransform().map(
                                     handlePosition(frame, Handle::Top, pixelsPerPoint)));
            painter.drawEllipse(square);
        } else {
            painter.drawRect(square);
        }
    }
}

} // namespace window
