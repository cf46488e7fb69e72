#pragma once

#include "workbench/datasources/datasource.h"

namespace workbench::datasources {

/// A running number between two texts.
///
/// It counts from Start towards End, both included, by the amount of Step; the step's sign
/// does not matter, and a step of 0 stands still. ZeroPad is the least number of digits,
/// filled up with zeros after the sign.
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
