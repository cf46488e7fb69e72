#pragma once

#include <QString>
#include <QStringList>

namespace workbench {

/// The replacement for a family that is not installed and has no metric-compatible family.
[[nodiscard]] QString fallbackFamily();

/// The metric-compatible replacement of a family that is not installed; empty for
/// a family that has none.
///
/// Labels name fonts of other systems. Free families of equal widths replace them
/// without changing the layout.
[[nodiscard]] QString substituteFamily(const QString& family);

/// The family itself, then its replacements, in the order in which they are tried.
[[nodiscard]] QStringList familiesFor(const QString& family);

/// Registers the replacements for documents. Only the first call has an effect.
void installSubstitutes();

} // namespace workbench
