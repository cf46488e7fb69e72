#pragma once

#include "workbench/datasources/datasource.h"

#include <QDateTime>
#include <QLocale>

#include <functional>

namespace workbench::datasources {

/// Tells what time it is.
using Clock = std::function<QDateTime()>;

/// The present date and time, in the formats of QLocale::toString(). A format that is empty
/// shows nothing. One record, because the clock does not count labels.
class SystemSource final : public Datasource
{
public:
    /// Longest format; a longer one comes from a damaged label and shows nothing.
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
