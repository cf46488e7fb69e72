#pragma once

#include "window/canvas/text_editor.h"
#include "window/label/move_items.h"

#include <QGraphicsView>
#include <QPointer>

#include <optional>

namespace workbench {
class Canvas;
class CanvasItem;
} // namespace workbench

namespace window {

class SelectionTool;

/// A label's canvas on the screen: zooms, scrolls, and lets users select and move items.
///
/// The page is shown with a margin. Parts of items outside the page are dimmed,
/// because they are not printed.
class CanvasView final : public QGraphicsView
{
    Q_OBJECT

public:
    static constexpr double SmallestZoom = 0.005;
    static constexpr double LargestZoom = 64.0;
    /// Factor of one step of zooming.
    static constexpr double ZoomStep = 1.25;

    explicit CanvasView(QWidget* parent = nullptr);

    /// The canvas is not owned; null shows none. Call with null before deleting it.
    void setCanvas(workbench::Canvas* canvas);

    /// 1 shows the label in its true size, by the resolution that the system reports.
    [[nodiscard]] double zoom() const { return m_zoom; }
    [[nodiscard]] double pixelsPerPoint() const { return transform().m11(); }
    /// Keeps the center of the view fixed.
    void setZoom(double zoom);
    /// Keeps the canvas fixed at this pixel of the view.
    void setZoomAt(double zoom, const QPoint& fixed);
    void zoomIn();
    void zoomOut();
    /// Fits the page into the view, again after each resize of the view.
    void fitPage();
    /// Shows these items as large as they fit.
    void fitItems(const QList<QGraphicsItem*>& items);
    [[nodiscard]] bool keepsPageFitted() const { return m_keepFitted; }
    /// Outlines these boxes of the canvas with dashes, until the next call.
    void setOutlines(const QList<QRectF>& boxes);
    /// Position of the page's upper left corner, in pixels of the view.
    [[nodiscard]] QPointF pageOrigin() const;

    /// Edits the text of an item in place; false, with a message, if it has none or is read-only.
    bool editText(workbench::CanvasItem& item);
    /// Ends editing a text, and keeps or drops what was typed.
    void endEditing(bool isAccepted);

Q_SIGNALS:
    void zoomChanged(double zoom);
    /// The visible part of the canvas or the zoom has changed.
    void partChanged();
    /// The pointer is at this point of the canvas.
    void pointerMoved(const QPointF& canvasPoint, const QPoint& viewPoint);
    void pointerLeft();
    /// The user has moved items by mouse or keyboard. After a mouse move they are in place.
    void itemsMoved(const QList<window::ItemMove>& moves);
    /// The user has resized or rotated items, or typed a text.
    void itemsChanged(const QString& step, const QList<window::ItemChange>& changes);
    /// A context menu for the selected items, at this point of the screen.
    void menuRequested(const QPoint& at);
    /// A double click on an item that has no text: edit its properties.
    void propertiesRequested();
    /// A message for the status bar: why an item does not move.
    void hintShown(const QString& text);

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
    bool event(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void applyZoom(double zoom);
    void showRoomAroundPage();
    [[nodiscard]] double truePixelsPerPoint() const;
    [[nodiscard]] bool nudge(const QKeyEvent& event);
    [[nodiscard]] bool isInEditor(const QPoint& at) const;
    void beginPan(const QPoint& at);
    void panTo(const QPoint& at);
    void endPan();
    void setHandReady(bool ready);

    SelectionTool* m_tool;
    QPointer<TextEditor> m_editor; // of the text that is being edited; its scene owns it
    workbench::Canvas* m_canvas = nullptr;
    double m_zoom = 1.0;
    bool m_keepFitted = true;
    bool m_handReady = false; // the space bar is down
    std::optional<QPoint> m_panFrom;
    QList<QRectF> m_outlines;
};

} // namespace window
