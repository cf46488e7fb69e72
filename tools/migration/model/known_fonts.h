#pragma once

#include <QString>

namespace migration {

/// Whether a label can have texts in this family on this machine, itself or through one of
/// the same widths.
[[nodiscard]] bool isFontThere(const QString& family);
/// The family that is seen in its place; the family itself where it is there.
[[nodiscard]] QString familySeen(const QString& family);
/// The same for a text with its own formats, whose fonts the system replaces.
[[nodiscard]] QString familySeenInFormats(const QString& family);

} // namespace migration
