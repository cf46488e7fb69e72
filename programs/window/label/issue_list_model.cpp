#include "window/label/issue_list_model.h"

namespace window {

namespace {

QString messageOf(const Issue& issue)
{
    return issue.repeats > 1
               ? IssueListModel::tr("%1 (%2 times)").arg(issue.text).arg(issue.repeats)
               : issue.text;
}

QString aboutOf(const Issue& issue)
{
    return issue.about.isEmpty() ? IssueListModel::tr("The label") : issue.about;
}

} // namespace

IssueListModel::IssueListModel(QObject* parent)
    : QAbstractTableModel(parent)
{}

void IssueListModel::setIssues(const QList<Issue>& issues)
{
    if (issues == m_issues) {
        return;
    }
    beginResetModel();
    m_issues = issues;
    endResetModel();
}

int IssueListModel::itemOf(int row) const
{
    return row >= 0 && row < m_issues.size() ? m_issues.at(row).item : -1;
}

int IssueListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_issues.size());
}

int IssueListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant IssueListModel::data(const QModelIndex& index, int role) const
{
    const bool isText = role == Qt::DisplayRole || role == Qt::ToolTipRole;
    if (!isText || !index.isValid() || index.row() >= m_issues.size()) {
        return {};
    }
    const Issue& issue = m_issues.at(index.row());
    return index.column() == About ? aboutOf(issue) : messageOf(issue);
}

QVariant IssueListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal) {
        return {};
    }
    return section == About ? tr("About") : tr("What it is");
}

} // namespace window
