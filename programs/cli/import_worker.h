#pragma once

#include "archive/worker_loop.h"
#include "archive/worker_process.h"

#include <QStringList>

namespace cli {

/// Imports one file and writes its outputs to the job's staging folder, or writes the pages of a
/// print job there.
///
/// @param maximumPages of a document; further ones are left out
[[nodiscard]] archive::FileResult importJob(const archive::Job& job,
                                            const archive::Heartbeat& heartbeat, int maximumPages);

/// Runs `labelport worker`, which the program starts itself: imports files for a coordinator.
///
/// @param arguments the memory limit in MiB
/// @return the program's exit status
[[nodiscard]] int runImportWorker(const QStringList& arguments);

/// The name of that command.
inline constexpr const char* WorkerCommandName = "worker";

/// How this program starts its workers.
[[nodiscard]] archive::WorkerCommand workerCommand(int memoryMiB);

/// User-visible reason why this system cannot meet --require-sandbox; empty if it can.
[[nodiscard]] QString sandboxProblem();

} // namespace cli
