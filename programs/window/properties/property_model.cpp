#include "window/properties/property_model.h"

namespace window {

PropertyModel::PropertyModel(QObject* parent)
    : QAbstractTableModel(parent)
{}

void PropertyModel::setRows(const QList<PropertyRow>& rows)
{
    if (rows == m_rows) {
        return;
    }
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

int PropertyModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int PropertyModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString PropertyModel::cell(int row, int column) const
{
    const PropertyRow& property = m_rows.at(row);
    switch (column) {
    case Group:
        // A group's name is shown once, beside its first property.
        return row > 0 && m_rows.at(row - 1).group == property.group ? QString() : property.group;
    case Name:
        return property.name;
    default:
        return property.value;
    }
}

QVariant PropertyModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return cell(index.row(), index.column());
    case Qt::ToolTipRole:
        return index.column() == Value ? m_rows.at(index.row()).value : QVariant();
    case Qt::AccessibleTextRole: {
        const PropertyRow& property = m_rows.at(index.row());
        return index.column() == Group ? property.group : cell(index.row(), index.column());
    }
    default:
        return {};
    }
}

QVariant PropertyModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal) {
        return {};
    }
    switch (section) {
    case Group:
        return tr("Group");
    case Name:
        return tr("Property");
    default:
        return tr("Value");
    }
}

} // namespace window
