#pragma once

#include <QByteArray>
#include <QString>

namespace migration {

/// Why no parser is to see an XML document, for a person; empty when one may.
[[nodiscard]] QString whyNotCountable(const QByteArray& xml);
/// That a document is damaged, for a person.
[[nodiscard]] QString notWellFormed(const QString& why);

} // namespace migration
