#pragma once

#include "host/datasource_controller.h"
#include "workbench/datasources/datasource.h"
#include "workbench/datasources/system_source.h"

#include <QLocale>

#include <map>
#include <memory>

namespace workbench::datasources {

/// A data source as plain values, to save and to restore.
struct SourceValues
{
    int id = 0;
    QString kind;
    QVariantMap properties;
    QStringList selectedFields;

    bool operator==(const SourceValues&) const = default;
};

/// Owns the data sources of one label.
class DatasourceController final : public ::DatasourceController
{
public:
    /// Returned by createDatasource() for an unknown kind.
    static constexpr int NoSource = -1;

    /// @param clock  time of the date and time sources
    /// @param locale their names of days and months
    explicit DatasourceController(Clock clock = &QDateTime::currentDateTime,
                                  QLocale locale = QLocale());
    ~DatasourceController() override;

    /// Identifiers count up from 1 and are not reused.
    [[nodiscard]] int createDatasource(const QString& kind) override;
    [[nodiscard]] TalDatasource* getDatasource(int id) override;

    /// The source with this identifier; null for an unknown one.
    [[nodiscard]] const Datasource* source(int id) const;
    [[nodiscard]] QList<int> ids() const;
    /// The text of a source for a record; nothing if there is no such source or record.
    [[nodiscard]] std::optional<QString> recordText(int id, qint64 record,
                                                    const QStringList& requestedFields = {}) const;
    /// Records of a complete series: those of the longest source, at least 1.
    [[nodiscard]] qint64 recordCount() const;

    /// All sources, sorted by identifier.
    [[nodiscard]] QList<SourceValues> values() const;
    /// Replaces all sources. Returns false and changes nothing for an identifier below 1,
    /// a repeated identifier or an unknown kind.
    [[nodiscard]] bool setValues(const QList<SourceValues>& values);
    void clear() { m_sources.clear(); }

private:
    using Sources = std::map<int, std::unique_ptr<Datasource>>;

    [[nodiscard]] std::unique_ptr<Datasource> make(const QString& kind) const;
    [[nodiscard]] std::unique_ptr<Datasource> restored(const SourceValues& values) const;

    Clock m_clock;
    QLocale m_locale;
    Sources m_sources;
    int m_lastId = 0;
};

} // namespace workbench::datasources
