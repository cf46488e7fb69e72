#pragma once

#include <QString>
#include <QStringList>

namespace migration {

/// Merges reports into the report of a single run over all files, sorted by file name.
///
/// @param inputs reports as JSON Lines; each file may be in only one of them
/// @param output a file name for ReportWriter
/// @return why merging is not possible, for the user; empty on success
[[nodiscard]] QString mergeReports(const QStringList& inputs, const QString& output);

} // namespace migration
