#include "window/canvas/selection_tool.h"

#include "window/canvas/locks.h"
#include "window/edit/geometry.h"
#include "workbench/canvas/canvas.h"

#include <QGraphicsItem>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QSet>

#include <algorithm>

namespace window {

namespace {

// Distance within which a click hits an item, and beyond which a press is a drag. Pixels.
constexpr int HitDistance = 3;
constexpr int DragDistance = 4;

bool changesSelection(const QMouseEvent& event)
{
    return (event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier)) != 0;
}

workbench::CanvasItem* singleSelected(workbench::Canvas& canvas)
{
    const QList<QGraphicsItem*> selected = canvas.scene()->selectedItems();
    return selected.size() == 1 ? dynamic_cast<workbench::CanvasItem*>(selected.constFirst())
                                : nullptr;
}

QSet<const workbench::CanvasItem*> setOf(const QList<ItemChange>& changes)
{
    QSet<const workbench::CanvasItem*> items;
    for (const ItemChange& change : changes) {
        items.insert(change.item);
    }
    return items;
}

} // namespace

SelectionTool::SelectionTool(QGraphicsView& view)
    : QObject(&view)
    , m_view(view)
{}

bool SelectionTool::isSelected(const workbench::CanvasItem* item)
{
    return item->graphicsItem()->isSelected();
}

void SelectionTool::setCanvas(workbench::Canvas* canvas)
{
    if (m_canvas != nullptr) {
        disconnect(m_canvas, nullptr, this, nullptr);
    }
    m_canvas = canvas;
    m_drag = Drag::None;
    m_hits.clear();
    m_moves.clear();
    m_changes.clear();
    m_selectedBefore = nullptr;
    if (canvas != nullptr) {
        // An item of the drag may have been removed.
        connect(canvas, &workbench::Canvas::itemsChanged, this, &SelectionTool::cancel);
    }
}

// The items that are painted near a point, the topmost first.
QList<workbench::CanvasItem*> SelectionTool::itemsAt(const QPoint& at) const
{
    const QRect around(at - QPoint(HitDistance, HitDistance),
                       QSize(2 * HitDistance + 1, 2 * HitDistance + 1));
    const QList<QGraphicsItem*> all =
        m_canvas->scene()->items(m_view.mapToScene(around), Qt::IntersectsItemShape,
                                 Qt::DescendingOrder, m_view.viewportTransform());
    QList<workbench::CanvasItem*> items;
    for (QGraphicsItem* each : all) {
        if (auto* item = dynamic_cast<workbench::CanvasItem*>(each)) {
            items.append(item);
        }
    }
    return items;
}

void SelectionTool::press(const QMouseEvent& event)
{
    if (m_canvas == nullptr) {
        return;
    }
    m_pressedAt = event.position().toPoint();
    m_handle = handleAt(m_pressedAt);
    if (m_handle != Handle::None) {
        m_drag = Drag::Handling;
        m_changes = changeableItems();
        m_frame = *frameOf(m_changes);
        m_lines = SnapLines(*m_canvas, setOf(m_changes));
        return;
    }
    m_selectedBefore = singleSelected(*m_canvas);
    m_hits = itemsAt(m_pressedAt);
    m_drag = Drag::Pressed;
    m_selectedByPress = false;
    const bool isNew = std::none_of(m_hits.begin(), m_hits.end(), isSelected);
    if (isNew && !m_hits.isEmpty() && !changesSelection(event)) {
        selectOnly(m_hits.constFirst());
        m_selectedByPress = true;
    }
}

void SelectionTool::move(const QMouseEvent& event)
{
    const QPoint at = event.position().toPoint();
    if (m_drag == Drag::Pressed && (at - m_pressedAt).manhattanLength() >= DragDistance) {
        beginDrag(at, event.modifiers().testFlag(Qt::ShiftModifier));
    }
    if (m_drag == Drag::Moving) {
        moveItems(event);
    } else if (m_drag == Drag::Handling) {
        dragHandle(event);
    } else if (m_drag == Drag::Selecting) {
        m_band = QRect(m_pressedAt, at).normalized();
        m_view.viewport()->update();
    }
}

void SelectionTool::release(const QMouseEvent& event)
{
    const Drag drag = std::exchange(m_drag, Drag::None);
    m_snap = {};
    if (drag == Drag::Handling) {
        QList<ItemChange> changes = std::exchange(m_changes, {});
        changes.removeIf([](const ItemChange& change) { return change.before == change.after; });
        if (!changes.isEmpty()) {
            Q_EMIT itemsChanged(m_handle == Handle::Rotate ? tr("Rotate") : tr("Resize"), changes);
        }
    } else if (drag == Drag::Moving) {
        const QList<ItemMove> moves = std::exchange(m_moves, {});
        Q_EMIT itemsMoved(moves);
    } else if (drag == Drag::Selecting) {
        selectInBand(changesSelection(event));
    } else if (drag == Drag::Pressed) {
        click(event);
    }
    m_view.viewport()->update();
}

void SelectionTool::selectInBand(bool adds)
{
    QPainterPath area;
    area.addPolygon(m_view.mapToScene(m_band));
    area.closeSubpath();
    m_canvas->scene()->setSelectionArea(area, adds ? Qt::AddToSelection : Qt::ReplaceSelection,
                                        Qt::IntersectsItemShape, m_view.viewportTransform());
}

void SelectionTool::click(const QMouseEvent& event)
{
    if (changesSelection(event)) {
        if (!m_hits.isEmpty()) {
            QGraphicsItem* item = m_hits.constFirst()->graphicsItem();
            item->setSelected(!item->isSelected());
        }
        return;
    }
    if (m_hits.isEmpty()) {
        m_canvas->scene()->clearSelection();
        return;
    }
    if (!m_selectedByPress) {
        const auto selected = std::find_if(m_hits.cbegin(), m_hits.cend(), isSelected);
        const bool isAlone = m_canvas->scene()->selectedItems().size() == 1;
        const qsizetype index = selected - m_hits.cbegin() + (isAlone ? 1 : 0);
        selectOnly(m_hits.at(index % m_hits.size()));
    }
    explain();
}

void SelectionTool::selectOnly(workbench::CanvasItem* item)
{
    QGraphicsScene& scene = *m_canvas->scene();
    {
        // One change of the selection, not two.
        const QSignalBlocker silence(&scene);
        scene.clearSelection();
        item->graphicsItem()->setSelected(true);
    }
    Q_EMIT scene.selectionChanged();
}

// A single selected item that cannot be moved looks like any other.
void SelectionTool::explain()
{
    const QList<QGraphicsItem*> selected = m_canvas->scene()->selectedItems();
    auto* item =
        selected.isEmpty() ? nullptr : dynamic_cast<workbench::CanvasItem*>(selected.constFirst());
    const QString reason = item != nullptr ? immovableReason(item->values()) : QString();
    if (!reason.isEmpty()) {
        Q_EMIT hintShown(reason);
    }
}

bool SelectionTool::cancel()
{
    const Drag drag = std::exchange(m_drag, Drag::None);
    if (drag == Drag::Moving) {
        for (const ItemMove& move : std::as_const(m_moves)) {
            move.item->setPos(move.from);
        }
    } else if (drag == Drag::Handling) {
        for (const ItemChange& change : std::as_const(m_changes)) {
            change.item->setValues(change.before);
        }
    }
    m_changes.clear();
    m_snap = {};
    m_selectedBefore = nullptr;
    m_hits.clear();
    m_moves.clear();
    m_view.viewport()->update();
    return drag != Drag::None && drag != Drag::Pressed;
}

void SelectionTool::selectAt(const QPoint& at)
{
    if (m_canvas == nullptr) {
        return;
    }
    const QList<workbench::CanvasItem*> items = itemsAt(at);
    if (!items.isEmpty() && std::none_of(items.begin(), items.end(), isSelected)) {
        selectOnly(items.constFirst());
    }
}

workbench::CanvasItem* SelectionTool::itemForDoubleClick(const QPoint& at) const
{
    if (m_canvas == nullptr) {
        return nullptr;
    }
    const QList<workbench::CanvasItem*> items = itemsAt(at);
    return items.contains(m_selectedBefore) ? m_selectedBefore : items.value(0);
}

} // namespace window
