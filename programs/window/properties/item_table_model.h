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

/// The items of a canvas as a table, one row each in the order in which they came in.
class ItemTableModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Kind, Content, Left, Top, Width, Height, Angle, State, ColumnCount };

    explicit ItemTableModel(QObject* parent = nullptr);

    /// The canvas is not owned; null empties the table. It must be taken away before it goes.
    void setCanvas(const workbench::Canvas* canvas);
    void setUnit(LengthUnit unit);
    /// Reads all items again, after they have been moved or show another record.
    void refresh();

    /// The item of a row; null for a row that there is not.
    [[nodiscard]] workbench::CanvasItem* itemAt(int row) const;
    /// The row of an item of the scene; -1 when it is none of the canvas's.
    [[nodiscard]] int rowOf(const QGraphicsItem* item) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    // The words of a row. Made once: to read an item is more than a table's cell should cost.
    struct Row
    {
        workbench::CanvasItem* item = nullptr;
        QString title;
        QString cells[ColumnCount];
    };

    [[nodiscard]] Row describe(workbench::CanvasItem& item) const;
    void readAll();

    const workbench::Canvas* m_canvas = nullptr;
    LengthUnit m_unit = LengthUnit::Millimeter;
    QList<Row> m_rows;
    QHash<const QGraphicsItem*, int> m_rowOfItem;
};

} // namespace window
