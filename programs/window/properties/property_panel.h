#pragma once

#include "window/properties/length_unit.h"

#include <QWidget>

class QTableView;

namespace workbench {
class CanvasItem;
}

namespace window {

class PropertyModel;

/// The properties of the selected item.
class PropertyPanel final : public QWidget
{
    Q_OBJECT

public:
    explicit PropertyPanel(QWidget* parent = nullptr);

    /// Null shows nothing.
    void showItem(const workbench::CanvasItem* item, LengthUnit unit);
    [[nodiscard]] QTableView& table() { return *m_table; }

private:
    PropertyModel* m_model;
    QTableView* m_table;
};

} // namespace window
