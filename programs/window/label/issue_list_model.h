#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <QString>

namespace window {

/// One issue of the open label, for the user.
struct Issue
{
    QString text;
    int item = -1;   ///< row of the affected item, -1 for none
    QString about;   ///< the name of that item, empty for none
    int repeats = 1; ///< number of occurrences
    bool operator==(const Issue&) const = default;
};

/// The issues of a label as a table.
class IssueListModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { About, Message, ColumnCount };

    explicit IssueListModel(QObject* parent = nullptr);

    void setIssues(const QList<Issue>& issues);
    /// The affected item of an issue; -1 for none.
    [[nodiscard]] int itemOf(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    QList<Issue> m_issues;
};

} // namespace window
