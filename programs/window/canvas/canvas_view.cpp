#include "window/canvas/canvas_view.h"

#include "window/canvas/page_backdrop.h"
#include "window/canvas/selection_tool.h"
#include "workbench/canvas/canvas.h"
#include "workbench/items/units.h"

#include <QGraphicsItem>
#include <QScrollBar>

#include <algorithm>

namespace window {

namespace {

using workbench::PointsPerInch;
// Fraction of the view that stays free around a fitted page.
constexpr double FitMargin = 0.06;

} // namespace

CanvasView::CanvasView(QWidget* parent)
    : QGraphicsView(parent)
    , m_tool(new SelectionTool(*this))
{
    setAccessibleName(tr("Canvas"));
    setAccessibleDescription(tr("The label. The arrow keys move the selected items."));
    setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform |
                   QPainter::TextAntialiasing);
    setTransformationAnchor(QGraphicsView::NoAnchor);
    // Always visible: scroll bars that appear and disappear would change the view's size.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
    setFrameShape(QFrame::NoFrame);
    setMouseTracking(true);
    // The window accepts dropped files.
    setAcceptDrops(false);
    viewport()->setAcceptDrops(false);
    connect(m_tool, &SelectionTool::itemsMoved, this, &CanvasView::itemsMoved);
    connect(m_tool, &SelectionTool::itemsChanged, this, &CanvasView::itemsChanged);
    connect(m_tool, &SelectionTool::hintShown, this, &CanvasView::hintShown);
}

void CanvasView::setCanvas(workbench::Canvas* canvas)
{
    endEditing(false);
    m_canvas = canvas;
    m_tool->setCanvas(canvas);
    setScene(canvas != nullptr ? canvas->scene() : nullptr);
    if (canvas != nullptr) {
        connect(canvas, &workbench::Canvas::pageChanged, this, &CanvasView::showRoomAroundPage);
        fitPage();
    }
}

double CanvasView::truePixelsPerPoint() const
{
    return logicalDpiX() / PointsPerInch;
}

void CanvasView::setZoom(double zoom)
{
    setZoomAt(zoom, viewport()->rect().center());
}

void CanvasView::setZoomAt(double zoom, const QPoint& fixed)
{
    m_keepFitted = false;
    const QPointF canvasPoint = viewportTransform().inverted().map(QPointF(fixed));
    applyZoom(zoom);
    const QPoint moved = viewportTransform().map(canvasPoint).toPoint() - fixed;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + moved.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() + moved.y());
}

void CanvasView::applyZoom(double zoom)
{
    m_zoom = std::clamp(zoom, SmallestZoom, LargestZoom);
    const double scale = m_zoom * truePixelsPerPoint();
    setTransform(QTransform::fromScale(scale, scale));
    showRoomAroundPage();
    Q_EMIT zoomChanged(m_zoom);
    Q_EMIT partChanged();
}

void CanvasView::zoomIn()
{
    setZoom(m_zoom * ZoomStep);
}

void CanvasView::zoomOut()
{
    setZoom(m_zoom / ZoomStep);
}

void CanvasView::fitPage()
{
    if (m_canvas == nullptr) {
        return;
    }
    const QSizeF page = m_canvas->pageRect().size() * truePixelsPerPoint();
    const QSizeF room = QSizeF(viewport()->size()) * (1.0 - 2.0 * FitMargin);
    applyZoom(std::min(room.width() / page.width(), room.height() / page.height()));
    centerOn(m_canvas->pageRect().center());
    m_keepFitted = true;
}

void CanvasView::fitItems(const QList<QGraphicsItem*>& items)
{
    QRectF bounds;
    for (const QGraphicsItem* item : items) {
        bounds |= item->sceneBoundingRect();
    }
    if (bounds.isEmpty()) {
        return;
    }
    const QSizeF wanted = bounds.size() * truePixelsPerPoint();
    const QSizeF room = QSizeF(viewport()->size()) * (1.0 - 2.0 * FitMargin);
    setZoom(std::min(room.width() / wanted.width(), room.height() / wanted.height()));
    centerOn(bounds.center());
}

void CanvasView::setOutlines(const QList<QRectF>& boxes)
{
    m_outlines = boxes;
    viewport()->update();
}

QPointF CanvasView::pageOrigin() const
{
    return viewportTransform().map(QPointF(0.0, 0.0));
}

void CanvasView::showRoomAroundPage()
{
    if (m_canvas == nullptr) {
        return;
    }
    // A margin of half a view on each side, so that every corner can be scrolled to the center.
    const QRectF page = m_canvas->pageRect();
    const double horizontal = viewport()->width() * 0.5 / pixelsPerPoint();
    const double vertical = viewport()->height() * 0.5 / pixelsPerPoint();
    setSceneRect(page.adjusted(-horizontal, -vertical, horizontal, vertical));
}

void CanvasView::drawBackground(QPainter* painter, const QRectF& rect)
{
    painter->fillRect(rect, surroundingsColor(palette()));
    if (m_canvas != nullptr) {
        paintPageGround(*painter, m_canvas->pageRect(), m_canvas->canvasBackgroundColor(),
                        pixelsPerPoint());
    }
}

void CanvasView::drawForeground(QPainter* painter, const QRectF& rect)
{
    if (m_canvas != nullptr) {
        paintPageSurroundings(*painter, m_canvas->pageRect(), rect, surroundingsColor(palette()));
        paintOutlines(*painter, m_outlines);
    }
}

void CanvasView::resizeEvent(QResizeEvent* event)
{
    QGraphicsView::resizeEvent(event);
    if (m_keepFitted) {
        fitPage();
    } else {
        showRoomAroundPage();
    }
    Q_EMIT partChanged();
}

void CanvasView::scrollContentsBy(int dx, int dy)
{
    QGraphicsView::scrollContentsBy(dx, dy);
    Q_EMIT partChanged();
}

bool CanvasView::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::Leave) {
        Q_EMIT pointerLeft();
    }
    return QGraphicsView::viewportEvent(event);
}

void CanvasView::paintEvent(QPaintEvent* event)
{
    QGraphicsView::paintEvent(event);
    QPainter painter(viewport());
    m_tool->paint(painter);
}

} // namespace window
