#pragma once

#include "archive/messages.h"

#include <functional>

/// The worker's side: a process that is given files by a coordinator.
namespace archive {

/// Tells the coordinator that a file gets on; its time begins anew.
using SignOfLife = std::function<void()>;
using JobHandler = std::function<FileResult(const Job&, const SignOfLife&)>;

/// To be called first of all in a worker: bounds its memory, and lets it end with
/// WorkerExitOutOfMemory when more is asked for.
///
/// @param memoryMiB bound of the process's data; 0 for none
void boundMemory(int memoryMiB);

/// Ends the worker for want of memory: for those who catch what the operator new throws.
[[noreturn]] void endForWantOfMemory();

/// Answers jobs until standard input is closed. Standard output belongs to the conversation:
/// what anybody else prints there goes nowhere.
///
/// @return the exit status of the process
[[nodiscard]] int runWorker(const JobHandler& handler);

} // namespace archive
