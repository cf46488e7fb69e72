#pragma once

namespace archive {

/// Limits the memory of the process. Must be called first in a worker. If operator new fails, the
/// process exits with WorkerExitOutOfMemory; an uncaught std::bad_alloc has the same
/// effect. A library that does not check what malloc() returns crashes instead, and the crash is
/// reported as one.
///
/// @param memoryMiB limit of the process's data; 0 for none
void limitMemory(int memoryMiB);

/// Keeps freed memory for the next file. Without this, the memory of each picture goes back to the
/// system, which has to clear it again for the next one.
void keepFreedMemory();

/// Exits with WorkerExitOutOfMemory, for code that catches std::bad_alloc.
[[noreturn]] void exitOutOfMemory();

} // namespace archive
