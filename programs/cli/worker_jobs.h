#pragma once

#include "archive/messages.h"
#include "archive/worker_end.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace cli {

/// Runs jobs in worker processes, so that a bad file cannot crash the program. Returns a result
/// for each, in their order.
///
/// @param workers most processes at a time
/// @param start   what the workers may read and write
[[nodiscard]] QList<archive::FileResult> runJobs(const QList<archive::Job>& jobs,
                                                 const archive::WorkerLimits& limits, int workers,
                                                 const archive::WorkerStart& start);

/// Permissions to read these files, and to write to a folder unless it is empty.
[[nodiscard]] sandbox::Permissions permissionsFor(const QStringList& files, const QString& folder);

} // namespace cli
