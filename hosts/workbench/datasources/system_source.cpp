#include "workbench/datasources/system_source.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace workbench::datasources {

namespace {

const QString DateFormatName = u"DateFormat"_s;
const QString TimeFormatName = u"TimeFormat"_s;
const QString DateField = u"Date"_s;
const QString TimeField = u"Time"_s;

} // namespace

SystemSource::SystemSource(Clock clock, QLocale locale)
    : m_clock(std::move(clock))
    , m_locale(std::move(locale))
{}

void SystemSource::setDatasourceProperty(const QString& name, const QVariant& value)
{
    if (name == DateFormatName) {
        m_dateFormat = value.toString();
    }
    if (name == TimeFormatName) {
        m_timeFormat = value.toString();
    }
}

QList<QString> SystemSource::fields() const
{
    return {DateField, TimeField};
}

QVariantMap SystemSource::properties() const
{
    return {{DateFormatName, m_dateFormat}, {TimeFormatName, m_timeFormat}};
}

QString SystemSource::fieldValue(qint64, const QString& field) const
{
    const QString& format = field == DateField ? m_dateFormat : m_timeFormat;
    if (format.isEmpty() || format.size() > MaximumFormat) {
        return {};
    }
    return m_locale.toString(m_clock(), format);
}

} // namespace workbench::datasources
