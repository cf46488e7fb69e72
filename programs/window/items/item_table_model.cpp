#include "window/items/item_table_model.h"

#include "window/properties/item_description.h"
#include "window/properties/style_names.h"
#include "workbench/canvas/canvas.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

QString stateText(const workbench::CanvasItem& item, const workbench::ItemValues& values)
{
    QStringList states;
    if (!item.issue().isEmpty()) {
        states.append(ItemTableModel::tr("cannot be shown"));
    }
    if (values.placement.userBackground) {
        states.append(ItemTableModel::tr("background"));
    }
    if (values.placement.readOnly) {
        states.append(ItemTableModel::tr("read-only"));
    } else if (!values.placement.movable) {
        states.append(ItemTableModel::tr("locked"));
    }
    return states.join(u", "_s);
}

bool isNumber(int column)
{
    return column >= ItemTableModel::Left && column <= ItemTableModel::Angle;
}

} // namespace

ItemTableModel::ItemTableModel(QObject* parent)
    : QAbstractTableModel(parent)
{}

void ItemTableModel::setCanvas(const workbench::Canvas* canvas)
{
    beginResetModel();
    m_canvas = canvas;
    readAll();
    endResetModel();
}

void ItemTableModel::setUnit(LengthUnit unit)
{
    m_unit = unit;
    Q_EMIT headerDataChanged(Qt::Horizontal, Left, Height);
    refresh();
}

void ItemTableModel::refresh()
{
    const bool hasSameItems =
        m_canvas != nullptr &&
        std::equal(
            m_rows.cbegin(), m_rows.cend(), m_canvas->items().cbegin(), m_canvas->items().cend(),
            [](const Row& row, const workbench::CanvasItem* item) { return row.item == item; });
    if (!hasSameItems) {
        setCanvas(m_canvas);
        return;
    }
    for (Row& row : m_rows) {
        row.isRead = false;
    }
    if (!m_rows.isEmpty()) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    }
}

workbench::CanvasItem* ItemTableModel::itemAt(int row) const
{
    return row >= 0 && row < m_rows.size() ? m_rows.at(row).item : nullptr;
}

int ItemTableModel::rowOf(const QGraphicsItem* item) const
{
    return m_rowOfItem.value(item, -1);
}

int ItemTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ItemTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ItemTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size()) {
        return {};
    }
    Row& row = m_rows[index.row()];
    if (!row.isRead) {
        describe(row);
    }
    switch (role) {
    case Qt::DisplayRole:
        return row.cells[index.column()];
    case Qt::ToolTipRole:
        return row.title;
    case Qt::TextAlignmentRole:
        return isNumber(index.column()) ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    default:
        return {};
    }
}

QVariant ItemTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isLength = section >= Left && section <= Height;
    if (role == Qt::ToolTipRole && orientation == Qt::Horizontal && isLength) {
        // The heading has no unit: all columns must fit beside the canvas.
        return headerData(section, orientation, Qt::DisplayRole).toString() + u" ("_s +
               unitSymbol(m_unit) + QLatin1Char(')');
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    if (orientation == Qt::Vertical) {
        return section + 1;
    }
    switch (section) {
    case Kind:
        return tr("Kind");
    case Content:
        return tr("Content");
    case Left:
        return tr("Left");
    case Top:
        return tr("Top");
    case Width:
        return tr("Width");
    case Height:
        return tr("Height");
    case Angle:
        return tr("Angle");
    case State:
        return tr("State");
    default:
        return {};
    }
}

void ItemTableModel::describe(Row& row) const
{
    const workbench::ItemValues values = row.item->values();
    row.isRead = true;
    row.title = itemTitle(values);
    row.cells[Kind] = kindName(values.type);
    row.cells[Content] = contentSummary(values);
    row.cells[Left] = lengthNumber(values.placement.position.x(), m_unit);
    row.cells[Top] = lengthNumber(values.placement.position.y(), m_unit);
    row.cells[Width] = lengthNumber(values.box.size.width(), m_unit);
    row.cells[Height] = lengthNumber(values.box.size.height(), m_unit);
    row.cells[Angle] = angleText(values.box.rotation);
    row.cells[State] = stateText(*row.item, values);
}

void ItemTableModel::readAll()
{
    m_rows.clear();
    m_rowOfItem.clear();
    if (m_canvas == nullptr) {
        return;
    }
    const QList<workbench::CanvasItem*>& items = m_canvas->items();
    m_rows.reserve(items.size());
    for (workbench::CanvasItem* item : items) {
        m_rowOfItem.insert(item->graphicsItem(), static_cast<int>(m_rows.size()));
        Row row;
        row.item = item;
        m_rows.append(row);
    }
}

} // namespace window
