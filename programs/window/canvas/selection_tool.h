#pragma once

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

/// Selects and moves items by mouse.
///
/// A click selects the topmost item that is painted within a few pixels; another click at the same
/// place selects the item below it. Shift or Ctrl adds an item to the selection or removes it.
/// While moving, Ctrl keeps to one axis. A drag from an empty place, from an item that cannot be
/// moved, or with Shift from an item that is not selected, selects the items in a rectangle.
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

    /// Paints the rectangle of a selection, in pixels of the view.
    void paint(QPainter& painter) const;

Q_SIGNALS:
    /// Items were dragged; they are in place.
    void itemsMoved(const QList<window::ItemMove>& moves);
    /// A message for the user: why an item does not move.
    void hintShown(const QString& text);

private:
    enum class Drag : quint8 { None, Pressed, Moving, Selecting };

    void beginDrag(const QPoint& at, bool extends);
    void moveItems(const QMouseEvent& event);
    void selectInBand(bool adds);
    void click(const QMouseEvent& event);
    void selectOnly(workbench::CanvasItem* item);
    [[nodiscard]] QList<workbench::CanvasItem*> itemsAt(const QPoint& at) const;

    QGraphicsView& m_view;
    workbench::Canvas* m_canvas = nullptr;
    Drag m_drag = Drag::None;
    QPoint m_pressedAt;
    bool m_selectedByPress = false;
    QList<workbench::CanvasItem*> m_hits; // below the pressed point, the topmost first
    QList<ItemMove> m_moves;
    QRect m_band; // pixels of the view
};

} // namespace window
