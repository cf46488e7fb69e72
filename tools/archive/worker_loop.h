#pragma once

#include "archive/messages.h"

#include <functional>

/// The worker's side: a process that imports files for a coordinator.
namespace archive {

/// Reports progress to the coordinator, which restarts the timeout.
using Heartbeat = std::function<void()>;
using JobHandler = std::function<FileResult(const Job&, const Heartbeat&)>;

/// Answers jobs until standard input is closed. Standard output belongs to the conversation:
/// what anybody else prints there goes nowhere.
///
/// @return the exit status of the process
[[nodiscard]] int runWorker(const JobHandler& handler);

} // namespace archive
