#include "archive/worker_death.h"

#include <QCoreApplication>

#include <csignal>
#include <cstring>

namespace archive {
namespace {

/// "SIGABRT", in every language.
QString signalName(int number)
{
    const char* name = ::sigabbrev_np(number);
    return name != nullptr ? QStringLiteral("SIG") + QLatin1String(name) : QString::number(number);
}

} // namespace

Fate fateOf(const WorkerDeath& death)
{
    if (death.isOutOfMemory()) {
        return Fate::OutOfMemory;
    }
    return death.kind == WorkerDeath::TimedOut ? Fate::TimedOut : Fate::Crashed;
}

QString wordsFor(const WorkerDeath& death, const WorkerLimits& limits)
{
    if (death.isOutOfMemory()) {
        return QCoreApplication::translate(
                   "archive::WorkerDeath",
                   "the file needed more than %1 MiB of memory (--memory-limit)")
            .arg(limits.memoryMiB);
    }
    switch (death.kind) {
    case WorkerDeath::TimedOut:
        return QCoreApplication::translate(
                   "archive::WorkerDeath",
                   "the file took more than %1 seconds without getting on (--timeout)")
            .arg(limits.timeoutSeconds);
    case WorkerDeath::Signalled:
        return death.code == SIGKILL
                   ? QCoreApplication::translate(
                         "archive::WorkerDeath",
                         "its import was killed twice, perhaps because the machine had no memory "
                         "left")
                   : QCoreApplication::translate(
                         "archive::WorkerDeath",
                         "its import crashed twice (%1); please report the file")
                         .arg(signalName(death.code));
    case WorkerDeath::Garbled:
        return QCoreApplication::translate("archive::WorkerDeath",
                                           "its import ended in disorder, twice; please report "
                                           "the file");
    case WorkerDeath::NotStarted:
    case WorkerDeath::Exited:
        break;
    }
    return QCoreApplication::translate("archive::WorkerDeath",
                                       "its import ended twice by itself (status %1); please "
                                       "report the file")
        .arg(death.code);
}

} // namespace archive
