#pragma once

namespace archive {

/// To be called first of all in a worker: bounds its memory, and lets it end with
/// WorkerExitOutOfMemory when more is asked for.
///
/// @param memoryMiB bound of the process's data; 0 for none
void boundMemory(int memoryMiB);

/// Ends the worker for want of memory: for those who catch what the operator new throws.
[[noreturn]] void endForWantOfMemory();

} // namespace archive
