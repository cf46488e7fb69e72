#include "window/items/item_panel.h"

#include "window/items/item_table_model.h"
#include "window/properties/tables.h"
#include "workbench/canvas/canvas.h"

#include <QGraphicsItem>
#include <QHeaderView>
#include <QItemSelection>
#include <QScopedValueRollback>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

// Rows that determine the widths of columns; reading all would be slow.
constexpr int SampledRows = 50;

QList<int> selectedRows(const ItemTableModel& model, const QGraphicsScene& scene)
{
    QList<int> rows;
    const QList<QGraphicsItem*> items = scene.selectedItems();
    for (const QGraphicsItem* item : items) {
        const int row = model.rowOf(item);
        if (row >= 0) {
            rows.append(row);
        }
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

// Contiguous rows as one range each: a selection of very many ranges is slow.
QItemSelection selectionOf(const ItemTableModel& model, const QList<int>& rows)
{
    QItemSelection selection;
    for (qsizetype begin = 0; begin < rows.size();) {
        qsizetype end = begin + 1;
        while (end < rows.size() && rows.at(end) == rows.at(end - 1) + 1) {
            ++end;
        }
        selection.append(
            QItemSelectionRange(model.index(rows.at(begin), 0),
                                model.index(rows.at(end - 1), ItemTableModel::ColumnCount - 1)));
        begin = end;
    }
    return selection;
}

} // namespace

ItemPanel::ItemPanel(QWidget* parent)
    : QWidget(parent)
    , m_model(new ItemTableModel(this))
    , m_table(makeTable(*m_model, tr("Items of the label"), this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_table);
    setFocusProxy(m_table);
    // Headings and numbers are never cut; kind and content share the rest.
    QHeaderView& header = *m_table->horizontalHeader();
    header.setStretchLastSection(false);
    header.setMinimumSectionSize(fontMetrics().averageCharWidth() * 4);
    header.setResizeContentsPrecision(SampledRows);
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setSectionResizeMode(ItemTableModel::Kind, QHeaderView::Stretch);
    header.setSectionResizeMode(ItemTableModel::Content, QHeaderView::Stretch);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ItemPanel::takeFromTable);
}

void ItemPanel::setCanvas(workbench::Canvas* canvas)
{
    if (m_canvas != nullptr) {
        disconnect(m_canvas->scene(), nullptr, this, nullptr);
    }
    const QScopedValueRollback following(m_isFollowing, true);
    m_canvas = canvas;
    m_model->setCanvas(canvas);
    if (canvas != nullptr) {
        connect(canvas->scene(), &QGraphicsScene::selectionChanged, this,
                &ItemPanel::takeFromCanvas);
    }
    Q_EMIT selectionChanged();
}

void ItemPanel::setUnit(LengthUnit unit)
{
    m_model->setUnit(unit);
}

void ItemPanel::refresh()
{
    {
        // Resetting the model clears the table's selection, which must not clear the canvas's.
        const QScopedValueRollback following(m_isFollowing, true);
        m_model->refresh();
    }
    takeFromCanvas();
}

void ItemPanel::selectItem(int row)
{
    if (m_model->itemAt(row) != nullptr) {
        // Not selectRow(): select only this item, whichever modifier keys are pressed.
        m_table->selectionModel()->setCurrentIndex(m_model->index(row, 0),
                                                   QItemSelectionModel::ClearAndSelect |
                                                       QItemSelectionModel::Rows);
        m_table->scrollTo(m_model->index(row, 0));
        Q_EMIT itemRequested(m_model->itemAt(row));
    }
}

QList<workbench::CanvasItem*> ItemPanel::selectedItems() const
{
    QList<workbench::CanvasItem*> items;
    if (m_canvas != nullptr) {
        for (workbench::CanvasItem* item : m_canvas->items()) {
            if (item->graphicsItem()->isSelected()) {
                items.append(item);
            }
        }
    }
    return items;
}

workbench::CanvasItem* ItemPanel::currentItem() const
{
    const QModelIndex current = m_table->selectionModel()->currentIndex();
    if (m_table->selectionModel()->isRowSelected(current.row())) {
        return m_model->itemAt(current.row());
    }
    const QItemSelection selection = m_table->selectionModel()->selection();
    return selection.isEmpty() ? nullptr : m_model->itemAt(selection.constFirst().top());
}

void ItemPanel::takeFromTable()
{
    if (m_isFollowing || m_canvas == nullptr) {
        return;
    }
    {
        const QScopedValueRollback following(m_isFollowing, true);
        const QSignalBlocker silence(m_canvas->scene());
        m_canvas->scene()->clearSelection();
        const QModelIndexList rows = m_table->selectionModel()->selectedRows();
        for (const QModelIndex& index : rows) {
            m_model->itemAt(index.row())->graphicsItem()->setSelected(true);
        }
    }
    Q_EMIT selectionChanged();
    if (workbench::CanvasItem* item = currentItem()) {
        Q_EMIT itemRequested(item);
    }
}

void ItemPanel::takeFromCanvas()
{
    if (m_isFollowing || m_canvas == nullptr) {
        return;
    }
    {
        const QScopedValueRollback following(m_isFollowing, true);
        const QList<int> rows = selectedRows(*m_model, *m_canvas->scene());
        QItemSelectionModel& selection = *m_table->selectionModel();
        selection.select(selectionOf(*m_model, rows), QItemSelectionModel::ClearAndSelect);
        if (!rows.isEmpty()) {
            selection.setCurrentIndex(m_model->index(rows.constFirst(), 0),
                                      QItemSelectionModel::NoUpdate);
        }
    }
    Q_EMIT selectionChanged();
}

} // namespace window
