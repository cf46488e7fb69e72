#include "window/properties/tables.h"

#include <QHeaderView>
#include <QTableView>

namespace window {

QTableView* makeTable(QAbstractItemModel& model, const QString& accessibleName, QWidget* parent)
{
    auto* table = new QTableView(parent);
    table->setModel(&model);
    table->setAccessibleName(accessibleName);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setTabKeyNavigation(false);
    table->setAlternatingRowColors(true);
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->setCornerButtonEnabled(false);
    table->setFrameShape(QFrame::NoFrame);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 8);
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    return table;
}

void focusTable(QTableView& table)
{
    table.setFocus(Qt::ShortcutFocusReason);
    if (!table.currentIndex().isValid() && table.model()->rowCount() > 0) {
        table.setCurrentIndex(table.model()->index(0, 0));
    }
}

} // namespace window
