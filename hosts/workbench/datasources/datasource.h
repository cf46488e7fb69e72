#pragma once

#include "host/tal_datasource.h"

#include <QStringList>
#include <QVariantMap>

#include <optional>

/// Sources of changing content.
///
/// Records are counted from 0. Nothing is made before it is asked for: a sequence may have
/// four thousand million records.
namespace workbench::datasources {

class Datasource : public TalDatasource
{
public:
    /// The kind's name, as DatasourceController::createDatasource() takes it.
    [[nodiscard]] virtual QString kind() const = 0;
    /// How many records there are; 0 for a source without any content.
    [[nodiscard]] virtual qint64 recordCount() const = 0;
    /// All properties by their names, with what setDatasourceProperty() set or their defaults.
    [[nodiscard]] virtual QVariantMap properties() const = 0;

    /// What the record shows: the wanted fields with a space between them, empty ones left
    /// out. Without wanted fields it is the selected fields, without these all of them.
    /// A source that has run out begins again, so that no label of a series stays blank.
    /// @return nothing when the source has no records or the number is negative
    [[nodiscard]] std::optional<QString> value(qint64 record,
                                               const QStringList& wantedFields = {}) const;

    /// Fields that the source does not have are left out.
    void setSelectedFields(const QList<QString>& fields) override;
    [[nodiscard]] QStringList selectedFields() const { return m_selectedFields; }

protected:
    /// One field of a record in the range.
    [[nodiscard]] virtual QString fieldValue(qint64 record, const QString& field) const = 0;

private:
    QStringList m_selectedFields;
};

} // namespace workbench::datasources
