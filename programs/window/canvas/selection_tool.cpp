#include "window/canvas/selection_tool.h"

#include "window/edit/locks.h"
#include "workbench/canvas/canvas.h"

#include <QGraphicsItem>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace window {

namespace {

// Distance within which a click hits an item, and beyond which a press is a drag. Pixels.
constexpr int HitDistance = 3;
constexpr int DragDistance = 4;

bool changesSelection(const QMouseEvent& event)
{
    return (event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier)) != 0;
}

QPointF alongOneAxis(const QPointF& way)
{
    return std::abs(way.x()) >= std::abs(way.y()) ? QPointF(way.x(), 0.0) : QPointF(0.0, way.y());
}

bool isSelected(workbench::CanvasItem* item)
{
    return item->graphicsItem()->isSelected();
}

} // namespace

SelectionTool::SelectionTool(QGraphicsView& view)
    : QObject(&view)
    , m_view(view)
{}

void SelectionTool::setCanvas(workbench::Canvas* canvas)
{
    if (m_canvas != nullptr) {
        disconnect(m_canvas, nullptr, this, nullptr);
    }
    m_canvas = canvas;
    m_drag = Drag::None;
    m_hits.clear();
    m_moves.clear();
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
    } else if (m_drag == Drag::Selecting) {
        m_band = QRect(m_pressedAt, at).normalized();
        m_view.viewport()->update();
    }
}

void SelectionTool::beginDrag(const QPoint& at, bool extends)
{
    m_moves.clear();
    bool isOnSelection = std::any_of(m_hits.begin(), m_hits.end(), isSelected);
    if (!isOnSelection && !m_hits.isEmpty() && !extends) {
        selectOnly(m_hits.constFirst());
        isOnSelection = true;
    }
    if (isOnSelection) {
        const QList<QGraphicsItem*> selected = m_canvas->scene()->selectedItems();
        for (QGraphicsItem* item : selected) {
            if (isMovable(*item)) {
                m_moves.append({item, item->pos(), item->pos()});
            }
        }
        if (m_moves.isEmpty()) {
            explain();
        }
    }
    m_drag = m_moves.isEmpty() ? Drag::Selecting : Drag::Moving;
    m_band = QRect(m_pressedAt, at).normalized();
}

void SelectionTool::moveItems(const QMouseEvent& event)
{
    QPointF way = m_view.mapToScene(event.position().toPoint()) - m_view.mapToScene(m_pressedAt);
    if (event.modifiers().testFlag(Qt::ControlModifier)) {
        way = alongOneAxis(way);
    }
    for (ItemMove& move : m_moves) {
        move.item->setPos(move.from + way);
        move.to = move.item->pos();
    }
}

void SelectionTool::release(const QMouseEvent& event)
{
    const Drag drag = std::exchange(m_drag, Drag::None);
    if (drag == Drag::Moving) {
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
    const QString reason = item != nullptr ? whyNotMovable(item->values()) : QString();
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
    }
    m_hits.clear();
    m_moves.clear();
    m_view.viewport()->update();
    return drag == Drag::Moving || drag == Drag::Selecting;
}

void SelectionTool::paint(QPainter& painter) const
{
    if (m_drag != Drag::Selecting) {
        return;
    }
    const QColor color = m_view.palette().color(QPalette::Highlight);
    QColor inside = color;
    inside.setAlphaF(0.15F);
    painter.setPen(color);
    painter.setBrush(inside);
    painter.drawRect(m_band);
}

} // namespace window
