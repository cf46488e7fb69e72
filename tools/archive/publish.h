#pragma once

#include "archive/messages.h"

#include <functional>

namespace archive {

/// Moves a staged file into its place. Atomic: readers see the old or the complete new file.
/// Creates missing folders. A file that must not be replaced is not replaced even if it appeared a
/// moment ago.
///
/// @param mayReplace an existing file may be replaced
/// @return user-visible error, after which nothing has changed; empty on success
[[nodiscard]] QString publish(const StagedFile& file, bool mayReplace);

/// Publishes all files of a result. Files that could not be published are removed from it, with an
/// error each.
///
/// @param mayReplace whether the file at the path of an output may be replaced; called if there is
///        one. May be empty.
void publishAll(FileResult& result, const std::function<bool(const QString& path)>& mayReplace);

/// Messages about an output that cannot be written.
[[nodiscard]] QString cannotWrite(const QString& path, const QString& reason);
[[nodiscard]] QString foreignFileMessage(const QString& path);
[[nodiscard]] QString folderInPlaceMessage(const QString& path);

} // namespace archive
