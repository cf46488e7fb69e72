#pragma once

#include "host/datasource_controller.h"
#include "host/file_controller.h"
#include "host/tal_datasource.h"

#include <QVariantMap>

#include <memory>
#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;

/// This host does not save labels. Only LegacyTemplateImporter::importLegacyLabel(), the import
/// with a dialog, calls this class.
class Files : public FileController
{
public:
    [[nodiscard]] bool checkSaveChanges(TalCanvasModel* /*canvasModel*/,
                                        const QString& /*currentFileName*/,
                                        bool /*allowDiscard*/) override
    {
        return true;
    }
    void saveImportedLabelAs(const QString& /*folder*/, const QString& /*baseName*/,
                             const QString& /*labelType*/) override
    {}
    void emitLabelTypeLoadedSignal(QString /*labelType*/) override {}
};

/// A counter, the clock or a list of texts, with the properties that the importer set.
class Source : public TalDatasource
{
public:
    explicit Source(QString kind)
        : m_kind(std::move(kind))
    {}

    void setDatasourceProperty(const QString& name, const QVariant& value) override
    {
        m_properties.insert(name, value);
    }
    [[nodiscard]] QList<QString> fields() const override { return {u"Value"_s}; }
    void setSelectedFields(const QList<QString>& /*fields*/) override {}

    [[nodiscard]] QString kind() const { return m_kind; }
    [[nodiscard]] const QVariantMap& properties() const { return m_properties; }

private:
    QString m_kind;
    QVariantMap m_properties;
};

/// The label's data sources, numbered from 1.
class Sources : public DatasourceController
{
public:
    [[nodiscard]] int createDatasource(const QString& kind) override
    {
        m_sources.push_back(std::make_unique<Source>(kind));
        return static_cast<int>(m_sources.size());
    }
    [[nodiscard]] TalDatasource* getDatasource(int id) override
    {
        const bool known = id >= 1 && id <= static_cast<int>(m_sources.size());
        return known ? m_sources[static_cast<std::size_t>(id - 1)].get() : nullptr;
    }

    [[nodiscard]] const std::vector<std::unique_ptr<Source>>& all() const { return m_sources; }

private:
    std::vector<std::unique_ptr<Source>> m_sources;
};
