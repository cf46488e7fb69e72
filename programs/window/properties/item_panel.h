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

/// The list of a label's items. Its selection is that of the canvas, both ways.
class ItemPanel final : public QWidget
{
    Q_OBJECT

public:
    explicit ItemPanel(QWidget* parent = nullptr);

    /// The canvas is not owned; null empties the list. It must be taken away before it goes.
    void setCanvas(workbench::Canvas* canvas);
    void setUnit(LengthUnit unit);
    /// Reads the items again, after they have changed.
    void refresh();
    /// Selects this item alone. Does nothing for a row that there is not.
    void selectItem(int row);

    [[nodiscard]] QTableView& table() { return *m_table; }
    /// The item that the selection is about; null when nothing is selected.
    [[nodiscard]] workbench::CanvasItem* currentItem() const;

Q_SIGNALS:
    /// Other items are selected, here and on the canvas.
    void selectionChanged();
    /// The user picked an item in the list: it should be seen.
    void itemWanted(workbench::CanvasItem* item);

private:
    void takeFromTable();
    void takeFromCanvas();

    ItemTableModel* m_model;
    QTableView* m_table;
    workbench::Canvas* m_canvas = nullptr;
    bool m_isFollowing = false; // one side is being made to follow the other
};

} // namespace window
