#include "workbench/datasources/datasource.h"

namespace workbench::datasources {

namespace {

[[nodiscard]] QStringList known(const QStringList& wanted, const QStringList& all)
{
    QStringList kept;
    for (const QString& field : wanted) {
        if (all.contains(field) && !kept.contains(field)) {
            kept << field;
        }
    }
    return kept;
}

} // namespace

std::optional<QString> Datasource::value(qint64 record, const QStringList& requestedFields) const
{
    const qint64 count = recordCount();
    if (record < 0 || count <= 0) {
        return std::nullopt;
    }
    QStringList shown = known(requestedFields, fields());
    if (shown.isEmpty()) {
        shown = m_selectedFields.isEmpty() ? fields() : m_selectedFields;
    }
    QStringList texts;
    for (const QString& field : shown) {
        texts << fieldValue(record % count, field);
    }
    if (texts.size() > 1) {
        texts.removeAll(QString());
    }
    return texts.join(u' ');
}

void Datasource::setSelectedFields(const QList<QString>& fields)
{
    m_selectedFields = known(fields, this->fields());
}

} // namespace workbench::datasources
