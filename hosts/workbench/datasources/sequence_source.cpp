#include "workbench/datasources/sequence_source.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

using namespace Qt::StringLiterals;

namespace workbench::datasources {

namespace {

const QString PrefixName = u"Prefix"_s;
const QString SuffixName = u"Suffix"_s;
const QString StartName = u"Start"_s;
const QString EndName = u"End"_s;
const QString StepName = u"Step"_s;
const QString ZeroPadName = u"ZeroPad"_s;

} // namespace

int* SequenceSource::number(const QString& name)
{
    const std::array<std::pair<QString, int*>, 4> numbers{
        {{StartName, &m_start}, {EndName, &m_end}, {StepName, &m_step}, {ZeroPadName, &m_zeroPad}}};
    const auto found = std::find_if(numbers.begin(), numbers.end(),
                                    [&](const auto& each) { return each.first == name; });
    return found == numbers.end() ? nullptr : found->second;
}

void SequenceSource::setDatasourceProperty(const QString& name, const QVariant& value)
{
    if (name == PrefixName) {
        m_prefix = value.toString();
    }
    if (name == SuffixName) {
        m_suffix = value.toString();
    }
    bool ok = false;
    const int given = value.toInt(&ok);
    if (int* property = number(name); property && ok) {
        *property = given;
    }
}

QList<QString> SequenceSource::fields() const
{
    return {u"Number"_s};
}

qint64 SequenceSource::recordCount() const
{
    const qint64 step = std::abs(qint64{m_step});
    if (step == 0) {
        return 1;
    }
    return std::abs(qint64{m_end} - m_start) / step + 1;
}

QVariantMap SequenceSource::properties() const
{
    return {{PrefixName, m_prefix}, {SuffixName, m_suffix}, {StartName, m_start},
            {EndName, m_end},       {StepName, m_step},     {ZeroPadName, m_zeroPad}};
}

QString SequenceSource::fieldValue(qint64 record, const QString&) const
{
    const qint64 step = std::abs(qint64{m_step}) * (m_end < m_start ? -1 : 1);
    const qint64 number = m_start + record * step;
    const QString digits = QString::number(std::abs(number))
                               .rightJustified(std::clamp(m_zeroPad, 0, MaximumZeroPad), u'0');
    return m_prefix + (number < 0 ? u"-"_s : QString()) + digits + m_suffix;
}

} // namespace workbench::datasources
