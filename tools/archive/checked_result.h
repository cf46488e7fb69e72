#pragma once

#include "archive/messages.h"

namespace archive {

/// Checks the files that a worker reported, because a hostile label may control the worker: each
/// must be a regular file in its staging folder, for one of the planned outputs, one of their
/// series, or the table of records of a label for gLabels. Their sizes and times are taken from the
/// files themselves.
///
/// @param outputs planned, as in the job
/// @return whether all files pass
[[nodiscard]] bool checkFiles(FileResult& result, const QString& staging,
                              const QList<PlannedFile>& outputs);

/// Whether a path names a regular file directly in a folder, and not a link to one.
[[nodiscard]] bool isFileIn(const QString& folder, const QString& path);

} // namespace archive
