#pragma once

#include <QByteArray>
#include <QString>

namespace migration {

/// User-visible reason why an XML document must not be parsed; empty if it may.
[[nodiscard]] QString uncountableReason(const QByteArray& xml);
/// User-visible error: a damaged document.
[[nodiscard]] QString notWellFormed(const QString& reason);

} // namespace migration
