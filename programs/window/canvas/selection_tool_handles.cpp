// The handles of the selection tool, and its painting.
#include "window/canvas/locks.h"
#include "window/canvas/selection_tool.h"
#include "workbench/canvas/canvas.h"

#include <QGraphicsItem>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>

#include <cmath>

namespace window {

namespace {

// Distance within which a press hits a handle. Pixels.
constexpr double HandleDistance = 6.0;

} // namespace

void SelectionTool::paint(QPainter& painter) const
{
    const QColor color = m_view.palette().color(QPalette::Highlight);
    painter.setPen(QPen(color, 1.0, Qt::DotLine));
    if (m_snap.x) {
        const int x = m_view.mapFromScene(QPointF(*m_snap.x, 0.0)).x();
        painter.drawLine(x, 0, x, m_view.viewport()->height());
    }
    if (m_snap.y) {
        const int y = m_view.mapFromScene(QPointF(0.0, *m_snap.y)).y();
        painter.drawLine(0, y, m_view.viewport()->width(), y);
    }
    if (m_drag == Drag::Selecting) {
        QColor inside = color;
        inside.setAlphaF(0.15F);
        painter.setPen(color);
        painter.setBrush(inside);
        painter.drawRect(m_band);
    } else if (m_canvas != nullptr && m_drag != Drag::Moving) {
        if (const std::optional<HandleFrame> frame = frameOf(changeableItems())) {
            paintHandles(painter, m_view, *frame);
        }
    }
}

QList<ItemChange> SelectionTool::changeableItems() const
{
    const QList<QGraphicsItem*> selected = m_canvas->scene()->selectedItems();
    if (selected.size() > MaximumHandledItems) {
        return {};
    }
    QList<ItemChange> changes;
    for (QGraphicsItem* each : selected) {
        auto* item = dynamic_cast<workbench::CanvasItem*>(each);
        if (item != nullptr && isMovable(*each)) {
            const workbench::ItemValues values = item->values();
            changes.append({item, values, values});
        }
    }
    return changes;
}

Handle SelectionTool::handleAt(const QPoint& at) const
{
    const std::optional<HandleFrame> frame = frameOf(changeableItems());
    if (!frame) {
        return Handle::None;
    }
    const QList<Handle> handles = handlesOf(*frame);
    for (const Handle handle : handles) {
        const QPointF place = m_view.viewportTransform().map(
            handlePosition(*frame, handle, m_view.transform().m11()));
        const QPointF way = place - at;
        if (std::abs(way.x()) <= HandleDistance && std::abs(way.y()) <= HandleDistance) {
            return handle;
        }
    }
    return Handle::None;
}

void SelectionTool::hover(const QPoint& at)
{
    const Handle handle = m_canvas != nullptr ? handleAt(at) : Handle::None;
    if (handle != Handle::None) {
        m_view.viewport()->setCursor(cursorOf(*frameOf(changeableItems()), handle));
    } else {
        m_view.viewport()->unsetCursor();
    }
}

void SelectionTool::dragHandle(const QMouseEvent& event)
{
    const double pixelsPerPoint = m_view.transform().m11();
    HandleDrag drag{m_handle, m_view.mapToScene(m_pressedAt),
                    m_view.mapToScene(event.position().toPoint()), event.modifiers()};
    // Only an upright box has edges along the lines.
    const bool isUpright = m_frame.isLine || m_frame.toCanvas.type() <= QTransform::TxTranslate;
    if (isUpright && m_handle != Handle::Rotate) {
        const QPointF moved =
            handlePosition(m_frame, m_handle, pixelsPerPoint) + drag.to - drag.from;
        drag.to += snapped(m_lines.snapPoint(moved, SnapPixels / pixelsPerPoint));
    }
    applyDrag(m_changes, m_frame, drag);
    for (const ItemChange& change : std::as_const(m_changes)) {
        change.item->setValues(change.after);
    }
    m_view.viewport()->update();
}

double SelectionTool::snapDistance(const QMouseEvent& event) const
{
    return event.modifiers().testFlag(Qt::ShiftModifier) ? -1.0
                                                         : SnapPixels / m_view.transform().m11();
}

QPointF SelectionTool::snapped(const SnapLines::Snap& snap)
{
    m_snap = snap;
    return snap.way;
}

} // namespace window
