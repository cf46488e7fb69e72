#pragma once

#include "window/properties/length_unit.h"

#include <QWidget>

class QTableView;

namespace workbench {
class Canvas;
class CanvasItem;
} // namespace workbench

namespace window {

class ItemTableModel;

/// The list of a label's items. Its selection and the canvas's are synchronized.
class ItemPanel final : public QWidget
{
    Q_OBJECT

public:
    explicit ItemPanel(QWidget* parent = nullptr);

    /// The canvas is not owned; null empties the list. Call with null before deleting it.
    void setCanvas(workbench::Canvas* canvas);
    void setUnit(LengthUnit unit);
    /// Reads the items again, after they have changed.
    void refresh();
    /// Selects this item alone. Ignores a row out of range.
    void selectItem(int row);

    [[nodiscard]] QTableView& table() { return *m_table; }
    /// The selected items in insertion order.
    [[nodiscard]] QList<workbench::CanvasItem*> selectedItems() const;
    /// The current item of the selection; null if nothing is selected.
    [[nodiscard]] workbench::CanvasItem* currentItem() const;

Q_SIGNALS:
    /// The selection has changed, here and on the canvas.
    void selectionChanged();
    /// The user activated an item of the list: scroll to it.
    void itemRequested(workbench::CanvasItem* item);

private:
    void takeFromTable();
    void takeFromCanvas();

    ItemTableModel* m_model;
    QTableView* m_table;
    workbench::Canvas* m_canvas = nullptr;
    bool m_isFollowing = false; // guards against recursion while one side follows the other
};

} // namespace window
