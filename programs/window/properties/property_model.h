#pragma once

#include "window/properties/item_description.h"

#include <QAbstractTableModel>

namespace window {

/// The properties of items or of the page, as a table of groups, names and values. The role
/// EditRole of a value is PropertyRow::current.
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
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// Emits edited(); the rows change when the items have changed.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

    [[nodiscard]] const PropertyRow& rowAt(int row) const { return m_rows.at(row); }

Q_SIGNALS:
    /// The user has given a property this value.
    void edited(int property, const QVariant& value);

private:
    [[nodiscard]] QString cell(int row, int column) const;
    [[nodiscard]] QVariant swatch(const QModelIndex& index) const;
    [[nodiscard]] QVariant checkState(const QModelIndex& index) const;

    QList<PropertyRow> m_rows;
};

} // namespace window
