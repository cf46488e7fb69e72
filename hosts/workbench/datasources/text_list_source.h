#pragma once

#include "workbench/datasources/datasource.h"

namespace workbench::datasources {

/// A list of texts, one per record.
class TextListSource final : public Datasource
{
public:
    static constexpr QStringView Kind = u"TextListDatasource";

    void setDatasourceProperty(const QString& name, const QVariant& value) override;
    [[nodiscard]] QList<QString> fields() const override;
    [[nodiscard]] QString kind() const override { return Kind.toString(); }
    [[nodiscard]] qint64 recordCount() const override { return m_texts.size(); }
    [[nodiscard]] QVariantMap properties() const override;

protected:
    [[nodiscard]] QString fieldValue(qint64 record, const QString& field) const override;

private:
    QStringList m_texts;
};

} // namespace workbench::datasources
