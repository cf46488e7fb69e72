#pragma once

#include "workbench/datasources/csv_table.h"
#include "workbench/datasources/datasource.h"

namespace workbench::datasources {

/// The records of a CSV file. They are part of the label, so that a label shows and prints the
/// same everywhere, and opening it reads no other file. The file's name serves to read it again.
class CsvSource final : public Datasource
{
public:
    static constexpr QStringView Kind = u"CsvDatasource";

    /// The properties of a source with this content.
    [[nodiscard]] static QVariantMap propertiesOf(const QString& fileName,
                                                  const CsvOptions& options, const CsvTable& table);
    /// The file and the options of such properties, to read the file again.
    [[nodiscard]] static QString fileOf(const QVariantMap& properties);
    [[nodiscard]] static CsvOptions optionsOf(const QVariantMap& properties);

    void setDatasourceProperty(const QString& name, const QVariant& value) override;
    [[nodiscard]] QList<QString> fields() const override { return m_fields; }
    [[nodiscard]] QString kind() const override { return Kind.toString(); }
    [[nodiscard]] qint64 recordCount() const override;
    [[nodiscard]] QVariantMap properties() const override;

protected:
    [[nodiscard]] QString fieldValue(qint64 record, const QString& field) const override;

private:
    QStringList m_fields;
    QStringList m_cells;
    QVariantMap m_file; ///< name and options
};

} // namespace workbench::datasources
