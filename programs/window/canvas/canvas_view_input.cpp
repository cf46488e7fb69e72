// Mouse and keyboard of the canvas view.

#include "window/canvas/canvas_view.h"
#include "window/canvas/item_nudge.h"
#include "window/canvas/selection_tool.h"

#include <QFocusEvent>
#include <QGraphicsItem>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <cmath>

namespace window {

namespace {

constexpr double WheelNotch = 120.0;

} // namespace

void CanvasView::wheelEvent(QWheelEvent* event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QGraphicsView::wheelEvent(event);
        return;
    }
    setZoomAt(m_zoom * std::pow(ZoomStep, event->angleDelta().y() / WheelNotch),
              event->position().toPoint());
    event->accept();
}

void CanvasView::mousePressEvent(QMouseEvent* event)
{
    const bool isHand = m_handReady && event->button() == Qt::LeftButton;
    if (isHand || event->button() == Qt::MiddleButton) {
        beginPan(event->position().toPoint());
        return;
    }
    if (m_editor != nullptr && isInEditor(event->position().toPoint())) {
        QGraphicsView::mousePressEvent(event);
        return;
    }
    endEditing(true);
    // Not the scene: it would select by the items' boxes.
    if (event->button() == Qt::LeftButton) {
        m_tool->press(*event);
    }
}

void CanvasView::mouseMoveEvent(QMouseEvent* event)
{
    if (m_panFrom) {
        panTo(event->position().toPoint());
        return;
    }
    if (m_editor != nullptr) {
        QGraphicsView::mouseMoveEvent(event);
    } else if (event->buttons() == Qt::NoButton && !m_handReady) {
        m_tool->hover(event->position().toPoint());
    } else {
        m_tool->move(*event);
    }
    const QPoint at = event->position().toPoint();
    Q_EMIT pointerMoved(mapToScene(at), at);
}

void CanvasView::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_panFrom) {
        endPan();
        return;
    }
    if (m_editor != nullptr) {
        QGraphicsView::mouseReleaseEvent(event);
    } else if (event->button() == Qt::LeftButton) {
        m_tool->release(*event);
    }
}

void CanvasView::beginPan(const QPoint& at)
{
    m_panFrom = at;
    viewport()->setCursor(Qt::ClosedHandCursor);
}

void CanvasView::panTo(const QPoint& at)
{
    const QPoint way = at - *m_panFrom;
    m_panFrom = at;
    m_keepFitted = false;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - way.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - way.y());
}

void CanvasView::endPan()
{
    m_panFrom.reset();
    setHandReady(m_handReady);
}

void CanvasView::setHandReady(bool ready)
{
    m_handReady = ready;
    if (ready) {
        viewport()->setCursor(Qt::OpenHandCursor);
    } else {
        viewport()->unsetCursor();
    }
}

void CanvasView::keyPressEvent(QKeyEvent* event)
{
    if (m_editor != nullptr) {
        QGraphicsView::keyPressEvent(event);
        return;
    }
    if (event->key() == Qt::Key_Space) {
        setHandReady(true);
        event->accept();
    } else if (event->key() == Qt::Key_Escape && scene() != nullptr) {
        if (!m_tool->cancel()) {
            scene()->clearSelection();
        }
        event->accept();
    } else if (nudge(*event)) {
        event->accept();
    } else {
        QGraphicsView::keyPressEvent(event);
    }
}

void CanvasView::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) {
        setHandReady(false);
        event->accept();
    } else {
        QGraphicsView::keyReleaseEvent(event);
    }
}

void CanvasView::focusOutEvent(QFocusEvent* event)
{
    // The space bar may be released in another window.
    setHandReady(false);
    // Menus, too: their commands must find the text that was typed.
    endEditing(true);
    QGraphicsView::focusOutEvent(event);
}

bool CanvasView::nudge(const QKeyEvent& event)
{
    if (scene() == nullptr) {
        return false;
    }
    const QList<QGraphicsItem*> items = scene()->selectedItems();
    const QList<ItemMove> moves = nudgedItems(items, event.key(), event.modifiers());
    if (!moves.isEmpty()) {
        Q_EMIT itemsMoved(moves);
    } else if (!items.isEmpty() && isArrow(event.key())) {
        m_tool->explain();
    }
    return !moves.isEmpty();
}

} // namespace window
