#pragma once

#include "window/edit/commands.h"
#include "window/properties/length_unit.h"

#include <QWidget>

class QLabel;
class QTableView;

namespace window {

class PropertyDelegate;
class PropertyModel;

/// The properties of the selected items, or of the page if none is selected. They are edited in
/// place; several items get the same value.
class PropertyPanel final : public QWidget
{
    Q_OBJECT

public:
    explicit PropertyPanel(QWidget* parent = nullptr);

    /// The canvas is not owned; null shows nothing. Call with null before deleting it.
    void show(workbench::Canvas* canvas, const QList<workbench::CanvasItem*>& items,
              LengthUnit unit);

    [[nodiscard]] QTableView& table() { return *m_table; }
    /// The message about the text that is being typed; empty if there is none.
    [[nodiscard]] QString note() const;

Q_SIGNALS:
    /// The user has changed items; they do not have their new values yet.
    void itemsEdited(const QString& step, const QList<window::ItemChange>& changes);
    void pageEdited(const workbench::PageValues& page);

private:
    void edit(int property, const QVariant& value);
    void checkText(int property, const QString& text);
    void askValue(const QPersistentModelIndex& index);
    [[nodiscard]] QVariant chooseValue(const struct PropertyRow& row);

    PropertyModel* m_model;
    PropertyDelegate* m_delegate;
    QTableView* m_table;
    QLabel* m_note;
    workbench::Canvas* m_canvas = nullptr;
    QList<workbench::CanvasItem*> m_items;
};

} // namespace window
