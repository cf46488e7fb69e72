#include "exporting/records_table.h"

#include "exporting/records_csv.h"
#include "workbench/datasources/datasource_controller.h"

#include <algorithm>

namespace exporting {

using namespace Qt::StringLiterals;
using workbench::DatasourceValues;
using workbench::datasources::DatasourceController;

namespace {

/// "Date Time" for the fields of a binding, or for all fields of its source.
QString nameOf(const DatasourceValues& binding, const DatasourceController& sources)
{
    const workbench::datasources::Datasource* source = sources.source(binding.id);
    const QStringList fields = !binding.fields.isEmpty() || source == nullptr ? binding.fields
                               : source->selectedFields().isEmpty()           ? source->fields()
                                                                    : source->selectedFields();
    QString name = fields.join(u' ');
    // gLabels reads the name of a field up to a brace.
    name.removeIf(
        [](QChar character) { return !character.isLetterOrNumber() && character != u' '; });
    return name.isEmpty() ? u"Field"_s : name;
}

/// Identifies a binding. No name of a field has a line feed.
QString keyOf(const DatasourceValues& binding)
{
    return QString::number(binding.id) + u'\n' + binding.fields.join(u'\n');
}

} // namespace

RecordsTable::RecordsTable(const QList<WalkedItem>& items, const DatasourceController& sources)
{
    QList<DatasourceValues> bindings;
    for (const WalkedItem& item : items) {
        if (item.isBound && !m_bindingNames.contains(keyOf(*item.values.datasource))) {
            m_bindingNames.insert(keyOf(*item.values.datasource), {});
            bindings.append(*item.values.datasource);
        }
    }
    const qint64 available = sources.recordCount();
    const qint64 cells = MaximumTableCells / std::max<qint64>(1, bindings.size());
    const qint64 count = std::min({available, MaximumTableRecords, std::max<qint64>(1, cells)});
    m_isCut = !bindings.isEmpty() && count < available;
    for (const DatasourceValues& binding : bindings) {
        QStringList records;
        for (qint64 record = 0; record < count; ++record) {
            records.append(
                sources.recordText(binding.id, record, binding.fields).value_or(QString()));
        }
        m_bindingNames[keyOf(binding)] = addColumn(nameOf(binding, sources), records);
    }
}

QString RecordsTable::addColumn(const QString& wantedName, const QStringList& records)
{
    QString name = wantedName;
    for (qsizetype number = m_columns.size() + 1; m_indexes.contains(name); ++number) {
        name = u"%1 %2"_s.arg(wantedName).arg(number);
    }
    m_indexes.insert(name, m_columns.size());
    m_columns.append({name, records});
    return name;
}

QString RecordsTable::columnOf(const DatasourceValues& binding) const
{
    return m_bindingNames.value(keyOf(binding));
}

QStringList RecordsTable::recordsOf(const QString& name) const
{
    const auto index = m_indexes.constFind(name);
    return index == m_indexes.constEnd() ? QStringList() : m_columns.at(*index).records;
}

QString RecordsTable::addDerived(const QString& column, const QString& suffix,
                                 const std::function<QString(const QString&)>& derive)
{
    const QString wanted = column + u' ' + suffix;
    if (const auto known = m_derivedNames.constFind(wanted); known != m_derivedNames.constEnd()) {
        return *known;
    }
    const QStringList records = recordsOf(column);
    QStringList derived;
    for (const QString& record : records) {
        derived.append(derive(record));
    }
    const QString name = derived == records ? column : addColumn(wanted, derived);
    m_derivedNames.insert(wanted, name);
    return name;
}

QByteArray RecordsTable::toCsv() const
{
    QStringList names;
    for (const Column& column : m_columns) {
        names.append(column.name);
    }
    QByteArray csv = csvLine(names);
    const qsizetype records = isEmpty() ? 0 : m_columns.first().records.size();
    for (qsizetype record = 0; record < records; ++record) {
        QStringList cells;
        for (const Column& column : m_columns) {
            cells.append(QString(column.records.at(record)).replace(u'\\', u"\\\\"_s));
        }
        csv += csvLine(cells);
    }
    return csv;
}

} // namespace exporting
