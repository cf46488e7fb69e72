#include "migration/census/xml_gate.h"

#include "limits/xml/xml_limits.h"

#include <QCoreApplication>

#include <limits>

namespace migration {

QString uncountableReason(const QByteArray& xml)
{
    // Counting builds no tree, so only its depth and its attributes matter.
    constexpr qint64 anySize = std::numeric_limits<qint64>::max() / 2;
    const auto excess = xmllimits::exceededLimit(xml, anySize, xmllimits::CompactCosts);
    return excess ? notWellFormed(excess->message) : QString();
}

QString notWellFormed(const QString& reason)
{
    return QCoreApplication::translate("migration::Census",
                                       "The file is damaged, so its objects cannot be counted: %1.")
        .arg(reason);
}

} // namespace migration
