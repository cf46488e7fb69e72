#pragma once

#include <QString>

namespace migration {

/// A text without spaces and line breaks.
[[nodiscard]] QString squeezed(const QString& text);

/// Whether all parts of a squeezed text between its variables are in another squeezed text.
[[nodiscard]] bool isIn(const QString& text, const QString& shown);
/// Whether one of the items, separated by line feeds, has all lines of a text in their order.
/// Numbers and bullets of lists are between them on the label.
///
/// @param items squeezed
[[nodiscard]] bool isInOneItem(const QString& text, const QString& items);

/// A text with one space for each blank, and without blank lines around it.
[[nodiscard]] QString canonical(const QString& text);

} // namespace migration
