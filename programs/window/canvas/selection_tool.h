#pragma once

#include "window/canvas/handles.h"
#include "window/edit/snapping.h"
#include "window/label/move_items.h"

#include <QObject>
#include <QPoint>
#include <QPointF>
#include <QRect>

#include <optional>

class QGraphicsView;
class QMouseEvent;
class QPainter;

namespace workbench {
class Canvas;
class CanvasItem;
} // namespace workbench

namespace window {

/// Selects, moves, resizes and rotates items by mouse.
///
/// A click selects the topmost item that is painted within a few pixels; another click at the same
/// place selects the item below it. Shift or Ctrl adds an item to the selection or removes it.
/// While moving, Ctrl keeps to one axis. Drags snap to the edges and centers of other items and of
/// the page, unless Shift is pressed. HandleDrag describes the keys for the handles. A drag from an
/// empty place, from an item that cannot be moved, or with Shift from an item that is not selected,
/// selects the items in a rectangle.
class SelectionTool final : public QObject
{
    Q_OBJECT

public:
    /// The view is not owned.
    explicit SelectionTool(QGraphicsView& view);

    /// The canvas is not owned; null for none.
    void setCanvas(workbench::Canvas* canvas);

    void press(const QMouseEvent& event);
    void move(const QMouseEvent& event);
    void release(const QMouseEvent& event);

    /// Ends a drag and puts the items back. False if there is none.
    bool cancel();

    /// Shows why the selected item does not move, if it does not.
    void explain();

    void selectOnly(workbench::CanvasItem* item);

    /// Selects the topmost item at a point unless one of those at the point is selected.
    void selectAt(const QPoint& at);

    /// The item at a point for a double click: the item that was selected before its first click,
    /// else the topmost. Null if there is none.
    [[nodiscard]] workbench::CanvasItem* itemForDoubleClick(const QPoint& at) const;

    /// Shows the shape of the pointer above a handle.
    void hover(const QPoint& at);

    /// Paints handles, snap lines and the rectangle of a selection, in pixels of the view.
    void paint(QPainter& painter) const;

Q_SIGNALS:
    /// Items were dragged; they are in place.
    void itemsMoved(const QList<window::ItemMove>& moves);
    /// Handles were dragged; the items have their new values.
    void itemsChanged(const QString& step, const QList<window::ItemChange>& changes);
    /// A message for the user: why an item does not move.
    void hintShown(const QString& text);

private:
    // Distance within which a drag snaps, in pixels of the view.
    static constexpr double SnapPixels = 5.0;

    enum class Drag : quint8 { None, Pressed, Moving, Selecting, Handling };

    [[nodiscard]] static bool isSelected(const workbench::CanvasItem* item);
    void beginDrag(const QPoint& at, bool extends);
    void prepareMove();
    void moveItems(const QMouseEvent& event);
    void dragHandle(const QMouseEvent& event);
    [[nodiscard]] QPointF snapped(const SnapLines::Snap& snap);
    [[nodiscard]] double snapDistance(const QMouseEvent& event) const;
    [[nodiscard]] QList<ItemChange> changeableItems() const;
    [[nodiscard]] Handle handleAt(const QPoint& at) const;
    void selectInBand(bool adds);
    void click(const QMouseEvent& event);
    [[nodiscard]] QList<workbench::CanvasItem*> itemsAt(const QPoint& at) const;

    QGraphicsView& m_view;
    workbench::Canvas* m_canvas = nullptr;
    Drag m_drag = Drag::None;
    QPoint m_pressedAt;
    bool m_selectedByPress = false;
    QList<workbench::CanvasItem*> m_hits; // below the pressed point, the topmost first
    QList<ItemMove> m_moves;
    QRect m_band; // pixels of the view
    workbench::CanvasItem* m_selectedBefore =
        nullptr; // the single item, when the mouse was pressed
    Handle m_handle = Handle::None;
    QList<ItemChange> m_changes; // of a drag of a handle
    HandleFrame m_frame;         // when the handle was pressed
    SnapLines m_lines;
    QRectF m_movedBox; // bounds of the moved items, when the drag began
    SnapLines::Snap m_snap;
};

} // namespace window
