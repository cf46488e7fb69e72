#pragma once

#include <QString>

namespace workbench {

/// Why a file cannot be read at all, in words for a person; empty when it can.
[[nodiscard]] QString whyFileCannotBeRead(const QString& fileName);

/// What to do about a file whose content is of one format and whose name says another, in
/// words for a person; empty where the two agree. The reader is chosen by the name alone, and
/// a name with two dots, "shelf.old.odg", belongs to the binary reader.
[[nodiscard]] QString howNameMisleads(const QString& fileName);

} // namespace workbench
