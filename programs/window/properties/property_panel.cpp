#include "window/properties/property_panel.h"

#include "window/edit/replacement_file.h"
#include "window/properties/property_delegate.h"
#include "window/properties/property_model.h"
#include "window/properties/tables.h"

#include <QColorDialog>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace window {

PropertyPanel::PropertyPanel(QWidget* parent)
    : QWidget(parent)
    , m_model(new PropertyModel(this))
    , m_delegate(new PropertyDelegate(this))
    , m_table(makeTable(*m_model, tr("Properties of the selected items"), this))
    , m_note(new QLabel(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_table);
    layout->addWidget(m_note);
    setFocusProxy(m_table);
    m_note->setTextFormat(Qt::PlainText);
    m_note->setWordWrap(true);
    m_note->setMargin(6);
    m_note->hide();
    const int width = fontMetrics().horizontalAdvance(u"Flipped top to bottom  "_s);
    m_table->setColumnWidth(PropertyModel::Group, width * 3 / 5);
    m_table->setColumnWidth(PropertyModel::Name, width);
    m_table->setItemDelegateForColumn(PropertyModel::Value, m_delegate);
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
                             QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
    m_table->setSelectionBehavior(QAbstractItemView::SelectItems);
    connect(m_model, &PropertyModel::edited, this, &PropertyPanel::edit);
    connect(m_delegate, &PropertyDelegate::textTyped, this, &PropertyPanel::checkText);
    connect(m_delegate, &QAbstractItemDelegate::closeEditor, m_note, &QWidget::hide);
    // Queued: the view is still beginning to edit.
    connect(m_delegate, &PropertyDelegate::dialogRequested, this, &PropertyPanel::askValue,
            Qt::QueuedConnection);
}

void PropertyPanel::show(workbench::Canvas* canvas, const QList<workbench::CanvasItem*>& items,
                         LengthUnit unit)
{
    m_canvas = canvas;
    m_items = items;
    m_delegate->setUnit(unit);
    if (canvas == nullptr) {
        m_model->setRows({});
        return;
    }
    if (items.isEmpty()) {
        m_model->setRows(describePage(canvas->page(), unit));
        return;
    }
    QList<workbench::ItemValues> values;
    values.reserve(items.size());
    for (const workbench::CanvasItem* item : items) {
        values.append(item->values());
    }
    m_model->setRows(describeItems(values, unit));
}

QString PropertyPanel::note() const
{
    return m_note->isHidden() ? QString() : m_note->text();
}

void PropertyPanel::edit(int property, const QVariant& value)
{
    if (m_canvas == nullptr) {
        return;
    }
    if (m_items.isEmpty()) {
        workbench::PageValues page = m_canvas->page();
        pageProperties().at(property).set(page, value);
        Q_EMIT pageEdited(page);
        return;
    }
    const Property<workbench::ItemValues> changed = itemProperties().at(property);
    QList<ItemChange> changes;
    for (workbench::CanvasItem* item : std::as_const(m_items)) {
        const workbench::ItemValues before = item->values();
        ItemChange change{item, before, before};
        changed.set(change.after, value);
        changes.append(change);
    }
    Q_EMIT itemsEdited(tr("Change %1").arg(changed.name), changes);
}

// The encoder's objection to the content that is being typed.
void PropertyPanel::checkText(int property, const QString& text)
{
    if (m_canvas == nullptr || m_items.isEmpty()) {
        return;
    }
    workbench::ItemValues values = m_items.constFirst()->values();
    if (!values.barcode) {
        return;
    }
    itemProperties().at(property).set(values, text);
    const QString objection = barcodeObjection(*values.barcode);
    m_note->setText(objection);
    m_note->setVisible(!objection.isEmpty());
}

void PropertyPanel::askValue(const QPersistentModelIndex& index)
{
    if (!index.isValid()) {
        return;
    }
    const QVariant value = chooseValue(m_model->rowAt(index.row()));
    // The label may have been closed while the dialog was open.
    if (value.isValid() && index.isValid()) {
        m_model->setData(index, value, Qt::EditRole);
    }
}

QVariant PropertyPanel::chooseValue(const PropertyRow& row)
{
    const PropertyRow requested = row; // the dialogs process events
    if (requested.kind == PropertyKind::Color) {
        const QColor color = QColorDialog::getColor(requested.current.value<QColor>(), this,
                                                    requested.name, QColorDialog::ShowAlphaChannel);
        return color.isValid() ? QVariant(color) : QVariant();
    }
    return requested.kind == PropertyKind::Picture ? askPicture(this) : askSymbol(this);
}

} // namespace window
