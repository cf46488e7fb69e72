#pragma once

#include <QString>

class QAbstractItemModel;
class QTableView;
class QWidget;

namespace window {

/// The common setup of tables in panels: selects rows, Tab leaves the table, read-only.
[[nodiscard]] QTableView* makeTable(QAbstractItemModel& model, const QString& accessibleName,
                                    QWidget* parent);

/// Moves keyboard focus to a table, to its current row or else its first.
void focusTable(QTableView& table);

} // namespace window
