#pragma once

#include "exporting/label_walk.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

namespace exporting {

/// Most records of a table: a counter may have billions.
inline constexpr qint64 MaximumTableRecords = 10'000;
/// Most records times columns of a table.
inline constexpr qint64 MaximumTableCells = 1'000'000;

/// What the data sources supply to the items of a label: a column for each binding, a row for each
/// record.
class RecordsTable
{
public:
    /// The bound items determine the columns.
    RecordsTable(const QList<WalkedItem>& items,
                 const workbench::datasources::DatasourceController& sources);

    [[nodiscard]] bool isEmpty() const { return m_columns.isEmpty(); }
    /// Whether the data sources have more records than the table.
    [[nodiscard]] bool isCut() const { return m_isCut; }

    /// The name of the column that a bound item shows.
    [[nodiscard]] QString columnOf(const workbench::DatasourceValues& binding) const;
    /// All records of a column.
    [[nodiscard]] QStringList recordsOf(const QString& column) const;
    /// Adds a column that is computed from another one, unless both are the same. Returns its name.
    /// A suffix identifies the computation.
    [[nodiscard]] QString addDerived(const QString& column, const QString& suffix,
                                     const std::function<QString(const QString&)>& derive);

    /// As CSV in UTF-8: separated by commas, with the names in the first line. A backslash is
    /// doubled, because gLabels reads it as the start of an escape sequence.
    [[nodiscard]] QByteArray toCsv() const;

private:
    struct Column
    {
        QString name;
        QStringList records;
    };

    QString addColumn(const QString& wantedName, const QStringList& records);

    QList<Column> m_columns;
    QHash<QString, qsizetype> m_indexes;    ///< by name
    QHash<QString, QString> m_bindingNames; ///< by binding
    QHash<QString, QString> m_derivedNames; ///< by column and suffix
    bool m_isCut = false;
};

} // namespace exporting
