#pragma once

#include <QByteArray>
#include <QString>

namespace recorder {

/// Reads a symbol from a symbol database, an SQLite file with the table
/// symbols(name, svg). Opened read-only; empty if the file is missing or
/// damaged, or has no symbol of this name.
[[nodiscard]] QByteArray symbolFromFile(const QString& path, const QString& name);

} // namespace recorder
