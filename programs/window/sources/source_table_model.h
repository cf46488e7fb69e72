#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <QString>

namespace workbench::datasources {
class Datasource;
class DatasourceController;
} // namespace workbench::datasources

namespace window {

/// The kind and the settings of a data source: "Counter (1 to 5, step 1)".
[[nodiscard]] QString sourceTitle(const workbench::datasources::Datasource& source);

/// The data sources of a label as a table: their kinds and their current content.
class SourceTableModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Number, Kind, Settings, Records, Now, ColumnCount };

    explicit SourceTableModel(QObject* parent = nullptr);

    /// Reads the sources again. Null empties the table.
    void show(const workbench::datasources::DatasourceController* sources, qint64 record);

    /// The identifier of the source in a row; -1 if there is no such row.
    [[nodiscard]] int idOf(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    struct Row
    {
        int id = -1;
        QString cells[ColumnCount];
    };

    QList<Row> m_rows;
};

} // namespace window
