#include "window/properties/property_model.h"

#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

namespace window {

PropertyModel::PropertyModel(QObject* parent)
    : QAbstractTableModel(parent)
{}

void PropertyModel::setRows(const QList<PropertyRow>& rows)
{
    if (rows == m_rows) {
        return;
    }
    // The current row and an open editor survive a change of values.
    const bool hasSameNames =
        std::equal(rows.begin(), rows.end(), m_rows.begin(), m_rows.end(),
                   [](const PropertyRow& a, const PropertyRow& b) {
                       return a.property == b.property && a.group == b.group && a.name == b.name;
                   });
    if (hasSameNames) {
        m_rows = rows;
        Q_EMIT dataChanged(index(0, Group), index(rowCount() - 1, Value));
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
    case Qt::EditRole:
        return index.column() == Value ? m_rows.at(index.row()).current
                                       : cell(index.row(), index.column());
    case Qt::DecorationRole:
        return swatch(index);
    case Qt::CheckStateRole:
        return checkState(index);
    case Qt::ForegroundRole:
        return index.column() == Value && !m_rows.at(index.row()).isEditable
                   ? QVariant(QGuiApplication::palette().placeholderText())
                   : QVariant();
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

QVariant PropertyModel::swatch(const QModelIndex& index) const
{
    const PropertyRow& row = m_rows.at(index.row());
    const bool isColor = index.column() == Value && row.kind == PropertyKind::Color;
    return isColor && row.current.isValid() ? row.current : QVariant();
}

QVariant PropertyModel::checkState(const QModelIndex& index) const
{
    const PropertyRow& row = m_rows.at(index.row());
    if (index.column() != Value || row.kind != PropertyKind::Flag) {
        return {};
    }
    if (!row.current.isValid()) {
        return Qt::PartiallyChecked;
    }
    return row.current.toBool() ? Qt::Checked : Qt::Unchecked;
}

Qt::ItemFlags PropertyModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.isValid() && index.column() == Value && m_rows.at(index.row()).isEditable) {
        const bool isFlag = m_rows.at(index.row()).kind == PropertyKind::Flag;
        flags |= isFlag ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable;
    }
    return flags;
}

bool PropertyModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || index.column() != Value || !m_rows.at(index.row()).isEditable) {
        return false;
    }
    const PropertyRow row = m_rows.at(index.row());
    const QVariant wanted =
        role == Qt::CheckStateRole ? QVariant(value.toInt() == int(Qt::Checked)) : value;
    if ((role == Qt::EditRole || role == Qt::CheckStateRole) && wanted != row.current) {
        Q_EMIT edited(row.property, wanted);
    }
    return true;
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
