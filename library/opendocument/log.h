#pragma once

#include <QString>

namespace opendocument {

/// Writes one record at debug level, the level of all messages of the OpenDocument reader.
///
/// @param source   name of the calling source file, without folder and extension
/// @param line     line of the call in that file
/// @param function full signature of the calling function
/// @param code     of messages/refusals.h; null for a message without one
void logDebug(const char* source, int line, const char* function, const QString& message,
              const char* code = nullptr);

} // namespace opendocument
