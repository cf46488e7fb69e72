#include "workbench/datasources/datasource_controller.h"

#include "workbench/datasources/csv_source.h"
#include "workbench/datasources/sequence_source.h"
#include "workbench/datasources/text_list_source.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace workbench::datasources {

DatasourceController::DatasourceController(Clock clock, QLocale locale)
    : m_clock(std::move(clock))
    , m_locale(std::move(locale))
{}

DatasourceController::~DatasourceController() = default;

std::unique_ptr<Datasource> DatasourceController::make(const QString& kind) const
{
    if (kind == SequenceSource::Kind) {
        return std::make_unique<SequenceSource>();
    }
    if (kind == SystemSource::Kind) {
        return std::make_unique<SystemSource>(m_clock, m_locale);
    }
    if (kind == TextListSource::Kind) {
        return std::make_unique<TextListSource>();
    }
    if (kind == CsvSource::Kind) {
        return std::make_unique<CsvSource>();
    }
    return nullptr;
}

std::unique_ptr<Datasource> DatasourceController::restored(const SourceValues& values) const
{
    std::unique_ptr<Datasource> source = make(values.kind);
    if (!source) {
        return nullptr;
    }
    for (auto property = values.properties.begin(); property != values.properties.end();
         ++property) {
        source->setDatasourceProperty(property.key(), property.value());
    }
    source->setSelectedFields(values.selectedFields);
    return source;
}

int DatasourceController::createDatasource(const QString& kind)
{
    std::unique_ptr<Datasource> source = make(kind);
    if (!source || m_lastId == std::numeric_limits<int>::max()) {
        return NoSource;
    }
    ++m_lastId;
    m_sources[m_lastId] = std::move(source);
    return m_lastId;
}

TalDatasource* DatasourceController::getDatasource(int id)
{
    const auto found = m_sources.find(id);
    return found == m_sources.end() ? nullptr : found->second.get();
}

const Datasource* DatasourceController::source(int id) const
{
    const auto found = m_sources.find(id);
    return found == m_sources.end() ? nullptr : found->second.get();
}

QList<int> DatasourceController::ids() const
{
    QList<int> ids;
    for (const auto& [id, source] : m_sources) {
        ids << id;
    }
    return ids;
}

std::optional<QString> DatasourceController::recordText(int id, qint64 record,
                                                        const QStringList& requestedFields) const
{
    const Datasource* found = source(id);
    return found ? found->value(record, requestedFields) : std::nullopt;
}

qint64 DatasourceController::recordCount() const
{
    qint64 count = 1;
    for (const auto& [id, source] : m_sources) {
        count = std::max(count, source->recordCount());
    }
    return count;
}

QList<SourceValues> DatasourceController::values() const
{
    QList<SourceValues> all;
    for (const auto& [id, source] : m_sources) {
        all << SourceValues{id, source->kind(), source->properties(), source->selectedFields()};
    }
    return all;
}

bool DatasourceController::setValues(const QList<SourceValues>& values)
{
    Sources sources;
    for (const SourceValues& each : values) {
        std::unique_ptr<Datasource> source = restored(each);
        if (each.id < 1 || !source || sources.contains(each.id)) {
            return false;
        }
        sources[each.id] = std::move(source);
    }
    m_sources = std::move(sources);
    if (!m_sources.empty()) {
        m_lastId = std::max(m_lastId, m_sources.rbegin()->first);
    }
    return true;
}

} // namespace workbench::datasources
