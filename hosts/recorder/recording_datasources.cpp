#include "recorder/recording_datasources.h"

using namespace Qt::StringLiterals;

namespace recorder {

namespace {

const QString DatasourcesTarget = u"datasources"_s;

} // namespace

RecordingDatasource::RecordingDatasource(std::shared_ptr<Recording> recording, int id)
    : m_recording(std::move(recording))
    , m_target(u"datasource:%1"_s.arg(id))
{}

void RecordingDatasource::setDatasourceProperty(const QString& name, const QVariant& value)
{
    m_recording->call(m_target, "setDatasourceProperty", name, value);
}

QList<QString> RecordingDatasource::fields() const
{
    const QStringList names =
        m_recording->behavior().sourcesHaveFields ? QStringList{u"Value"_s} : QStringList();
    m_recording->answer(names, m_target, "fields");
    return names;
}

void RecordingDatasource::setSelectedFields(const QList<QString>& fields)
{
    m_recording->call(m_target, "setSelectedFields", fields);
}

RecordingDatasources::RecordingDatasources(std::shared_ptr<Recording> recording)
    : m_recording(std::move(recording))
{}

RecordingDatasources::~RecordingDatasources() = default;

int RecordingDatasources::createDatasource(const QString& kind)
{
    const int id = static_cast<int>(m_sources.size()) + 1;
    m_sources.push_back(std::make_unique<RecordingDatasource>(m_recording, id));
    m_recording->answer(id, DatasourcesTarget, "createDatasource", kind);
    return id;
}

TalDatasource* RecordingDatasources::getDatasource(int id)
{
    const bool known = id >= 1 && id <= static_cast<int>(m_sources.size()) &&
                       !m_recording->behavior().hidesDatasources;
    m_recording->answer(known ? TraceValue(id) : TraceValue(nullptr), DatasourcesTarget,
                        "getDatasource", id);
    return known ? m_sources[static_cast<std::size_t>(id - 1)].get() : nullptr;
}

} // namespace recorder
