#include "workbench/datasources/csv_source.h"

namespace workbench::datasources {

namespace {

using namespace Qt::StringLiterals;

constexpr QLatin1String FieldsName("Fields");
constexpr QLatin1String CellsName("Cells");
constexpr QLatin1String FileName("File");
constexpr QLatin1String SeparatorName("Separator");
constexpr QLatin1String EncodingName("Encoding");
constexpr QLatin1String HeaderName("Header");

} // namespace

QVariantMap CsvSource::propertiesOf(const QString& fileName, const CsvOptions& options,
                                    const CsvTable& table)
{
    return {{FieldsName, table.fields},
            {CellsName, table.cells},
            {FileName, fileName},
            {SeparatorName, options.separator.isNull() ? QString() : QString(options.separator)},
            {EncodingName, static_cast<int>(options.encoding)},
            {HeaderName, options.hasHeader ? 1 : 0}};
}

QString CsvSource::fileOf(const QVariantMap& properties)
{
    return properties.value(FileName).toString();
}

CsvOptions CsvSource::optionsOf(const QVariantMap& properties)
{
    const QString separator = properties.value(SeparatorName).toString();
    const int encoding = properties.value(EncodingName).toInt();
    const bool isKnown = encoding >= 0 && encoding <= static_cast<int>(CsvEncoding::Windows1252);
    return {separator.isEmpty() ? QChar() : separator.at(0),
            isKnown ? static_cast<CsvEncoding>(encoding) : CsvEncoding::Detect,
            properties.value(HeaderName, 1).toInt() != 0};
}

void CsvSource::setDatasourceProperty(const QString& name, const QVariant& value)
{
    if (name == FieldsName) {
        m_fields = value.toStringList();
    } else if (name == CellsName) {
        m_cells = value.toStringList();
    } else if (name == FileName || name == SeparatorName || name == EncodingName ||
               name == HeaderName) {
        m_file.insert(name, value);
    }
}

qint64 CsvSource::recordCount() const
{
    return m_fields.isEmpty() ? 0 : m_cells.size() / m_fields.size();
}

QVariantMap CsvSource::properties() const
{
    QVariantMap all = m_file;
    all.insert(FieldsName, m_fields);
    all.insert(CellsName, m_cells);
    return all;
}

QString CsvSource::fieldValue(qint64 record, const QString& field) const
{
    return m_cells.value(record * m_fields.size() + m_fields.indexOf(field));
}

} // namespace workbench::datasources
