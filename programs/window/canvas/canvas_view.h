#pragma once

#include "window/label/move_items.h"

#include <QGraphicsView>
#include <QHash>

#include <optional>

namespace workbench {
class Canvas;
}

namespace window {

/// The canvas of a label on the screen: zoomed, scrolled, with its items to pick and move.
///
/// The page is shown with room around it. What hangs over its edges is seen faintly,
/// because it is not printed.
class CanvasView final : public QGraphicsView
{
    Q_OBJECT

public:
    static constexpr double SmallestZoom = 0.005;
    static constexpr double LargestZoom = 64.0;

    explicit CanvasView(QWidget* parent = nullptr);

    /// The canvas is not owned; null shows none. It must be taken away before it goes.
    void setCanvas(workbench::Canvas* canvas);

    /// 1 shows the label in its true size, by what the system says of the screen.
    [[nodiscard]] double zoom() const { return m_zoom; }
    [[nodiscard]] double pixelsPerPoint() const { return transform().m11(); }
    /// Keeps the middle of the view where it is.
    void setZoom(double zoom);
    /// Keeps the canvas where it is at this pixel of the view.
    void setZoomAt(double zoom, const QPoint& fixed);
    void zoomIn();
    void zoomOut();
    /// Shows the whole page, and keeps it whole while the view changes its size.
    void fitPage();
    /// Shows these items as large as they fit.
    void fitItems(const QList<QGraphicsItem*>& items);
    [[nodiscard]] bool keepsPageFitted() const { return m_keepFitted; }
    /// Where the page's upper left corner is, in pixels of the view.
    [[nodiscard]] QPointF pageOrigin() const;

Q_SIGNALS:
    void zoomChanged(double zoom);
    /// Another part of the canvas is seen, or it is seen in another size.
    void partChanged();
    /// The pointer is at this point of the canvas.
    void pointerMoved(const QPointF& canvasPoint, const QPoint& viewPoint);
    void pointerLeft();
    /// The user has moved items by mouse or keyboard. By mouse they are there already.
    void itemsMoved(const QList<window::ItemMove>& moves);

protected:
    void drawBackground(QPainter* painter, const QRectF& rect) override;
    void drawForeground(QPainter* painter, const QRectF& rect) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    bool viewportEvent(QEvent* event) override;

private:
    void applyZoom(double zoom);
    void showRoomAroundPage();
    [[nodiscard]] double truePixelsPerPoint() const;
    [[nodiscard]] bool nudge(const QKeyEvent& event);
    void beginPan(const QPoint& at);
    void panTo(const QPoint& at);
    void endPan();
    void setHandReady(bool ready);
    void rememberPositions();
    void reportMoves();

    workbench::Canvas* m_canvas = nullptr;
    double m_zoom = 1.0;
    bool m_keepFitted = true;
    bool m_handReady = false; // the space bar is down
    std::optional<QPoint> m_panFrom;
    QHash<QGraphicsItem*, QPointF> m_positions; // of the selected items, as the mouse went down
};

} // namespace window
