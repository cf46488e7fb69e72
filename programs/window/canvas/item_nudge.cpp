#include "window/canvas/item_nudge.h"

#include "window/canvas/locks.h"
#include "workbench/items/units.h"

#include <QGraphicsItem>

namespace window {

namespace {

using workbench::PointsPerMillimeter;
constexpr double Nudge = 0.5 * PointsPerMillimeter;
constexpr double CoarseNudge = 5.0 * PointsPerMillimeter;
constexpr double FineNudge = 0.1 * PointsPerMillimeter;

QPointF directionOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1.0, 0.0};
    case Qt::Key_Right:
        return {1.0, 0.0};
    case Qt::Key_Up:
        return {0.0, -1.0};
    case Qt::Key_Down:
        return {0.0, 1.0};
    default:
        return {};
    }
}

double lengthOf(Qt::KeyboardModifiers modifiers)
{
    if (modifiers.testFlag(Qt::ControlModifier)) {
        return FineNudge;
    }
    return modifiers.testFlag(Qt::ShiftModifier) ? CoarseNudge : Nudge;
}

} // namespace

bool isArrow(int key)
{
    return !directionOf(key).isNull();
}

QList<ItemMove> nudgedItems(const QList<QGraphicsItem*>& items, int key,
                            Qt::KeyboardModifiers modifiers)
{
    const QPointF way = directionOf(key) * lengthOf(modifiers);
    QList<ItemMove> moves;
    if (way.isNull()) {
        return moves;
    }
    for (QGraphicsItem* item : items) {
        if (isMovable(*item)) {
            moves.append({item, item->pos(), item->pos() + way});
        }
    }
    return moves;
}

} // namespace window
