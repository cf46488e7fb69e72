#pragma once

#include <QString>
#include <QStringList>

namespace workbench {

/// The family that stands in for one that this machine does not have at all.
[[nodiscard]] QString fallbackFamily();

/// The family of the same widths that shows this one where it is not installed; empty for
/// a family that has none.
///
/// Labels name the families of other systems. Free families of equal widths replace them
/// without moving a word.
[[nodiscard]] QString standInFamily(const QString& family);

/// The family itself, then those that stand in for it, in the order in which they are tried.
[[nodiscard]] QStringList familiesFor(const QString& family);

/// Lets documents find the stand-ins too. Does its work once.
void installStandIns();

} // namespace workbench
