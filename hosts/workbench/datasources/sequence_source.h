#pragma once

#include "workbench/datasources/datasource.h"

namespace workbench::datasources {

/// A counter between two texts.
///
/// Counts from Start to End, both inclusive, by the absolute value of Step; with a
/// step of 0 it does not advance. ZeroPad is the minimum number of digits,
/// padded with zeros after the sign.
class SequenceSource final : public Datasource
{
public:
    /// More digits than any number needs.
    static constexpr int MaximumZeroPad = 64;
    static constexpr QStringView Kind = u"SequenceDatasource";

    void setDatasourceProperty(const QString& name, const QVariant& value) override;
    [[nodiscard]] QList<QString> fields() const override;
    [[nodiscard]] QString kind() const override { return Kind.toString(); }
    [[nodiscard]] qint64 recordCount() const override;
    [[nodiscard]] QVariantMap properties() const override;

protected:
    [[nodiscard]] QString fieldValue(qint64 record, const QString& field) const override;

private:
    [[nodiscard]] int* number(const QString& name);

    QString m_prefix;
    QString m_suffix;
    int m_start = 0;
    int m_end = 0;
    int m_step = 1;
    int m_zeroPad = 0;
};

} // namespace workbench::datasources
