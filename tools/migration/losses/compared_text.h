#pragma once

#include <QString>

namespace migration {

/// A text without spaces and line breaks.
[[nodiscard]] QString squeezed(const QString& text);

/// Whether all parts of a squeezed text between its variables are in another squeezed text.
[[nodiscard]] bool isIn(const QString& text, const QString& shown);

/// A text with one space for each blank, and without blank lines around it.
[[nodiscard]] QString canonical(const QString& text);

} // namespace migration
