#pragma once

#include <QDataStream>

namespace tavrel {

/// Reads the list of databases that a label knows and tells whether the selected one is a
/// file, that is, whether its path holds a slash or a backslash. The binding itself is not
/// carried over.
[[nodiscard]] bool readDatabaseList(QDataStream& stream);

} // namespace tavrel
