#pragma once

#include <QString>

namespace opendocument {

/// Writes one record of the OpenDocument reader at debug level, where all its messages go.
///
/// @param line     line of the place that writes
/// @param function its full signature
/// @param code     of messages/refusals.h; null for a message without one
void logDebug(int line, const char* function, const QString& message, const char* code = nullptr);

} // namespace opendocument
