#pragma once

#include <QString>
#include <QStringList>

namespace migration {

/// Makes one report of several JSON reports, as one run over all files would have made it:
/// ordered by the names of the files.
///
/// @param inputs JSON reports; one file may stand in one of them only
/// @param output written as ReportWriter writes it
/// @return why there is none, in a sentence for a person; empty when there is one
[[nodiscard]] QString mergeReports(const QStringList& inputs, const QString& output);

} // namespace migration
