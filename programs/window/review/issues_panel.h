#pragma once

#include "window/review/issues.h"

#include <QWidget>

class QLabel;
class QStackedLayout;
class QStandardItemModel;
class QTreeView;

namespace window {

/// The issues of the open label, by group, with advice. Shown until the label is closed.
class IssuesPanel final : public QWidget
{
    Q_OBJECT

public:
    enum Column { Text, About, Advice, ColumnCount };

    explicit IssuesPanel(QWidget* parent = nullptr);

    void setIssues(const QList<Issue>& issues);
    /// Shows that no label is open.
    void clear();
    [[nodiscard]] const QList<Issue>& issues() const { return m_issues; }
    [[nodiscard]] QTreeView& tree() { return *m_tree; }
    /// Moves keyboard focus to the list, to its current issue or else its first.
    void focusIssues();

Q_SIGNALS:
    /// The user selected this issue.
    void issueWanted(const window::Issue& issue);

private:
    void fill();
    void wantIssueAt(const QModelIndex& index);

    QList<Issue> m_issues;
    QStandardItemModel* m_model;
    QTreeView* m_tree;
    QLabel* m_none;
    QStackedLayout* m_stack;
};

} // namespace window
