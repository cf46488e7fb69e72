#pragma once

#include "window/properties/length_unit.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QList>
#include <QString>

class QGraphicsItem;

namespace workbench {
class Canvas;
class CanvasItem;
} // namespace workbench

namespace window {

/// The items of a canvas as a table, one row each in insertion order.
class ItemTableModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Kind, Content, Left, Top, Width, Height, Angle, State, ColumnCount };

    explicit ItemTableModel(QObject* parent = nullptr);

    /// The canvas is not owned; null empties the table. Call with null before deleting it.
    void setCanvas(const workbench::Canvas* canvas);
    void setUnit(LengthUnit unit);
    /// Reads all items again, after a move or a change of the record.
    void refresh();

    /// The item of a row; null for a row out of range.
    [[nodiscard]] workbench::CanvasItem* itemAt(int row) const;
    /// The row of an item of the scene; -1 if it is not on the canvas.
    [[nodiscard]] int rowOf(const QGraphicsItem* item) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    // The texts of a row, cached: reading an item is too slow for each repaint of a cell. Read when
    // the row is first shown: a label may have thousands of items.
    struct Row
    {
        workbench::CanvasItem* item = nullptr;
        bool isRead = false;
        QString title;
        QString cells[ColumnCount];
    };

    void describe(Row& row) const;
    void readAll();

    const workbench::Canvas* m_canvas = nullptr;
    LengthUnit m_unit = LengthUnit::Millimeter;
    mutable QList<Row> m_rows;
    QHash<const QGraphicsItem*, int> m_rowOfItem;
};

} // namespace window
