#include "window/help/shortcuts_dialog.h"

#include "window/properties/tables.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

namespace window {

namespace {

// Keys without an action: they work on the canvas only.
QList<ShortcutRow> canvasRows()
{
    const QString canvas = ShortcutsDialog::tr("Canvas");
    return {
        {canvas, ShortcutsDialog::tr("Move the selected items"),
         ShortcutsDialog::tr("Arrow keys; further with Shift, a little with Ctrl")},
        {canvas, ShortcutsDialog::tr("Select nothing"), ShortcutsDialog::tr("Esc")},
        {canvas, ShortcutsDialog::tr("Zoom at the pointer"), ShortcutsDialog::tr("Ctrl+wheel")},
        {canvas, ShortcutsDialog::tr("Shift the view"),
         ShortcutsDialog::tr("Space and left button, or middle button")},
    };
}

QStandardItemModel* makeModel(const QList<ShortcutRow>& rows, QObject* parent)
{
    auto* model = new QStandardItemModel(parent);
    model->setHorizontalHeaderLabels(
        {ShortcutsDialog::tr("Menu"), ShortcutsDialog::tr("Command"), ShortcutsDialog::tr("Keys")});
    for (const ShortcutRow& row : rows) {
        model->appendRow({new QStandardItem(row.menu), new QStandardItem(row.action),
                          new QStandardItem(row.keys)});
    }
    return model;
}

} // namespace

ShortcutsDialog::ShortcutsDialog(const QList<ShortcutRow>& rows, QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Keyboard Shortcuts"));
    QTableView* table = makeTable(*makeModel(rows + canvasRows(), this), windowTitle(), this);
    table->resizeColumnsToContents();
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(table);
    layout->addWidget(buttons);
    resize(560, 520);
}

} // namespace window
