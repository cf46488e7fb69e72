#pragma once

#include "archive/messages.h"

#include <functional>

/// The worker's side: a process that imports files for a coordinator.
namespace archive {

/// Reports progress to the coordinator, which restarts the timeout.
using Heartbeat = std::function<void()>;
/// Confines the process: sandbox::confine(), except in tests.
using Confine = std::function<sandbox::Confinement(const sandbox::Permissions&)>;
using JobHandler = std::function<FileResult(const Job&, const Heartbeat&)>;

/// Confines the process as the first line of standard input specifies, then answers jobs until
/// standard input is closed. Standard output is reserved for replies: output of libraries is
/// discarded.
///
/// @return the exit status of the process
[[nodiscard]] int runWorker(const JobHandler& handler, const Confine& confine = &sandbox::confine);

} // namespace archive
