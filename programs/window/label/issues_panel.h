#pragma once

#include "window/label/issue_list_model.h"

#include <QWidget>

class QLabel;
class QStackedLayout;
class QTableView;

namespace window {

/// The issues of the open label. Shown until the label is closed.
class IssuesPanel final : public QWidget
{
    Q_OBJECT

public:
    explicit IssuesPanel(QWidget* parent = nullptr);

    void setIssues(const QList<Issue>& issues);
    [[nodiscard]] int count() const { return m_model->rowCount(); }
    [[nodiscard]] QTableView& table() { return *m_table; }

Q_SIGNALS:
    /// The user selected an issue of this item.
    void itemWanted(int row);

private:
    void wantItemOf(const QModelIndex& index);

    IssueListModel* m_model;
    QTableView* m_table;
    QLabel* m_none;
    QStackedLayout* m_stack;
};

} // namespace window
