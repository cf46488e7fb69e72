#pragma once

#include "importer/reader_choice.h"

#include <QString>

namespace workbench {

/// Why a file cannot be read at all, in words for a person; empty when it can.
[[nodiscard]] QString whyFileCannotBeRead(const QString& fileName);

/// What to do about a file that a reader refused because its content is of another reader's format,
/// in words for a person; empty if the content does not show that.
[[nodiscard]] QString misnamedFileHint(const QString& fileName, ReaderKind reader);

} // namespace workbench
