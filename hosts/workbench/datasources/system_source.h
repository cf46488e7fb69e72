#pragma once

#include "workbench/datasources/datasource.h"

#include <QDateTime>
#include <QLocale>

#include <functional>

namespace workbench::datasources {

/// Returns the current time.
using Clock = std::function<QDateTime()>;

/// The current date and time, in the formats of QLocale::toString(). An empty format
/// shows nothing. One record, because the clock does not depend on the record.
class SystemSource final : public Datasource
{
public:
    /// Longest accepted format; a longer one is from a damaged label and shows nothing.
    static constexpr qsizetype MaximumFormat = 1000;
    static constexpr QStringView Kind = u"SystemDatasource";

    SystemSource(Clock clock, QLocale locale);

    void setDatasourceProperty(const QString& name, const QVariant& value) override;
    [[nodiscard]] QList<QString> fields() const override;
    [[nodiscard]] QString kind() const override { return Kind.toString(); }
    [[nodiscard]] qint64 recordCount() const override { return 1; }
    [[nodiscard]] QVariantMap properties() const override;

protected:
    [[nodiscard]] QString fieldValue(qint64 record, const QString& field) const override;

private:
    Clock m_clock;
    QLocale m_locale;
    QString m_dateFormat;
    QString m_timeFormat;
};

} // namespace workbench::datasources
