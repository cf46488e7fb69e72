#pragma once

#include "window/properties/item_description.h"

#include <QAbstractTableModel>

namespace window {

/// The properties of one item, as a table of groups, names and values.
class PropertyModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Group, Name, Value, ColumnCount };

    explicit PropertyModel(QObject* parent = nullptr);

    void setRows(const QList<PropertyRow>& rows);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    [[nodiscard]] QString cell(int row, int column) const;

    QList<PropertyRow> m_rows;
};

} // namespace window
