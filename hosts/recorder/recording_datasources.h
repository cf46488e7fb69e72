#pragma once

#include "host/datasource_controller.h"
#include "host/tal_datasource.h"
#include "recorder/recording.h"

#include <memory>
#include <vector>

namespace recorder {

/// A data source of any kind, with one field named "Value".
class RecordingDatasource : public TalDatasource
{
public:
    RecordingDatasource(std::shared_ptr<Recording> recording, int id);

    void setDatasourceProperty(const QString& name, const QVariant& value) override;
    [[nodiscard]] QList<QString> fields() const override;
    void setSelectedFields(const QList<QString>& fields) override;

private:
    std::shared_ptr<Recording> m_recording;
    QString m_target;
};

/// Creates data sources, numbered from 1.
class RecordingDatasources : public DatasourceController
{
public:
    explicit RecordingDatasources(std::shared_ptr<Recording> recording);
    ~RecordingDatasources() override;

    [[nodiscard]] int createDatasource(const QString& kind) override;
    [[nodiscard]] TalDatasource* getDatasource(int id) override;

    void clear() { m_sources.clear(); }

private:
    std::shared_ptr<Recording> m_recording;
    std::vector<std::unique_ptr<RecordingDatasource>> m_sources;
};

} // namespace recorder
