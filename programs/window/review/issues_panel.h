#pragma once

#include "window/review/corrections.h"
#include "window/review/issues.h"

#include <QWidget>

#include <map>

class QLabel;
class QPushButton;
class QStackedWidget;
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
    /// Shows that no label is open, and why if there is a reason.
    void clear(const QString& reason = {});
    [[nodiscard]] const QList<Issue>& issues() const { return m_issues; }
    [[nodiscard]] QTreeView& tree() { return *m_tree; }
    /// Visible while it can help with the selected issue.
    [[nodiscard]] QPushButton& button(Correction correction) { return *m_buttons.at(correction); }
    /// Moves keyboard focus to the list, to its current issue or else its first.
    void focusIssues();

Q_SIGNALS:
    /// The user selected this issue.
    void issueRequested(const window::Issue& issue);
    /// The user chose this correction of the selected issue.
    void correctionRequested(window::Correction correction, const window::Issue& issue);

private:
    void fill();
    void makeButtons();
    void requestIssueAt(const QModelIndex& index);
    void requestCorrection(Correction correction);
    void showButtons(const QModelIndex& index);

    QList<Issue> m_issues;
    QStandardItemModel* m_model;
    QTreeView* m_tree;
    QLabel* m_none;
    QStackedWidget* m_stack;
    std::map<Correction, QPushButton*> m_buttons;
};

} // namespace window
