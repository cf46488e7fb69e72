#pragma once

#include <QString>

class QAbstractItemModel;
class QTableView;
class QWidget;

namespace window {

/// A table as all panels have it: whole rows are picked, Tab leaves it, nothing is edited.
[[nodiscard]] QTableView* makeTable(QAbstractItemModel& model, const QString& accessibleName,
                                    QWidget* parent);

/// Puts the keyboard on a table, on its present row or else on its first.
void focusTable(QTableView& table);

} // namespace window
