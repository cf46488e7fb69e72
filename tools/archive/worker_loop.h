#pragma once

#include "archive/messages.h"

#include <functional>

/// The worker's side: a process that is given files by a coordinator.
namespace archive {

/// Tells the coordinator that a file gets on; its time begins anew.
using SignOfLife = std::function<void()>;
using JobHandler = std::function<FileResult(const Job&, const SignOfLife&)>;

/// Answers jobs until standard input is closed. Standard output belongs to the conversation:
/// what anybody else prints there goes nowhere.
///
/// @return the exit status of the process
[[nodiscard]] int runWorker(const JobHandler& handler);

} // namespace archive
