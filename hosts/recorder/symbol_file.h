#pragma once

#include <QByteArray>
#include <QString>

namespace recorder {

/// A symbol out of a symbol database, which is an SQLite file with the table
/// symbols(name, svg). Opened for reading only; empty when the file is missing or
/// damaged, or does not know the name.
[[nodiscard]] QByteArray symbolFromFile(const QString& path, const QString& name);

} // namespace recorder
