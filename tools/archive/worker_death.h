#pragma once

#include "archive/messages.h"

#include <QString>

#include <functional>

class QTimer;

namespace archive {

/// Exit statuses by which a worker says of what it died.
enum WorkerExit : int {
    WorkerExitDone = 0,    ///< its input was closed
    WorkerExitBroken = 70, ///< it was given what it could not read
    WorkerExitOutOfMemory = 71,
};

/// How a worker came to its end.
struct WorkerDeath
{
    enum Kind { Exited, Signalled, TimedOut, Garbled, NotStarted };
    Kind kind = Exited;
    int code = 0; ///< exit status or signal

    [[nodiscard]] bool isOutOfMemory() const
    {
        return kind == Exited && code == WorkerExitOutOfMemory;
    }
    /// Whether a new worker may do better: it was not the file's time that ran out.
    [[nodiscard]] bool deservesAnotherTry() const { return kind != TimedOut; }
};

/// Seconds are seconds.
void startTimerInRealTime(QTimer& timer, int seconds);

/// Limits of a worker.
struct WorkerLimits
{
    int timeoutSeconds = 60; ///< without a sign of life; 0 for none
    int memoryMiB = 4096;    ///< of its data; 0 for none
    /// Starts the single-shot timer of a worker. Tests replace it, so that they do not wait.
    std::function<void(QTimer& timer, int seconds)> startTimer = startTimerInRealTime;
};

/// What that makes of its file.
[[nodiscard]] Fate fateOf(const WorkerDeath& death);

/// What is said of a file whose worker died so, in words for a person.
[[nodiscard]] QString wordsFor(const WorkerDeath& death, const WorkerLimits& limits);

} // namespace archive
