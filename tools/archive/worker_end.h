#pragma once

#include "archive/messages.h"

#include <QString>

#include <functional>

class QTimer;

namespace archive {

/// Exit statuses of a worker.
enum WorkerExit : int {
    WorkerExitDone = 0,    ///< its input was closed
    WorkerExitBroken = 70, ///< it received a message that it could not read
    WorkerExitOutOfMemory = 71,
    WorkerExitUnconfined = 72, ///< the sandbox is required, and is not complete
};

/// How a worker process ended.
struct WorkerEnd
{
    /// Why a worker ended. Garbled: it sent an invalid reply.
    enum Kind { Exited, Signaled, TimedOut, Garbled, NotStarted };
    Kind kind = Exited;
    int code = 0; ///< exit status or signal

    [[nodiscard]] bool isOutOfMemory() const
    {
        return kind == Exited && code == WorkerExitOutOfMemory;
    }
    /// Whether another worker may succeed; a file that timed out is not tried again.
    [[nodiscard]] bool mayBeRetried() const { return kind != TimedOut; }
};

/// Starts the timer with this many seconds.
void startTimerInRealTime(QTimer& timer, int seconds);

/// Limits of a worker.
struct WorkerLimits
{
    int timeoutSeconds = 60; ///< without a heartbeat; 0 for no limit
    int memoryMiB = 4096;    ///< of its data; 0 for no limit
    /// Starts the single-shot timer of a worker. Tests replace it, so that they do not wait.
    std::function<void(QTimer& timer, int seconds)> startTimer = startTimerInRealTime;
};

/// The outcome of the file that the worker was importing.
[[nodiscard]] FileOutcome outcomeOf(const WorkerEnd& end);

/// User-visible error message of that file.
[[nodiscard]] QString messageFor(const WorkerEnd& end, const WorkerLimits& limits);

/// Names the limit in the error of a file that a worker refused because it needs too much memory.
void nameMemoryLimit(FileResult& result, const WorkerLimits& limits);

} // namespace archive
