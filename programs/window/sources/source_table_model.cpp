#include "window/sources/source_table_model.h"

#include "workbench/datasources/csv_source.h"
#include "workbench/datasources/datasource_controller.h"
#include "workbench/datasources/sequence_source.h"
#include "workbench/datasources/text_list_source.h"

#include <QFileInfo>
#include <QLocale>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

using workbench::datasources::CsvSource;
using workbench::datasources::Datasource;
using workbench::datasources::DatasourceController;
using workbench::datasources::SequenceSource;
using workbench::datasources::SystemSource;
using workbench::datasources::TextListSource;

// A list may be long; a cell shows only its beginning.
constexpr qsizetype ListedTexts = 5;

QString kindOf(const Datasource& source)
{
    if (source.kind() == SequenceSource::Kind) {
        return SourceTableModel::tr("Counter");
    }
    if (source.kind() == SystemSource::Kind) {
        return SourceTableModel::tr("Date and time");
    }
    if (source.kind() == TextListSource::Kind) {
        return SourceTableModel::tr("List of texts");
    }
    if (source.kind() == CsvSource::Kind) {
        return SourceTableModel::tr("CSV file");
    }
    return source.kind();
}

QString counterSettings(const QVariantMap& properties)
{
    return SourceTableModel::tr("%1 to %2, step %3")
        .arg(properties.value(u"Start"_s).toInt())
        .arg(properties.value(u"End"_s).toInt())
        .arg(properties.value(u"Step"_s).toInt());
}

QString clockSettings(const QVariantMap& properties)
{
    const QString date = properties.value(u"DateFormat"_s).toString();
    const QString time = properties.value(u"TimeFormat"_s).toString();
    return QString(date + QLatin1Char(' ') + time).trimmed();
}

QString listSettings(const QVariantMap& properties)
{
    const QStringList texts = properties.value(u"TextList"_s).toStringList();
    const QString begin = QStringList(texts.mid(0, ListedTexts)).join(u", "_s);
    return texts.size() > ListedTexts ? begin + u", "_s + QChar(0x2026) : begin;
}

QString fileSettings(const QVariantMap& properties)
{
    return SourceTableModel::tr("%1: %2").arg(
        QFileInfo(CsvSource::fileOf(properties)).fileName(),
        properties.value(u"Fields"_s).toStringList().join(u", "_s));
}

QString settingsOf(const Datasource& source)
{
    if (source.kind() == CsvSource::Kind) {
        return fileSettings(source.properties());
    }
    if (source.kind() == SequenceSource::Kind) {
        return counterSettings(source.properties());
    }
    return source.kind() == SystemSource::Kind ? clockSettings(source.properties())
                                               : listSettings(source.properties());
}

} // namespace

QString sourceTitle(const Datasource& source)
{
    return SourceTableModel::tr("%1 (%2)").arg(kindOf(source), settingsOf(source));
}

SourceTableModel::SourceTableModel(QObject* parent)
    : QAbstractTableModel(parent)
{}

void SourceTableModel::show(const DatasourceController* sources, qint64 record)
{
    beginResetModel();
    m_rows.clear();
    const QList<int> ids = sources != nullptr ? sources->ids() : QList<int>();
    for (const int id : ids) {
        const Datasource& source = *sources->source(id);
        m_rows.append(Row{id,
                          {QString::number(id), kindOf(source), settingsOf(source),
                           QLocale().toString(source.recordCount()),
                           source.value(record).value_or(QString())}});
    }
    endResetModel();
}

int SourceTableModel::idOf(int row) const
{
    return row >= 0 && row < m_rows.size() ? m_rows.at(row).id : -1;
}

int SourceTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int SourceTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant SourceTableModel::data(const QModelIndex& index, int role) const
{
    const bool isText = role == Qt::DisplayRole || role == Qt::ToolTipRole;
    if (!isText || !index.isValid() || index.row() >= m_rows.size()) {
        return {};
    }
    return m_rows.at(index.row()).cells[index.column()];
}

QVariant SourceTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal) {
        return {};
    }
    switch (section) {
    case Number:
        return tr("Number");
    case Kind:
        return tr("Kind");
    case Settings:
        return tr("Settings");
    case Records:
        return tr("Records");
    default:
        return tr("Shows now");
    }
}

} // namespace window
