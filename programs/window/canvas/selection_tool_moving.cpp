// Items that are dragged with the selection tool.
#include "window/canvas/locks.h"
#include "window/canvas/selection_tool.h"
#include "window/edit/geometry.h"
#include "workbench/canvas/canvas.h"

#include <QGraphicsItem>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace window {

namespace {

QPointF alongOneAxis(const QPointF& way)
{
    return std::abs(way.x()) >= std::abs(way.y()) ? QPointF(way.x(), 0.0) : QPointF(0.0, way.y());
}

} // namespace

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
    prepareMove();
    m_band = QRect(m_pressedAt, at).normalized();
}

// Prepares snapping.
void SelectionTool::prepareMove()
{
    m_movedBox = QRectF();
    QSet<const workbench::CanvasItem*> dragged;
    for (const ItemMove& move : std::as_const(m_moves)) {
        if (const auto* item = dynamic_cast<const workbench::CanvasItem*>(move.item)) {
            dragged.insert(item);
            m_movedBox |= boundsOf(item->values());
        }
    }
    if (m_drag == Drag::Moving) {
        m_lines = SnapLines(*m_canvas, dragged);
    }
}

void SelectionTool::moveItems(const QMouseEvent& event)
{
    QPointF way = m_view.mapToScene(event.position().toPoint()) - m_view.mapToScene(m_pressedAt);
    const bool isAlongAxis = event.modifiers().testFlag(Qt::ControlModifier);
    if (isAlongAxis) {
        way = alongOneAxis(way);
    }
    SnapLines::Snap snap = m_lines.snapBox(m_movedBox.translated(way), snapDistance(event));
    if (isAlongAxis && way.x() == 0.0) {
        snap.way.setX(0.0);
        snap.x.reset();
    } else if (isAlongAxis) {
        snap.way.setY(0.0);
        snap.y.reset();
    }
    way += snapped(snap);
    for (ItemMove& move : m_moves) {
        move.item->setPos(move.from + way);
        move.to = move.item->pos();
    }
}

} // namespace window
