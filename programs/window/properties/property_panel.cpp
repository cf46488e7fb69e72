#include "window/properties/property_panel.h"

#include "window/properties/property_model.h"
#include "window/properties/tables.h"
#include "workbench/items/canvas_item.h"

#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace window {

PropertyPanel::PropertyPanel(QWidget* parent)
    : QWidget(parent)
    , m_model(new PropertyModel(this))
    , m_table(makeTable(*m_model, tr("Properties of the selected item"), this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_table);
    setFocusProxy(m_table);
    const int width = fontMetrics().horizontalAdvance(u"Flipped top to bottom  "_s);
    m_table->setColumnWidth(PropertyModel::Group, width * 3 / 5);
    m_table->setColumnWidth(PropertyModel::Name, width);
}

void PropertyPanel::showItem(const workbench::CanvasItem* item, LengthUnit unit)
{
    m_model->setRows(item != nullptr ? describeItem(item->values(), unit) : QList<PropertyRow>());
}

} // namespace window
