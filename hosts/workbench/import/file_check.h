#pragma once

#include "importer/reader_choice.h"

#include <QString>

namespace workbench {

/// User-visible reason why a file cannot be read at all; empty if it can.
[[nodiscard]] QString fileAccessError(const QString& fileName);

/// User-visible remedy for a file that a reader refused because its content has another reader's
/// format; empty if the content does not show that.
[[nodiscard]] QString misnamedFileHint(const QString& fileName, ReaderKind reader);

/// Whether a file is an OpenDocument package whose manifest lists encrypted members.
[[nodiscard]] bool isPasswordProtected(const QString& fileName);

/// User-visible reason why a password-protected document is refused, with the remedy.
[[nodiscard]] QString passwordProtectedMessage();

} // namespace workbench
