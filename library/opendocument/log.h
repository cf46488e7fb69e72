#pragma once

#include <QString>

namespace opendocument {

/// Writes one record of the OpenDocument reader at debug level, where all its messages go.
///
/// @param line     line of the place that writes
/// @param function its full signature
void logDebug(int line, const char* function, const QString& message);

} // namespace opendocument
