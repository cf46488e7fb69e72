#include "window/edit/arrange.h"

#include "window/edit/geometry.h"

#include <QSet>

#include <algorithm>
#include <functional>
#include <utility>

namespace window {

namespace {

using workbench::CanvasItem;

QList<ItemChange> movable(const QList<CanvasItem*>& items)
{
    QList<ItemChange> changes;
    for (CanvasItem* item : items) {
        const workbench::ItemValues values = item->values();
        if (isMovable(values)) {
            changes.append({item, values, values});
        }
    }
    return changes;
}

QList<ItemChange> withoutUnchanged(QList<ItemChange> changes)
{
    changes.removeIf(
        [](const ItemChange& change) { return change.before.placement == change.after.placement; });
    return changes;
}

QPointF wayTo(Edge edge, const QRectF& box, const QRectF& target)
{
    switch (edge) {
    case Edge::Left:
        return {target.left() - box.left(), 0.0};
    case Edge::HorizontalCenter:
        return {target.center().x() - box.center().x(), 0.0};
    case Edge::Right:
        return {target.right() - box.right(), 0.0};
    case Edge::Top:
        return {0.0, target.top() - box.top()};
    case Edge::VerticalCenter:
        return {0.0, target.center().y() - box.center().y()};
    case Edge::Bottom:
        return {0.0, target.bottom() - box.bottom()};
    }
    return {};
}

// Moves each selected item over the next item that is not selected.
void moveForward(QList<CanvasItem*>& stack, const QSet<CanvasItem*>& selected)
{
    for (qsizetype i = stack.size() - 2; i >= 0; --i) {
        if (selected.contains(stack.at(i)) && !selected.contains(stack.at(i + 1))) {
            stack.swapItemsAt(i, i + 1);
        }
    }
}

} // namespace

QList<ItemChange> align(const QList<CanvasItem*>& items, Edge edge, const QRectF& page)
{
    QRectF target;
    for (const CanvasItem* item : items) {
        target |= boundsOf(item->values());
    }
    if (items.size() == 1) {
        target = page;
    }
    QList<ItemChange> changes = movable(items);
    for (ItemChange& change : changes) {
        moveBy(change.after, wayTo(edge, boundsOf(change.before), target));
    }
    return withoutUnchanged(changes);
}

QList<ItemChange> distribute(const QList<CanvasItem*>& items, Qt::Orientation direction)
{
    const bool isAcross = direction == Qt::Horizontal;
    const auto begin = [isAcross](const ItemChange& change) {
        const QRectF box = boundsOf(change.before);
        return isAcross ? box.left() : box.top();
    };
    const auto length = [isAcross](const ItemChange& change) {
        const QRectF box = boundsOf(change.before);
        return isAcross ? box.width() : box.height();
    };
    QList<ItemChange> changes = movable(items);
    if (changes.size() < 3) {
        return {};
    }
    std::stable_sort(changes.begin(), changes.end(),
                     [&](const ItemChange& a, const ItemChange& b) { return begin(a) < begin(b); });
    double free =
        begin(changes.constLast()) + length(changes.constLast()) - begin(changes.constFirst());
    for (const ItemChange& change : std::as_const(changes)) {
        free -= length(change);
    }
    const double gap = free / static_cast<double>(changes.size() - 1);
    double at = begin(changes.constFirst());
    for (ItemChange& change : changes) {
        const double way = at - begin(change);
        moveBy(change.after, isAcross ? QPointF(way, 0.0) : QPointF(0.0, way));
        at += length(change) + gap;
    }
    return withoutUnchanged(changes);
}

QList<ItemChange> restack(const workbench::Canvas& canvas, const QList<CanvasItem*>& items,
                          Order order)
{
    const QSet<CanvasItem*> selected(items.begin(), items.end());
    QList<CanvasItem*> stack = canvas.itemsFromBottom();
    const auto isSelected = [&selected](CanvasItem* item) { return selected.contains(item); };
    switch (order) {
    case Order::Front:
        std::stable_partition(stack.begin(), stack.end(), std::not_fn(isSelected));
        break;
    case Order::Back:
        std::stable_partition(stack.begin(), stack.end(), isSelected);
        break;
    case Order::Forward:
        moveForward(stack, selected);
        break;
    case Order::Backward:
        std::reverse(stack.begin(), stack.end());
        moveForward(stack, selected);
        std::reverse(stack.begin(), stack.end());
        break;
    }
    if (stack == canvas.itemsFromBottom()) {
        return {};
    }
    QList<ItemChange> changes;
    for (qsizetype layer = 0; layer < stack.size(); ++layer) {
        const workbench::ItemValues values = stack.at(layer)->values();
        changes.append({stack.at(layer), values, values});
        changes.last().after.placement.z = static_cast<double>(layer);
    }
    return withoutUnchanged(changes);
}

} // namespace window
