#pragma once

#include <QStringList>

class QDomElement;

/// What one element says, as a plain value. Nothing here can fail: old labels hold
/// numbers that are none, and they count as 0.
namespace orvanta {

/// The text as a base-10 signed 32-bit number; 0 when it is no such number. Blanks
/// around the digits do not matter.
[[nodiscard]] int readInteger(const QDomElement& element);
/// The text as a number with a decimal point; 0 when it is none or out of a double's range.
[[nodiscard]] double readDouble(const QDomElement& element);
/// Whether the text is exactly "true". "True" and "1" are false: old labels depend on it.
[[nodiscard]] bool readFlag(const QDomElement& element);
/// The texts of all child elements, whatever their names, in document order; empty ones
/// are kept, because a list may have blank entries.
[[nodiscard]] QStringList readTexts(const QDomElement& element);

} // namespace orvanta
