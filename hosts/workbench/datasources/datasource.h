#pragma once

#include "host/tal_datasource.h"

#include <QStringList>
#include <QVariantMap>

#include <optional>

/// Sources of variable content.
///
/// Records are counted from 0 and computed on demand: a sequence may have four
/// billion of them.
namespace workbench::datasources {

/// A data source of a label. The controller that created it owns it.
class Datasource : public TalDatasource
{
public:
    /// The kind's name, as DatasourceController::createDatasource() takes it.
    [[nodiscard]] virtual QString kind() const = 0;
    /// Number of records; 0 for a source without content.
    [[nodiscard]] virtual qint64 recordCount() const = 0;
    /// All properties by name, as set by setDatasourceProperty() or their defaults.
    [[nodiscard]] virtual QVariantMap properties() const = 0;

    /// The text of the record: the requested fields, joined by spaces, empty fields
    /// omitted. Without requested fields, the selected fields; without these, all fields.
    /// After its last record a source starts again, so that no label of a series is blank.
    /// @return nothing if the source has no records or the number is negative
    [[nodiscard]] std::optional<QString> value(qint64 record,
                                               const QStringList& requestedFields = {}) const;

    /// Fields that the source does not have are ignored.
    void setSelectedFields(const QList<QString>& fields) override;
    [[nodiscard]] QStringList selectedFields() const { return m_selectedFields; }

protected:
    /// One field of a record; the record is in range.
    [[nodiscard]] virtual QString fieldValue(qint64 record, const QString& field) const = 0;

private:
    QStringList m_selectedFields;
};

} // namespace workbench::datasources
