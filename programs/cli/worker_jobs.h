#pragma once

#include "archive/messages.h"
#include "archive/worker_end.h"

#include <QList>

namespace cli {

/// Runs jobs in worker processes, so that a bad file cannot crash the program. Returns a result
/// for each, in their order.
///
/// @param workers most processes at a time
[[nodiscard]] QList<archive::FileResult> runJobs(const QList<archive::Job>& jobs,
                                                 const archive::WorkerLimits& limits, int workers);

} // namespace cli
